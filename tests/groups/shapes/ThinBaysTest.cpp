#include "groups/shapes/ThinBays.h"

#include "tests/groups/shapes/Unions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

/// A square of 100 with a bay 50 long from its upper side, `mouth` wide at the coast and `inside` wide at its end.
ShapeRing squareWithBay(double mouth, double inside) {
    return {{0, 0},
            {100, 0},
            {100, 100},
            {50 + mouth / 2, 100},
            {50 + inside / 2, 50},
            {50 - inside / 2, 50},
            {50 - mouth / 2, 100},
            {0, 100},
            {0, 0}};
}

/// The same ring, begun at another vertex.
ShapeRing begunAt(ShapeRing ring, std::ptrdiff_t vertex) {
    ring.pop_back();
    std::rotate(ring.begin(), ring.begin() + vertex, ring.end());
    ring.push_back(ring.front());
    return ring;
}

TEST(ThinBays, AreFilledWhereverTheRingBegins) {
    for (std::ptrdiff_t start = 0; start < 8; ++start) {
        const ShapeRing filled = withoutThinBays(begunAt(squareWithBay(0.8, 0.4), start), 1.0);
        EXPECT_EQ(filled.front(), filled.back()) << start;
        EXPECT_DOUBLE_EQ(signedDoubleArea(filled), 20000) << start;
        EXPECT_NEAR(outlineLength({{filled}}), 400, 1e-9) << start;
    }
}

TEST(ThinBays, OfOtherKindsStay) {
    ShapeRing headland = squareWithBay(0.8, 0.4);
    for (ShapePoint& point : headland) {
        if (point.y == 50)
            point.y = 150;
    }
    ShapeRing hole = squareWithBay(0.8, 0.4); // what is a bay of land is a headland of a hole
    std::reverse(hole.begin(), hole.end());
    const ShapeRing dent{{0, 0}, {10, 0}, {10, 10}, {5.4, 10}, {5, 9}, {4.6, 10}, {0, 10}, {0, 0}};
    for (const ShapeRing& ring :
         {squareWithBay(1.2, 0.4), squareWithBay(0.8, 30), headland, hole, dent, squareRing(0, 0, 0.5)})
        EXPECT_EQ(withoutThinBays(ring, 1.0), ring);
}

TEST(ThinBays, OfAHoleReachIntoTheLandRoundIt) {
    ShapeRing hole = squareWithBay(0.8, 0.4);
    for (ShapePoint& point : hole) {
        if (point.y == 50)
            point.y = 150;
    }
    std::reverse(hole.begin(), hole.end());
    EXPECT_DOUBLE_EQ(signedDoubleArea(withoutThinBays(hole, 1.0)), -20000);
}

TEST(ThinBays, OfRingsInATangleAreFilledWithVerticesOfTheRing) {
    std::mt19937 random(9);
    std::uniform_real_distribution<double> place(0, 6);
    for (int round = 0; round < 200; ++round) {
        ShapeRing ring;
        for (int vertices = 3 + round; vertices > 0; --vertices)
            ring.push_back({place(random), place(random)});
        ring.push_back(ring.front());
        const ShapeRing filled = withoutThinBays(ring, 1.0);
        EXPECT_GT(filled.size(), 3U);
        EXPECT_LE(filled.size(), ring.size());
        EXPECT_EQ(filled.front(), filled.back());
        for (const ShapePoint& point : filled)
            EXPECT_NE(std::find(ring.begin(), ring.end(), point), ring.end());
    }
    EXPECT_EQ(withoutThinBays({}, 1.0), ShapeRing{});
}

TEST(ThinBays, WithAnIslandInTheirMouthLeaveTheUnionAsItIs) {
    // The two outlines overlap, so cracks are looked for; one of them is closed by an island of another group.
    const Shape withIsland{{squareWithBay(0.9, 0.9), squareRing(49.9, 99.8, 0.4)}};
    const Shape made = united(withIsland, rectangle(90, 90, 110, 110));
    EXPECT_NEAR(areaOf(made), 10000 - 45 + 0.16 + 300, 1e-6);
    EXPECT_EQ(outerRings(made), 2U);
}

} // namespace
