#include "core/RuntimeError.h"
#include "tests/groups/shapes/Unions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>

namespace {

using Random = std::mt19937;

int number(Random& random, int from, int to) {
    return std::uniform_int_distribution<int>(from, to)(random);
}

/// Cells of a small grid; the corner (0, 0) has its cell at (0, 0).
constexpr int gridSide = 24;
using Grid = std::array<std::array<bool, gridSide>, gridSide>;

/// Corners on a grid of five units, so that edges are shared often.
Shape randomRectangle(Random& random, Grid& cells) {
    const int x = number(random, 0, gridSide - 2);
    const int y = number(random, 0, gridSide - 2);
    const int right = number(random, x + 1, std::min(x + 8, gridSide - 1));
    const int top = number(random, y + 1, std::min(y + 8, gridSide - 1));
    for (int row = y; row < top; ++row)
        std::fill(cells[row].begin() + x, cells[row].begin() + right, true);
    return rectangle(5 * x, 5 * y, 5 * right, 5 * top);
}

/// Groups of cells that are joined by edges.
int countParts(Grid cells) {
    int parts = 0;
    const auto flood = [&](const auto& self, int row, int column) -> void {
        if (row < 0 || column < 0 || row >= gridSide || column >= gridSide || !cells[row][column])
            return;
        cells[row][column] = false;
        for (const auto& [down, right] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}})
            self(self, row + down, column + right);
    };
    for (int row = 0; row < gridSide; ++row) {
        for (int column = 0; column < gridSide; ++column) {
            parts += cells[row][column];
            flood(flood, row, column);
        }
    }
    return parts;
}

TEST(RandomUnions, OfRectanglesCoverTheirCells) {
    Random random(20250101);
    for (int round = 0; round < 60; ++round) {
        Grid cells{};
        std::vector<Shape> shapes;
        for (int count = number(random, 2, 14); count > 0; --count)
            shapes.push_back(randomRectangle(random, cells));
        std::size_t filled = 0;
        for (const auto& row : cells)
            filled += static_cast<std::size_t>(std::count(row.begin(), row.end(), true));

        const Shape one = unitedInTurn(shapes);
        std::shuffle(shapes.begin(), shapes.end(), random);
        const Shape other = unitedInTurn(shapes);

        ASSERT_EQ(areaOf(one), 25.0 * static_cast<double>(filled)) << round;
        ASSERT_EQ(outerRings(one), static_cast<std::size_t>(countParts(cells))) << round;
        ASSERT_EQ(areaOf(other), areaOf(one)) << round;
        ASSERT_EQ(other.rings.size(), one.rings.size()) << round;
    }
}

/// Rays of changing length. Every third star winds round twice and crosses itself; its rays are an odd number, as
/// others would fall on each other.
Shape randomStar(Random& random) {
    std::uniform_real_distribution<double> place(200, 800);
    std::uniform_real_distribution<double> reach(20, 250);
    const ShapePoint middle{place(random), place(random)};
    const int turns = number(random, 1, 3) == 1 ? 2 : 1;
    const int rays = turns == 2 ? 2 * number(random, 2, 12) + 1 : number(random, 3, 25);
    ShapeRing star;
    for (int ray = 0; ray < rays; ++ray) {
        const double angle = 2 * std::numbers::pi * turns * ray / rays;
        const double length = reach(random);
        star.push_back({middle.x + length * std::cos(angle), middle.y + length * std::sin(angle)});
    }
    star.push_back(star.front());
    return {{star}};
}

bool anyCovers(const std::vector<Shape>& shapes, ShapePoint point) {
    return std::any_of(shapes.begin(), shapes.end(), [&](const Shape& shape) { return covers(shape, point); });
}

TEST(RandomUnions, OfStarsCoverWhatTheStarsCover) {
    constexpr int raster = 100;
    constexpr double cell = 10;
    Random random(31);
    for (int round = 0; round < 40; ++round) {
        std::vector<Shape> stars;
        for (int count = number(random, 2, 12); count > 0; --count)
            stars.push_back(randomStar(random));

        const Shape one = unitedInTurn(stars);

        int missing = 0;
        int added = 0; // in holes that are too thin to stay
        for (int y = 0; y < raster; ++y) {
            for (int x = 0; x < raster; ++x) {
                const ShapePoint point{(x + 0.37) * cell, (y + 0.41) * cell};
                const bool before = anyCovers(stars, point);
                const bool after = covers(one, point);
                missing += before && !after;
                added += after && !before;
            }
        }
        EXPECT_EQ(missing, 0) << round;
        EXPECT_LE(added, 5) << round;
        EXPECT_GE(thinnestHole(one), 1.0) << round;
    }
}

TEST(RandomUnions, DoNotDependOnTheOrder) {
    Random random(77);
    for (int round = 0; round < 20; ++round) {
        std::vector<Shape> stars;
        for (int count = 9; count > 0; --count)
            stars.push_back(randomStar(random));
        const Shape one = unitedInTurn(stars);
        std::shuffle(stars.begin(), stars.end(), random);
        const Shape other = unitedInTurn(stars);
        EXPECT_NEAR(areaOf(other), areaOf(one), 1e-6 * areaOf(one)) << round;
        EXPECT_EQ(outerRings(other), outerRings(one)) << round;
    }
}

Bytes damaged(Bytes bytes, Random& random) {
    for (int changes = number(random, 0, 3); changes > 0 && !bytes.empty(); --changes)
        bytes[static_cast<std::size_t>(number(random, 0, static_cast<int>(bytes.size()) - 1))] =
            static_cast<std::byte>(number(random, 0, 255));
    if (number(random, 0, 9) == 0)
        bytes.resize(static_cast<std::size_t>(number(random, 0, static_cast<int>(bytes.size()) + 16)));
    return bytes;
}

TEST(RandomUnions, OfDamagedBytesAreRefusedOrCanBeRead) {
    Random random(404);
    int merged = 0;
    for (int round = 0; round < 3000; ++round) {
        PolygonMerger merger;
        setFirst(merger, {{randomStar(random).rings[0], squareRing(1000, 1000, 50)}});
        setSecond(merger, randomStar(random));
        merger.Vertices1 = damaged(merger.Vertices1.asBytes(), random);
        merger.Parts1 = damaged(merger.Parts1.asBytes(), random);
        merger.Vertices2 = damaged(merger.Vertices2.asBytes(), random);
        merger.NumParts2 = number(random, 0, 20) == 0 ? number(random, -3, 3) : merger.NumParts2;
        try {
            merger.Merge();
            ++merged;
        } catch (const RuntimeError& error) {
            EXPECT_NE(error.description(), "") << round;
        }
        const Shape shape = unionOf(merger); // fails the test where it cannot be read
        EXPECT_EQ(shape.rings.size(), static_cast<std::size_t>(merger.NumParts())) << round;
    }
    EXPECT_GT(merged, 300) << "damage that leaves a shape is merged";
}

} // namespace
