// Labels of 2,900 areas on a map of the country: room found for all of them and those that are seen written, at the
// whole map, at a county, and while the view moves.
#include "map/surface/LabelPainter.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <random>

namespace {

constexpr int Areas = 2900;
constexpr QSize PictureSize(1400, 1000);

DrawnMap namedMap() {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> east(10000.0, 65000.0), north(2000.0, 100000.0);
    std::uniform_int_distribution<int> length(4, 14), letter('a', 'z');
    std::vector<MapShape> shapes(Areas);
    DrawnMap map;
    map.contents.resize(1);
    for (int i = 0; i < Areas; ++i) {
        MapShape& shape = shapes[static_cast<std::size_t>(i)];
        shape.id = i;
        shape.anchor = QPointF(east(random), north(random));
        shape.bounds = QRectF(shape.anchor, QSizeF(0.0, 0.0));
        std::string name(static_cast<std::size_t>(length(random)), 'A');
        for (std::size_t at = 1; at < name.size(); ++at)
            name[at] = static_cast<char>(letter(random));
        map.contents[0].shapes.push_back({static_cast<std::size_t>(i), 0, name});
    }
    map.contents[0].table = std::make_shared<const ShapeTable>(std::move(shapes));
    Layer& layer = map.scene.layers[0];
    layer.LayerInterpretation = CoverageKind::LabelPoints;
    layer.LayerCheckForOverlap = true;
    layer.symbols[0].SymbolEnableLabels = true;
    layer.symbols[0].SymbolLabelFont = {"Calibri", 12.0};
    map.camera.setPixelSize(PictureSize);
    map.camera.setCenter({37500.0, 51000.0});
    return map;
}

void startPainting() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "bench_map_labels";
    static char* arguments[] = {name, nullptr};
    static QGuiApplication application(count, arguments);
}

void draw(LabelPainter& painter, const DrawnMap& map, QImage& picture) {
    painter.place(map, PixelFrame(map.camera), MapStyle());
    painter.paint(picture, picture.rect(), 0);
    benchmark::DoNotOptimize(picture.bits());
}

/// A painter that has drawn nothing yet: every label is shaped anew.
void firstDraw(benchmark::State& state) {
    startPainting();
    DrawnMap map = namedMap();
    map.camera.setScale(static_cast<double>(state.range(0)));
    QImage picture(PictureSize, QImage::Format_RGB32);
    for (auto _ : state) {
        LabelPainter painter;
        draw(painter, map, picture);
    }
    LabelPainter painter;
    draw(painter, map, picture);
    state.counters["placed"] = static_cast<double>(painter.boxes(0).size());
}

/// A painter that has drawn the neighbourhood before, the view moving by a few pixels each time.
void movingDraw(benchmark::State& state) {
    startPainting();
    DrawnMap map = namedMap();
    map.camera.setScale(static_cast<double>(state.range(0)));
    QImage picture(PictureSize, QImage::Format_RGB32);
    LabelPainter painter;
    draw(painter, map, picture);
    int step = 0;
    for (auto _ : state) {
        map.camera.moveBy(QPointF(++step % 40 < 20 ? 3 : -3, 1));
        draw(painter, map, picture);
    }
}

} // namespace

BENCHMARK(firstDraw)->Name("first_draw")->Arg(150000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(movingDraw)->Name("moving_draw")->Arg(150000)->Arg(20000)->Unit(benchmark::kMillisecond);
