#include "core/RuntimeError.h"
#include "groups/shapes/PolygonMerger.h"
#include "tests/groups/shapes/Unions.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

/// What Merge complains of; empty where it does not.
std::string complaintOf(PolygonMerger& merger) {
    try {
        merger.Merge();
        return {};
    } catch (const RuntimeError& error) {
        return error.what();
    }
}

TEST(DamagedPolygons, WithoutRingIndicesTheVerticesAreOneRing) {
    for (const std::int32_t parts : {0, 1}) {
        PolygonMerger merger;
        setFirst(merger, square(0, 0, 10));
        setSecond(merger, square(10, 0, 10));
        merger.NumParts1 = merger.NumParts2 = parts;
        merger.Parts1 = merger.Parts2 = Value();
        EXPECT_EQ(complaintOf(merger), "");
        EXPECT_EQ(areaOf(unionOf(merger)), 200);
    }
}

TEST(DamagedPolygons, WithoutTheirNumberTheRingIndicesCountThemselves) {
    PolygonMerger merger;
    setFirst(merger, {{squareRing(0, 0, 10), squareRing(20, 0, 10)}});
    setSecond(merger, square(10, 0, 10));
    merger.NumParts1 = 0;
    EXPECT_EQ(complaintOf(merger), "");
    EXPECT_EQ(areaOf(unionOf(merger)), 300);
    EXPECT_EQ(merger.NumParts(), 1);
}

struct Damage {
    std::string name;
    void (*apply)(PolygonMerger&);
    const char* reason;
};

void PrintTo(const Damage& damage, std::ostream* out) {
    *out << damage.name;
}

class DamagedPolygon : public testing::TestWithParam<Damage> {};

TEST_P(DamagedPolygon, IsLeftOutAndTheOtherOneIsTheResult) {
    PolygonMerger merger;
    setFirst(merger, {{squareRing(0, 0, 10), squareRing(20, 0, 10)}});
    setSecond(merger, square(10, 0, 10));
    GetParam().apply(merger);
    EXPECT_EQ(complaintOf(merger), "The first polygon is left out: " + std::string(GetParam().reason) + ".");
    EXPECT_EQ(unionOf(merger), square(10, 0, 10));
    EXPECT_EQ(merger.CenterX(), 15);

    setSecond(merger, square(20, 0, 10));
    EXPECT_NE(complaintOf(merger), "");
    merger.Vertices1 = merger.Vertices();
    merger.NumParts1 = merger.NumParts();
    merger.Parts1 = merger.Parts();
    setSecond(merger, square(30, 0, 10));
    EXPECT_EQ(complaintOf(merger), "") << "it stays usable";
    EXPECT_EQ(unionOf(merger), united(square(20, 0, 10), square(30, 0, 10)));
}

void setVertex(PolygonMerger& merger, ShapeRing ring) {
    Bytes bytes;
    const EncodedShape encoded = encodeShape({{std::move(ring)}});
    merger.Vertices1 = encoded.vertices;
    merger.NumParts1 = 1;
    merger.Parts1 = encoded.parts;
}

INSTANTIATE_TEST_SUITE_P(
    Damages, DamagedPolygon,
    testing::Values(
        Damage{"NoVertices", [](PolygonMerger& m) { m.Vertices1 = Value(); }, "it has no vertices"},
        Damage{"EmptyVertices", [](PolygonMerger& m) { m.Vertices1 = Bytes(); }, "it has no vertices"},
        Damage{"VerticesCut",
               [](PolygonMerger& m) {
                   Bytes cut = m.Vertices1.asBytes();
                   cut.pop_back();
                   m.Vertices1 = cut;
               },
               "its vertices do not fit its vertex count"},
        Damage{"TextForVertices", [](PolygonMerger& m) { m.Vertices1 = "square"; },
               "Type mismatch: binary data is needed here"},
        Damage{"TooManyParts", [](PolygonMerger& m) { m.NumParts1 = 3; }, "its ring indices do not fit its ring count"},
        Damage{"NegativeParts", [](PolygonMerger& m) { m.NumParts1 = -2; },
               "its ring indices do not fit its ring count"},
        Damage{"PartsLost", [](PolygonMerger& m) { m.Parts1 = Value(); }, "its ring indices do not fit its ring count"},
        Damage{"PartsPastTheVertices", [](PolygonMerger& m) { m.Parts1 = Bytes(8, std::byte{9}); },
               "its ring indices are out of range or out of order"},
        Damage{"AllOnOneLine",
               [](PolygonMerger& m) {
                   setVertex(m, {{0, 0}, {5, 5}, {9, 9}, {0, 0}});
               },
               "it encloses nothing"},
        Damage{"ThereAndBack",
               [](PolygonMerger& m) {
                   setVertex(m, {{0, 0}, {5, 0}, {5, 5}, {5, 0}, {0, 0}});
               },
               "it encloses nothing"},
        Damage{"OnePoint",
               [](PolygonMerger& m) {
                   setVertex(m, {{3, 3}, {3, 3}, {3, 3}, {3, 3}});
               },
               "it encloses nothing"}),
    [](const auto& one) { return one.param.name; });

TEST(DamagedPolygons, TwoOfThemMakeNoUnionAndBothAreNamed) {
    PolygonMerger merger;
    merger.Vertices1 = Bytes(5);
    EXPECT_EQ(complaintOf(merger), "The first polygon is left out: its vertices do not fit its vertex count. The "
                                   "second polygon is left out: it has no vertices.");
    EXPECT_EQ(merger.NumVert(), 0);
    EXPECT_EQ(merger.NumParts(), 0);
    EXPECT_TRUE(merger.Vertices().isNull());
    EXPECT_TRUE(merger.Parts().isNull());
}

} // namespace
