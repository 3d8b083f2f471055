#include "SharedGeography.h"
#include "sample/geography/Geos.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <set>

using namespace sample;

namespace {

using Edge = std::array<double, 4>; // from x, y, to x, y

std::vector<Edge> sortedEdges(const std::vector<Area>& areas) {
    std::vector<Edge> edges;
    for (const Area& area : areas)
        for (const Ring& ring : area.rings)
            for (std::size_t i = 0; i + 1 < ring.vertices.size(); ++i)
                edges.push_back(
                    {ring.vertices[i].x, ring.vertices[i].y, ring.vertices[i + 1].x, ring.vertices[i + 1].y});
    std::sort(edges.begin(), edges.end());
    return edges;
}

Edge reversed(const Edge& edge) {
    return {edge[2], edge[3], edge[0], edge[1]};
}

/// The edges that no neighbour shares: the coast.
std::vector<Edge> coastOf(const std::vector<Edge>& edges) {
    std::vector<Edge> coast;
    for (const Edge& edge : edges)
        if (!std::binary_search(edges.begin(), edges.end(), reversed(edge)))
            coast.push_back(edge);
    return coast;
}

double areaOf(const std::vector<Area>& areas) {
    double sum = 0;
    for (const Area& area : areas)
        for (const Ring& ring : area.rings)
            sum += signedArea(ring.vertices);
    return sum;
}

} // namespace

TEST(Shapes, RingsAreClosedAndOriented) {
    for (const Boundary& boundary : boundaries(sharedGeography())) {
        for (const Area& area : boundary.areas) {
            SCOPED_TRACE(boundary.name + ": " + area.name);
            ASSERT_FALSE(area.rings.empty());
            const double largest = signedArea(area.rings.front().vertices);
            EXPECT_GT(largest, 0);
            const Ring* outer = nullptr;
            for (const Ring& ring : area.rings) {
                ASSERT_GE(ring.vertices.size(), 4u);
                EXPECT_EQ(ring.vertices.front(), ring.vertices.back());
                EXPECT_EQ(std::adjacent_find(ring.vertices.begin(), ring.vertices.end()), ring.vertices.end());
                EXPECT_LE(signedArea(ring.vertices), largest);
                if (signedArea(ring.vertices) > 0) {
                    outer = &ring;
                } else { // a vertex of the hole may lie on the outer ring
                    EXPECT_TRUE(ringHolds(outer->vertices, (ring.vertices[0] + ring.vertices[1]) * 0.5));
                }
            }
        }
    }
}

TEST(Shapes, PartsAreValidPolygonsAndLabelsStandInTheLargest) {
    const sample::Geos geos;
    for (const Boundary& boundary : boundaries(sharedGeography())) {
        for (const Area& area : boundary.areas) {
            for (auto begin = area.rings.begin(); begin != area.rings.end();) {
                const auto end = std::find_if(begin + 1, area.rings.end(),
                                              [](const Ring& ring) { return signedArea(ring.vertices) > 0; });
                const sample::Geos::Geometry part = geos.polygon({begin, end});
                EXPECT_EQ(GEOSisValid_r(geos.handle(), part.get()), 1) << boundary.name << ": " << area.name;
                if (begin == area.rings.begin()) {
                    EXPECT_TRUE(ringHolds(begin->vertices, area.label)) << boundary.name << ": " << area.name;
                    EXPECT_TRUE(holds(area, area.label)) << boundary.name << ": " << area.name;
                }
                begin = end;
            }
        }
    }
}

TEST(Shapes, EveryBoundaryTilesTheSameLandExactly) {
    const std::vector<Area>& districts = sharedGeography().postcodeDistricts;
    const std::vector<Edge> coast = coastOf(sortedEdges(districts));
    const double land = areaOf(districts);
    // The United Kingdom 244 thousand square kilometres, the Republic 70, the islands one.
    EXPECT_NEAR(land / 10000, 315e3, 3e3);
    EXPECT_GT(coast.size(), 20000u);
    for (const Boundary& boundary : boundaries(sharedGeography())) {
        SCOPED_TRACE(boundary.name);
        const std::vector<Edge> edges = sortedEdges(boundary.areas);
        EXPECT_EQ(std::adjacent_find(edges.begin(), edges.end()), edges.end()) << "two areas have the same edge";
        EXPECT_TRUE(coastOf(edges) == coast) << "there are gaps within the land";
        EXPECT_EQ(areaOf(boundary.areas), land);
    }
}

TEST(Shapes, LargerAreasAreUnionsOfSmallerOnes) {
    const Geography& geography = sharedGeography();
    const auto isWithin = [](const std::vector<Area>& large, const std::vector<Area>& small) {
        const std::vector<Edge> inner = sortedEdges(large);
        const std::vector<Edge> all = sortedEdges(small);
        return std::includes(all.begin(), all.end(), inner.begin(), inner.end());
    };
    EXPECT_TRUE(isWithin(geography.tvRegions, geography.postcodeDistricts));
    EXPECT_TRUE(isWithin(geography.csgs, geography.exchangeAreas));
    EXPECT_TRUE(isWithin(geography.borders, geography.postcodeDistricts));
    EXPECT_TRUE(isWithin(geography.borders, geography.exchangeAreas));
    EXPECT_FALSE(isWithin(geography.exchangeAreas, geography.postcodeDistricts));
}

TEST(Shapes, HaveTheSizesOfARealCountry) {
    const Geography& geography = sharedGeography();
    EXPECT_NEAR(static_cast<double>(geography.postcodeDistricts.size()), 2800, 100);
    EXPECT_GT(geography.exchangeAreas.size(), 1500u);
    EXPECT_GT(geography.csgs.size(), 300u);
    EXPECT_EQ(geography.tvRegions.size(), 14u);
    const std::size_t vertices = sortedEdges(geography.postcodeDistricts).size();
    EXPECT_GT(vertices, 250000u);
    EXPECT_LT(vertices, 500000u);
    std::size_t bracketed = 0;
    for (const Boundary& boundary : boundaries(geography)) {
        SCOPED_TRACE(boundary.name);
        std::set<std::string> names;
        for (const Area& area : boundary.areas) {
            names.insert(area.name);
            EXPECT_EQ(area.name.find('\''), std::string::npos) << area.name;
            bracketed += area.name.ends_with(")") ? 1u : 0u;
        }
        EXPECT_EQ(names.size(), boundary.areas.size());
        EXPECT_EQ(boundary.areas.back().name, "Republic Of Ireland");
    }
    EXPECT_GT(bracketed, 5u);
}
