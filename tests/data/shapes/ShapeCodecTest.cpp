#include "data/shapes/ShapeCodec.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

const ShapeRing OuterSquare{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}};
const ShapeRing Hole{{4, 4}, {4, 6}, {6, 6}, {6, 4}, {4, 4}};
const ShapeRing FarIsland{{100.5, -3.25}, {101, -3.25}, {101, -2}, {100.5, -3.25}};

std::vector<std::byte> bytesOf(std::initializer_list<int> values) {
    std::vector<std::byte> bytes;
    for (int value : values)
        bytes.push_back(static_cast<std::byte>(value));
    return bytes;
}

std::variant<Shape, ShapeFault> decode(const EncodedShape& encoded) {
    return decodeShape(encoded.numVert, encoded.vertices, encoded.numParts, encoded.parts);
}

void setDouble(std::vector<std::byte>& bytes, std::size_t index, double value) {
    std::memcpy(bytes.data() + index * sizeof value, &value, sizeof value);
}

void setIndex(std::vector<std::byte>& bytes, std::size_t index, std::int32_t value) {
    std::memcpy(bytes.data() + index * sizeof value, &value, sizeof value);
}

} // namespace

TEST(ShapeCodec, WritesTheBytesThatOtherProgramsRead) {
    const EncodedShape encoded = encodeShape({{{{1, 2}, {3, 2}, {3, 5}}}});

    EXPECT_EQ(encoded.numVert, 4) << "the closing point is added";
    EXPECT_EQ(encoded.numParts, 1);
    EXPECT_EQ(encoded.parts, bytesOf({0, 0, 0, 0}));
    ASSERT_EQ(encoded.vertices.size(), 64u);
    const std::vector<std::byte> firstPoint(encoded.vertices.begin(), encoded.vertices.begin() + 16);
    EXPECT_EQ(firstPoint, bytesOf({0, 0, 0, 0, 0, 0, 0xF0, 0x3F, 0, 0, 0, 0, 0, 0, 0, 0x40}));
    EXPECT_EQ(encoded.bounds, (ShapeBounds{1, 2, 3, 5}));
    EXPECT_EQ(encoded.centerX, 2.0);
    EXPECT_EQ(encoded.centerY, 3.5);
}

TEST(ShapeCodec, RingIndicesAreLittleEndianIntegers) {
    ShapeRing circle;
    for (int i = 0; i < 299; ++i)
        circle.push_back({std::cos(i * 0.02), std::sin(i * 0.02)});
    const EncodedShape encoded = encodeShape({{circle, FarIsland}});

    EXPECT_EQ(encoded.parts, bytesOf({0, 0, 0, 0, 0x2C, 1, 0, 0})) << "300 points stand before the island";
}

TEST(ShapeCodec, ReadsBackWhatItWrote) {
    const Shape shape{{OuterSquare, Hole, FarIsland}};

    const auto decoded = decode(encodeShape(shape));

    ASSERT_TRUE(std::holds_alternative<Shape>(decoded));
    EXPECT_EQ(std::get<Shape>(decoded), shape);
    EXPECT_GT(signedDoubleArea(shape.rings[0]), 0) << "outer rings run anticlockwise";
    EXPECT_LT(signedDoubleArea(shape.rings[1]), 0) << "holes run clockwise";
}

TEST(ShapeCodec, ClosesAnOpenRingOnReading) {
    EncodedShape encoded = encodeShape({{OuterSquare}});
    encoded.vertices.resize(4 * 16);
    encoded.numVert = 4;

    const auto decoded = decode(encoded);

    ASSERT_TRUE(std::holds_alternative<Shape>(decoded));
    EXPECT_EQ(std::get<Shape>(decoded).rings.front(), OuterSquare);
}

TEST(ShapeCodec, RefusesToWriteWhatItCouldNotRead) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(encodeShape({}), std::invalid_argument);
    EXPECT_THROW(encodeShape({{{}}}), std::invalid_argument);
    EXPECT_THROW(encodeShape({{{{0, 0}, {1, 1}, {0, 0}}}}), std::invalid_argument);
    EXPECT_THROW(encodeShape({{{{0, 0}, {1, nan}, {1, 1}}}}), std::invalid_argument);
}

struct Damage {
    std::string name;
    void (*apply)(EncodedShape&);
    ShapeFault expected;
};

class DamagedShape : public testing::TestWithParam<Damage> {};

TEST_P(DamagedShape, IsRefusedWithItsReason) {
    EncodedShape encoded = encodeShape({{OuterSquare, Hole}});
    GetParam().apply(encoded);

    const auto decoded = decode(encoded);

    ASSERT_TRUE(std::holds_alternative<ShapeFault>(decoded));
    EXPECT_EQ(std::get<ShapeFault>(decoded), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Damages, DamagedShape,
    testing::Values(
        Damage{"VertexCountTooLarge", [](EncodedShape& s) { s.numVert = 1000000000; }, ShapeFault::VertexCount},
        Damage{"VertexCountTooSmall", [](EncodedShape& s) { s.numVert = 9; }, ShapeFault::VertexCount},
        Damage{"VertexCountNegative", [](EncodedShape& s) { s.numVert = -10; }, ShapeFault::VertexCount},
        Damage{"VerticesCutInsideANumber", [](EncodedShape& s) { s.vertices.pop_back(); }, ShapeFault::VertexCount},
        Damage{"VerticesCutBehindAnX",
               [](EncodedShape& s) {
                   s.vertices.resize(s.vertices.size() - 8);
                   s.numVert = 9;
               },
               ShapeFault::VertexCount},
        Damage{"NothingAtAll", [](EncodedShape& s) { s = {}; }, ShapeFault::Empty},
        Damage{"NoRings",
               [](EncodedShape& s) {
                   s.parts.clear();
                   s.numParts = 0;
               },
               ShapeFault::Empty},
        Damage{"PartCountTooLarge", [](EncodedShape& s) { s.numParts = 2000000000; }, ShapeFault::PartCount},
        Damage{"PartsCut", [](EncodedShape& s) { s.parts.pop_back(); }, ShapeFault::PartCount},
        Damage{"FirstPartNotZero", [](EncodedShape& s) { setIndex(s.parts, 0, 1); }, ShapeFault::PartOrder},
        Damage{"PartBehindTheVertices", [](EncodedShape& s) { setIndex(s.parts, 1, 10); }, ShapeFault::PartOrder},
        Damage{"PartNegative", [](EncodedShape& s) { setIndex(s.parts, 1, -5); }, ShapeFault::PartOrder},
        Damage{"PartsEqual", [](EncodedShape& s) { setIndex(s.parts, 1, 0); }, ShapeFault::PartOrder},
        Damage{"RingOfOneVertex", [](EncodedShape& s) { setIndex(s.parts, 1, 9); }, ShapeFault::RingTooShort},
        Damage{"OneVertex",
               [](EncodedShape& s) {
                   s.vertices.resize(16);
                   s.numVert = 1;
                   s.parts.resize(4);
                   s.numParts = 1;
               },
               ShapeFault::RingTooShort},
        Damage{"NotANumber",
               [](EncodedShape& s) { setDouble(s.vertices, 3, std::numeric_limits<double>::quiet_NaN()); },
               ShapeFault::BadCoordinate},
        Damage{"Infinite", [](EncodedShape& s) { setDouble(s.vertices, 12, -std::numeric_limits<double>::infinity()); },
               ShapeFault::BadCoordinate},
        Damage{"FartherThanAnyMap", [](EncodedShape& s) { setDouble(s.vertices, 2, 1e300); },
               ShapeFault::BadCoordinate}),
    [](const auto& row) { return row.param.name; });

TEST(ShapeCodec, TellsTheWayOfATinyRingFarFromZero) {
    const double tiny = 1.0 / 131072; // exact at this distance
    const ShapeRing ring{{60000, 90000}, {60000 + tiny, 90000}, {60000, 90000 + tiny}, {60000, 90000}};
    EXPECT_DOUBLE_EQ(signedDoubleArea(ring), tiny * tiny);
    EXPECT_DOUBLE_EQ(signedDoubleArea({ring.rbegin(), ring.rend()}), -tiny * tiny);
    EXPECT_EQ(signedDoubleArea({}), 0);
}
