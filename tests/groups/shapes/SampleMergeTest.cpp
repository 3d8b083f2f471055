#include "groups/shapes/ModData_Merge.h"
#include "sample/geography/Geography.h"
#include "tests/groups/shapes/GroupInstallation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

namespace {

Shape shapeOf(const sample::Area& area) {
    Shape shape;
    for (const sample::Ring& ring : area.rings) {
        ShapeRing& points = shape.rings.emplace_back();
        for (const sample::MapPoint& vertex : ring.vertices)
            points.push_back({vertex.x, vertex.y});
    }
    return shape;
}

/// The districts of each TV region, with real coasts and islands.
class SampleMerge : public testing::Test {
protected:
    static void SetUpTestSuite() { geography = new sample::Geography(sample::makeGeography(1)); }
    static void TearDownTestSuite() { delete geography; }

    static std::map<int, std::vector<Shape>> districtsByRegion() {
        std::map<int, int> regionOf;
        for (const sample::CallCode& code : geography->codes)
            regionOf[code.postcodeDistrict] = code.tvRegion;
        std::map<int, std::vector<Shape>> districts;
        for (const auto& [district, region] : regionOf)
            districts[region].push_back(shapeOf(geography->postcodeDistricts[static_cast<std::size_t>(district)]));
        return districts;
    }
    static Shape regionShape(int region) { return shapeOf(geography->tvRegions[static_cast<std::size_t>(region)]); }

    Shape merged(const std::vector<Shape>& shapes) {
        WorkspaceTransaction filling(*defaultWorkspace());
        gdbSystem->execute("DELETE FROM PGN_TEMP");
        for (std::size_t i = 0; i < shapes.size(); ++i)
            addPolygon(*gdbSystem, "PGN_TEMP", static_cast<std::int64_t>(i), "", shapes[i]);
        filling.commit();
        MergeGroupName = "Region";
        MergeStep = 0;
        ModData_Merge({});
        return storedShape("PGN_GROUPS", "GROUPNAME = 'Region'");
    }

    static const sample::Geography* geography;
    GroupInstallation installation;
};

const sample::Geography* SampleMerge::geography = nullptr;

double areaOfAll(const std::vector<Shape>& shapes) {
    double sum = 0;
    for (const Shape& shape : shapes)
        sum += areaOf(shape);
    return sum;
}

/// All vertices, in an order that does not depend on where rings begin.
std::vector<std::pair<double, double>> verticesOf(const Shape& shape) {
    std::vector<std::pair<double, double>> vertices;
    for (const ShapeRing& ring : shape.rings) {
        for (std::size_t i = 0; i + 1 < ring.size(); ++i)
            vertices.emplace_back(ring[i].x, ring[i].y);
    }
    std::sort(vertices.begin(), vertices.end());
    return vertices;
}

TEST_F(SampleMerge, TheDistrictsOfARegionMakeTheRegion) {
    const auto regions = districtsByRegion();
    ASSERT_EQ(regions.size(), 13U);
    for (const auto& [region, districts] : regions) {
        const std::string& name = geography->tvRegions[static_cast<std::size_t>(region)].name;
        const Shape expected = regionShape(region);
        const Shape made = merged(districts);
        EXPECT_EQ(outerRings(made), outerRings(expected)) << name;
        EXPECT_EQ(holes(made), holes(expected)) << name;
        EXPECT_NEAR(areaOf(made), areaOf(expected), 1e-9 * areaOf(expected)) << name;
        EXPECT_NEAR(areaOf(made), areaOfAll(districts), 1e-9 * areaOf(expected)) << name;
        EXPECT_EQ(verticesOf(made), verticesOf(expected)) << name;
    }
    EXPECT_EQ(installation.logLines(), Rows{});
}

/// The outlines as drawn by somebody else: each vertex of each district up to `error` off.
std::vector<Shape> redrawn(std::vector<Shape> districts, double error) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> offBy(-error, error);
    for (Shape& district : districts) {
        for (ShapeRing& ring : district.rings) {
            for (ShapePoint& point : ring)
                point = {point.x + offBy(random), point.y + offBy(random)};
            ring.back() = ring.front();
        }
    }
    return districts;
}

TEST_F(SampleMerge, OutlinesThatDoNotAgreeMakeTheRegionWithoutSlivers) {
    const auto regions = districtsByRegion();
    for (const double error : {1e-7, 0.01, 0.2}) {
        const auto& [region, districts] = *regions.begin();
        const Shape expected = regionShape(region);
        const Shape made = merged(redrawn(districts, error));
        EXPECT_EQ(holes(made), holes(expected)) << error;
        EXPECT_EQ(outerRings(made), outerRings(expected)) << error;
        EXPECT_GE(thinnestHole(made), 1.0) << error;
        EXPECT_NEAR(outlineLength(made), outlineLength(expected), 2e-3 * outlineLength(expected)) << error;
        EXPECT_NEAR(areaOf(made), areaOf(expected), (1e-9 + 2e-3 * error) * areaOf(expected)) << error;
    }
}

} // namespace
