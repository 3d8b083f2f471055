#include "map/surface/LabelPainter.h"

#include "map/surface/MapPainter.h"

#include <gtest/gtest.h>

#include <QPainter>

#include <random>

namespace {

const QSize View(400, 300);
constexpr double Scale = 4000.0; // ten map units a pixel

/// One layer of names at given points of the map, and the views to look at them.
struct NamedPoints {
    DrawnMap map;

    NamedPoints() {
        map.contents.resize(1);
        map.scene.layers[0].LayerInterpretation = CoverageKind::LabelPoints;
        map.scene.layers[0].LayerCheckForOverlap = true;
        Symbol& symbol = map.scene.layers[0].symbols[0];
        symbol.SymbolEnableLabels = true;
        symbol.SymbolPointSymbol = "No Symbol";
        lookAt({0, 0});
    }
    void add(const std::vector<std::pair<std::string, QPointF>>& names) {
        std::vector<MapShape> shapes(names.size());
        for (std::size_t i = 0; i < names.size(); ++i) {
            shapes[i].id = static_cast<std::int64_t>(i);
            shapes[i].anchor = names[i].second;
            shapes[i].bounds = QRectF(names[i].second, QSizeF(0, 0));
            map.contents[0].shapes.push_back({i, 0, names[i].first});
        }
        map.contents[0].table = std::make_shared<const ShapeTable>(std::move(shapes));
    }
    /// Names all over the neighbourhood of the zero of the map, far more than there is room for.
    void addCrowd() {
        std::mt19937 random(11);
        std::uniform_real_distribution<double> spread(-4000.0, 4000.0);
        std::vector<std::pair<std::string, QPointF>> names;
        for (int i = 0; i < 600; ++i) {
            const double x = spread(random), y = spread(random);
            names.emplace_back("Name " + std::to_string(i), QPointF(x, y));
        }
        add(names);
    }
    void lookAt(const QPointF& center, double scale = Scale) {
        map.camera.setPixelSize(View);
        map.camera.setScale(scale);
        map.camera.setCenter(center);
    }
    std::vector<QRectF> boxes(const MapStyle& style = MapStyle()) const {
        LabelPainter painter;
        painter.place(map, PixelFrame(map.camera), style);
        return painter.boxes(0);
    }
};

bool isLight(QRgb pixel) {
    return qGray(pixel) > 150;
}

} // namespace

TEST(LabelPainter, NamesThatCollideAreDroppedAndThoseThatDoNotStand) {
    NamedPoints names;
    names.add({{"Newcastle", {0, 0}}, {"Gateshead", {0, -140}}, {"Jarrow", {10, 10}}, {"Carlisle", {-1500, 0}}});
    const std::vector<QRectF> boxes = names.boxes();
    ASSERT_EQ(boxes.size(), 3u) << "one of three on a spot finds room above or below, and one does not";
    EXPECT_FALSE(boxes[0].intersects(boxes[1]));

    names.map.scene.layers[0].LayerCheckForOverlap = false;
    EXPECT_EQ(names.boxes().size(), 4u);
}

TEST(LabelPainter, SmallerLabelsLeaveRoomForMore) {
    NamedPoints names;
    names.addCrowd();
    const std::vector<QRectF> full = names.boxes();
    const std::vector<QRectF> small = names.boxes({.labelScale = 0.5});
    EXPECT_NEAR(small[0].height(), full[0].height() / 2, 2.0);
    EXPECT_GT(small.size(), full.size());
}

TEST(LabelPainter, ABoxHoldsItsWholeText) {
    for (double ratio : {1.0, 2.0}) {
        LabelFace face({"Arial", 12.0}, Qt::black, Qt::white, ratio);
        const QFontMetricsF metrics(labelFont({"Arial", 12.0}, ratio));
        for (const char* text : {"Wolverhampton", "AV To Wa", "Ynys M\u00f4n", "\u03a9\u03a9\u03a9"}) {
            const QString name = QString::fromUtf8(text);
            EXPECT_GE(face.sizeOf(name).width() + 1.0, metrics.horizontalAdvance(name)) << text;
            const QImage image = face.image(name);
            for (int x : {0, image.width() - 1}) {
                for (int y = 0; y < image.height(); ++y)
                    EXPECT_LT(qAlpha(image.pixel(x, y)), 128) << text << ": the rim is cut at column " << x;
            }
        }
    }
}

TEST(LabelPainter, LabelsStayWhereTheyAreWhileTheViewMoves) {
    NamedPoints names;
    names.addCrowd();
    const std::vector<QRectF> before = names.boxes();
    ASSERT_GT(before.size(), 50u);
    for (const QPointF& center : {QPointF(730, -370), QPointF(-3000, 2500), QPointF(0.5, 0)}) {
        names.lookAt(center);
        const std::vector<QRectF> after = names.boxes();
        ASSERT_EQ(after.size(), before.size());
        const QPointF moved = after[0].topLeft() - before[0].topLeft();
        for (std::size_t i = 0; i < after.size(); ++i)
            ASSERT_EQ(after[i].topLeft() - before[i].topLeft(), moved);
    }
}

TEST(LabelPainter, APictureThatMovesShowsTheLabelsOfAFreshOne) {
    NamedPoints names;
    names.addCrowd();
    MapPainter painter;
    QImage picture = painter.paint(names.map, MapStyle());
    for (const QPoint& step : {QPoint(37, -20), QPoint(-5, 190), QPoint(1, 1)}) {
        const Camera before = names.map.camera;
        names.map.camera.moveBy(step);
        picture = painter.paintMoved(picture, before, names.map, MapStyle());
        EXPECT_EQ(picture, MapPainter().paint(names.map, MapStyle())) << step.x() << ", " << step.y();
    }
}

TEST(LabelPainter, LabelsReadOnEveryColour) {
    for (const QColor& below : {QColor(0x9E, 0x00, 0x00), QColor(Qt::black), QColor(0xFF, 0x2D, 0x1D)}) {
        LabelFace face({"DejaVu Sans", 12.0}, Qt::black, MapStyle().halo, 1.0);
        const QImage label = face.image("Border");
        QImage ground(label.size(), QImage::Format_RGB32);
        ground.fill(below);
        QPainter painter(&ground);
        painter.drawImage(0, 0, label);
        painter.end();
        int dark = 0, alone = 0;
        for (int y = 1; y < ground.height() - 1; ++y) {
            for (int x = 1; x < ground.width() - 1; ++x) {
                if (qAlpha(label.pixel(x, y)) < 128 || qGray(ground.pixel(x, y)) > 40)
                    continue;
                ++dark;
                bool light = false;
                for (int reach = 1; reach <= 4; ++reach) {
                    for (const QPoint& way : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
                        const QPoint at = QPoint(x, y) + way * reach;
                        light = light || (ground.rect().contains(at) && isLight(ground.pixel(at)));
                    }
                }
                alone += !light;
            }
        }
        EXPECT_GT(dark, 30);
        EXPECT_EQ(alone, 0) << "ink without a light rim on " << below.name().toStdString();
    }
}

TEST(LabelPainter, AbsurdFontsAndTextsCrashNothing) {
    NamedPoints names;
    names.add({{std::string(5000, 'W'), {0, 0}}, {"\xff\xfe", {500, 500}}, {"", {0, 900}}, {"x", {1e300, -1e300}}});
    names.map.scene.layers[0].symbols[0].SymbolLabelFont = {"No such family", 1e9};
    EXPECT_FALSE(MapPainter().paint(names.map, MapStyle()).isNull());
    names.lookAt({0, 0}, Camera::SmallestScale);
    EXPECT_FALSE(MapPainter().paint(names.map, MapStyle()).isNull());
}
