#include "data/engine/Database.h"
#include "map/surface/MapSurface.h"
#include "tests/map/SmallMap.h"
#include "tests/map/surface/CallsLayer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace {

std::vector<std::byte> doubles(std::initializer_list<double> numbers) {
    std::vector<std::byte> bytes(numbers.size() * sizeof(double));
    std::memcpy(bytes.data(), numbers.begin(), bytes.size());
    return bytes;
}

std::vector<std::byte> indices(std::int32_t count, std::int32_t step) {
    std::vector<std::byte> bytes(static_cast<std::size_t>(count) * sizeof(std::int32_t));
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t index = i * step;
        std::memcpy(bytes.data() + static_cast<std::size_t>(i) * sizeof index, &index, sizeof index);
    }
    return bytes;
}

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

/// What the row of "Middle" holds in place of its shape.
struct Damage {
    const char* name;
    Value numVert;
    Value vertices;
    Value numParts;
    Value parts;
};

const Value Triangle = doubles({110, 10, 190, 10, 150, 90, 110, 10});
const Value OnePart = indices(1, 0);

class DamagedShape : public testing::TestWithParam<Damage> {};

} // namespace

TEST_P(DamagedShape, IsLeftOutAndNamedWhileTheOthersAreDrawnAndHit) {
    SmallMap map;
    const Damage& damage = GetParam();
    const auto rows = map.database().openRecordset("SELECT * FROM PGN_TV WHERE NAME = 'Middle'");
    rows->Edit();
    rows->set("NUMVERT", damage.numVert);
    rows->set("VERTICES", damage.vertices);
    rows->set("NUMPARTS", damage.numParts);
    rows->set("PARTS", damage.parts);
    rows->Update();

    MapSurface surface;
    surface.setPixelSize({300, 100});
    surface.CentreMapOn(150, 50);
    surface.setMapScale(300);
    describeCalls(surface);
    surface.DrawMap();
    EXPECT_EQ(colourAt(surface, 50, 50), QColor(Qt::red));
    EXPECT_EQ(colourAt(surface, 150, 30), surface.style.sea);
    EXPECT_TRUE(areaAt(surface.drawn(), {50, 50}));
    EXPECT_FALSE(areaAt(surface.drawn(), {150, 30})) << "what is not drawn is not hit";
    const auto lines = map.installation.logLines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("Middle"), std::string::npos) << lines[0];
    EXPECT_NE(lines[0].find("PGN_TV"), std::string::npos) << lines[0];
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DamagedShape,
    testing::Values(Damage{"CountTooLarge", 2'000'000'000, Triangle, 1, OnePart},
                    Damage{"CountTooSmall", 3, Triangle, 1, OnePart},
                    Damage{"CountBelowZero", -4, Triangle, 1, OnePart},
                    Damage{"NoCount", Value(), Triangle, 1, OnePart},
                    Damage{"OddLength", 4, std::vector<std::byte>(63), 1, OnePart},
                    Damage{"NoNumber", 4, doubles({110, 10, NoNumber, 10, 150, 90, 110, 10}), 1, OnePart},
                    Damage{"Endless", 4, doubles({110, 10, 1e308, 10, 150, 90, 110, 10}), 1, OnePart},
                    Damage{"Empty", 0, Value(), 0, Value()}, Damage{"OneVertex", 1, doubles({150, 30}), 1, OnePart},
                    Damage{"MillionPartsCounted", 4, Triangle, 1'000'000, OnePart},
                    Damage{"MillionParts", 4, Triangle, 1'000'000, indices(1'000'000, 1)},
                    Damage{"PartBehindTheEnd", 4, Triangle, 2, indices(2, 1'000)},
                    Damage{"PartBelowZero", 4, Triangle, 2, indices(2, -1)}),
    [](const auto& row) { return row.param.name; });
