#include "groups/shapes/PolygonMerger.h"

#include "tests/groups/shapes/Unions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ostream>
#include <random>
#include <string>
#include <utility>

namespace {

/// A frame of `width` round nothing: one ring and one hole.
Shape frame(double lowX, double lowY, double side, double width) {
    ShapeRing hole = squareRing(lowX + width, lowY + width, side - 2 * width);
    std::reverse(hole.begin(), hole.end());
    return {{squareRing(lowX, lowY, side), hole}};
}

/// Two rings that touch at (50, 50) only.
const Shape cornerToCorner{{squareRing(0, 0, 50), squareRing(50, 50, 50)}};

struct Union {
    std::string name;
    Shape a;
    Shape b;
    double area;
    std::size_t outer;
    std::size_t holes;
};

void PrintTo(const Union& pair, std::ostream* out) {
    *out << pair.name;
}

class Unions : public testing::TestWithParam<Union> {};

TEST_P(Unions, HaveTheAreaAndTheRingsOfWhatBothCover) {
    const Union& pair = GetParam();
    for (const Shape& shape : {united(pair.a, pair.b), united(pair.b, pair.a)}) {
        EXPECT_NEAR(areaOf(shape), pair.area, 1e-6);
        EXPECT_EQ(outerRings(shape), pair.outer);
        EXPECT_EQ(holes(shape), pair.holes);
    }
    EXPECT_EQ(united(pair.a, pair.b), united(pair.b, pair.a)) << "which of them is the first makes no difference";
}

const Shape bayToTheEast{{{{0, 0}, {30, 0}, {30, 10}, {10, 10}, {10, 20}, {30, 20}, {30, 30}, {0, 30}, {0, 0}}}};

INSTANTIATE_TEST_SUITE_P(
    Pairs, Unions,
    testing::Values(
        Union{"SharedEdge", square(0, 0, 10), square(10, 0, 10), 200, 1, 0},
        Union{"PartOfAnEdge", square(0, 0, 10), square(10, 5, 20), 500, 1, 0},
        Union{"OneCorner", square(0, 0, 10), square(10, 10, 10), 200, 2, 0},
        Union{"FarApart", square(0, 0, 10), square(5000, 9000, 10), 200, 2, 0},
        Union{"Overlap", square(0, 0, 10), square(5, 5, 10), 175, 1, 0},
        Union{"Nested", square(0, 0, 30), square(10, 10, 10), 900, 1, 0},
        Union{"TheSame", square(0, 0, 10), square(0, 0, 10), 100, 1, 0},
        Union{"FillsAHole", frame(0, 0, 30, 10), square(10, 10, 10), 900, 1, 0},
        Union{"FillsHalfAHole", frame(0, 0, 30, 10), rectangle(10, 10, 15, 20), 850, 1, 1},
        Union{"IslandInAHole", frame(0, 0, 90, 10), square(40, 40, 10), 3300, 2, 1},
        Union{"FrameInAFrame", frame(0, 0, 90, 10), frame(20, 20, 50, 10), 3200 + 1600, 2, 2},
        Union{"ClosesABay", bayToTheEast, rectangle(30, 0, 40, 30), 1000, 1, 1},
        Union{"BothOfSeveralParts", cornerToCorner, {{squareRing(50, 0, 50), squareRing(0, 50, 50)}}, 10000, 1, 0},
        Union{"JoinsIslands",
              {{squareRing(0, 0, 10), squareRing(20, 0, 10), squareRing(40, 0, 10)}},
              rectangle(10, 0, 20, 10),
              400,
              2,
              0}),
    [](const auto& one) { return one.param.name; });

TEST(PolygonMerger, TellsTheFiguresOfItsUnion) {
    PolygonMerger merger;
    setFirst(merger, square(0, 0, 10));
    setSecond(merger, {{squareRing(10, 0, 10), squareRing(100, 50, 5)}});

    merger.Merge();

    EXPECT_EQ(merger.NumParts(), 2);
    EXPECT_EQ(merger.NumVert(), 7 + 5) << "the ends of the shared edge stay";
    EXPECT_EQ(merger.BoundLowX(), 0);
    EXPECT_EQ(merger.BoundLowY(), 0);
    EXPECT_EQ(merger.BoundUppX(), 105);
    EXPECT_EQ(merger.BoundUppY(), 55);
    EXPECT_EQ(merger.CenterX(), 10) << "of the larger part, not of the sea between both";
    EXPECT_EQ(merger.CenterY(), 5);
}

TEST(PolygonMerger, CentreOfACrescentOrRingLiesOnIt) {
    PolygonMerger merger;
    for (const auto& [a, b] :
         {std::pair{frame(0, 0, 90, 10), square(5000, 5000, 20)}, std::pair{bayToTheEast, rectangle(-1, 0, 0, 30)}}) {
        setFirst(merger, a);
        setSecond(merger, b);
        merger.Merge();
        EXPECT_TRUE(covers(unionOf(merger), {merger.CenterX(), merger.CenterY()}));
        EXPECT_LT(merger.CenterX(), 90) << "on the larger part";
    }
}

TEST(PolygonMerger, TakesItsOwnResultAsItsFirstPolygon) {
    const Shape row = unitedInTurn({square(0, 0, 10), square(10, 0, 10), square(20, 0, 10), square(30, 0, 10)});
    EXPECT_EQ(areaOf(row), 400);
    EXPECT_EQ(row.rings.size(), 1U);
}

/// A border from (50000, 80000) a thousand units north with a vertex every ten; each writer of it is off by up to
/// `error`.
ShapeRing roughBorder(double error, std::mt19937& random) {
    std::uniform_real_distribution<double> offBy(-error, error);
    ShapeRing border;
    for (int y = 0; y <= 1000; y += 10)
        border.push_back(
            {50000 + 20 * std::sin(y / 40.0) + offBy(random), 80000 + y + (y % 1000 == 0 ? 0 : offBy(random))});
    return border;
}

TEST(PolygonMerger, NeighboursWhoseBorderDoesNotAgreeLeaveNoSlivers) {
    std::mt19937 random(7);
    for (const double error : {1e-9, 1e-6, 1e-3, 0.05, 0.4}) {
        ShapeRing west = roughBorder(error, random);
        west.insert(west.end(), {{49500, 81000}, {49500, 80000}, west.front()});
        ShapeRing east = roughBorder(error, random);
        east.insert(east.end(), {{50500, 81000}, {50500, 80000}, east.front()});

        const Shape both = united({{west}}, {{east}});

        EXPECT_NEAR(areaOf(both), 1e6, 1000 * error + 1e-3) << error;
        EXPECT_EQ(outerRings(both), 1U) << error;
        EXPECT_EQ(holes(both), 0U) << error;
        EXPECT_NEAR(outlineLength(both), 4000, 5) << error << ": no cracks where the border reaches the coast";
    }
}

TEST(PolygonMerger, AHoleThinnerThanTenMetresIsFilledAndAWiderOneStays) {
    for (const auto& [gap, stays] : {std::pair{0.5, false}, std::pair{0.95, false}, std::pair{1.2, true}}) {
        // A slot 100 long between the two halves of a square.
        const Shape lower = rectangle(0, 0, 200, 100);
        const Shape upper{{{{0, 100},
                            {50, 100},
                            {50, 100 + gap},
                            {150, 100 + gap},
                            {150, 100},
                            {200, 100},
                            {200, 200},
                            {0, 200},
                            {0, 100}}}};
        const Shape both = united(lower, upper);
        EXPECT_EQ(holes(both), stays ? 1U : 0U) << gap;
        EXPECT_NEAR(areaOf(both), 40000 - (stays ? 100 * gap : 0), 1e-6) << gap;
    }
}

TEST(PolygonMerger, AnIslandInAThinHoleIsFilledWithIt) {
    Shape slotted = rectangle(0, 0, 200, 100);
    slotted.rings.push_back({{50, 50}, {50, 50.9}, {150, 50.9}, {150, 50}, {50, 50}});
    const Shape both = united(slotted, rectangle(90, 50.3, 110, 50.6));
    EXPECT_EQ(both.rings.size(), 1U);
    EXPECT_NEAR(areaOf(both), 20000, 1e-6);
}

TEST(PolygonMerger, RingsThatCrossCoverWhatIsDrawn) {
    // Points inside an odd number of rings are filled.
    const Shape bowTie{{{{0, 0}, {10, 10}, {10, 0}, {0, 10}, {0, 0}}}};
    EXPECT_NEAR(areaOf(united(bowTie, square(100, 0, 1))), 51, 1e-9);
    const Shape crossed{{squareRing(0, 0, 10), squareRing(5, 5, 10)}};
    EXPECT_NEAR(areaOf(united(crossed, square(100, 0, 1))), 151, 1e-9);
    const Shape holeFirst{{squareRing(10, 10, 10), squareRing(0, 0, 30)}};
    EXPECT_NEAR(areaOf(united(holeFirst, square(100, 0, 1))), 801, 1e-9);
    Shape allClockwise = frame(0, 0, 30, 10);
    for (ShapeRing& ring : allClockwise.rings)
        if (signedDoubleArea(ring) > 0)
            std::reverse(ring.begin(), ring.end());
    EXPECT_NEAR(areaOf(united(allClockwise, square(100, 0, 1))), 801, 1e-9);
}

} // namespace
