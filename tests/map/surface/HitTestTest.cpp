#include "map/surface/HitTest.h"

#include "map/surface/MapPainter.h"
#include "tests/map/surface/DrawnSquares.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

/// The identifier of the area at a point; -1 at sea.
std::int64_t idAt(const DrawnMap& map, double x, double y) {
    const auto hit = areaAt(map, {x, y});
    return hit ? shapeOf(map, *hit).id : -1;
}

/// A lake in an area, an island in the lake, a pond on the island.
MapShape nested(std::int64_t id) {
    return polygon(id, {square(0, 0, 90), square(20, 20, 50), square(30, 30, 30), square(40, 40, 10)});
}

/// Whether a picture has one colour only.
bool isPlain(const QImage& picture) {
    QImage plain(picture.size(), picture.format());
    plain.fill(picture.pixelColor(0, 0));
    return plain == picture;
}

std::vector<std::int64_t> idsWithin(const DrawnMap& map, const QPolygonF& outline) {
    std::vector<std::int64_t> ids;
    for (const MapHit& hit : areasWithin(map, outline))
        ids.push_back(shapeOf(map, hit).id);
    return ids;
}

} // namespace

TEST(HitTest, HolesAreOutsideAndIslandsInThemInside) {
    for (const bool reversed : {false, true}) {
        DrawnMap map;
        MapShape area = nested(7);
        if (reversed) // rings that run the wrong way
            for (ShapeRing& ring : area.shape.rings)
                std::reverse(ring.begin(), ring.end());
        addLayer(map, {area});
        EXPECT_EQ(idAt(map, 10, 10), 7);
        EXPECT_EQ(idAt(map, 25, 25), -1) << "the lake";
        EXPECT_EQ(idAt(map, 35, 35), 7) << "the island";
        EXPECT_EQ(idAt(map, 45, 45), -1) << "the pond";
        EXPECT_EQ(idAt(map, 95, 50), -1);
    }
}

TEST(HitTest, TheUppermostAreaThatIsDrawnIsHit) {
    DrawnMap map;
    addLayer(map, {polygon(1, {square(0, 0, 100)}), polygon(2, {square(50, 0, 100)})});
    addLayer(map, {polygon(3, {square(0, 0, 30)})});
    EXPECT_EQ(idAt(map, 10, 10), 3);
    EXPECT_EQ(areaAt(map, {10, 10})->layer, 1u);
    EXPECT_EQ(idAt(map, 60, 60), 2) << "a later shape paints over an earlier one";
    map.contents[0].shapes.pop_back();
    EXPECT_EQ(idAt(map, 60, 60), 1) << "a shape without a row is not drawn";
    map.scene.layers[1].LayerVisible = false;
    EXPECT_EQ(idAt(map, 10, 10), 1);
    map.scene.layers[0].LayerInterpretation = CoverageKind::LabelPoints;
    EXPECT_EQ(idAt(map, 10, 10), -1);
}

TEST(HitTest, NeighboursShareNoPointAndLeaveNone) {
    DrawnMap map;
    addLayer(map, {polygon(1, {square(0, 0, 10)}), polygon(2, {square(10, 0, 10)}), polygon(3, {square(0, 10, 10)}),
                   polygon(4, {square(10, 10, 10)})});
    for (const double x : {0.5, 9.999, 10.0, 10.001, 19.5}) {
        for (const double y : {0.5, 9.999, 10.0, 10.001, 19.5}) {
            int owners = 0;
            for (const MapShape& shape : map.contents[0].table->shapes())
                owners += isInside(shape, {x, y});
            EXPECT_EQ(owners, 1) << x << ", " << y;
        }
    }
}

TEST(HitTest, AgreesWithThePicture) {
    DrawnMap map;
    std::vector<MapShape> shapes{nested(1)};
    ShapeRing star; // crosses itself
    for (int i = 0; i <= 5; ++i)
        star.push_back({150 + 45 * std::cos(i * 2.513274), 45 + 45 * std::sin(i * 2.513274)});
    shapes.push_back(polygon(2, {star}));
    addLayer(map, shapes);
    map.scene.layers[0].symbols[0].SymbolPolygonColor = 0x0000FF;
    map.scene.layers[0].symbols[0].SymbolPolygonBorderColor = 0x0000FF;
    map.camera.setPixelSize({400, 200});
    map.camera.setScale(200);
    map.camera.setCenter({100, 50});
    const QImage picture = MapPainter().paint(map, MapStyle());
    int inside = 0;
    for (int y = 1; y < 199; y += 3) {
        for (int x = 1; x < 399; x += 3) {
            if (!isPlain(picture.copy(x - 1, y - 1, 3, 3)))
                continue; // beside an outline
            const bool hit = areaAt(map, map.camera.screenToMap({x + 0.5, y + 0.5})).has_value();
            EXPECT_EQ(hit, picture.pixelColor(x, y) == QColor(Qt::red)) << x << ", " << y;
            inside += hit;
        }
    }
    EXPECT_GT(inside, 1000);
}

TEST(HitTest, AnOutlineTakesWhatLiesAtLeastHalfInside) {
    DrawnMap map;
    std::vector<MapShape> shapes;
    for (int i = 0; i < 5; ++i)
        shapes.push_back(polygon(i, {square(i * 100, 0, 100)}));
    addLayer(map, shapes);
    const QPolygonF drawn(QRectF(60, -10, 210, 200)); // 40 % of 0, all of 1, 70 % of 2
    EXPECT_EQ(idsWithin(map, drawn), (std::vector<std::int64_t>{1, 2}));
    EXPECT_TRUE(idsWithin(map, QPolygonF(QRectF(10, 10, 20, 20))).empty());
    EXPECT_TRUE(idsWithin(map, QPolygonF()).empty());

    map.scene.layers.push_back(map.scene.layers[0]);
    map.contents.push_back(map.contents[0]);
    const auto hits = areasWithin(map, drawn);
    ASSERT_EQ(hits.size(), 2u) << "once, for the upper layer";
    EXPECT_EQ(hits[0].layer, 1u);
}
