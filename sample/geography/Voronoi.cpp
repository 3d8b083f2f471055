#include "sample/geography/Voronoi.h"

#include "sample/geography/Geos.h"
#include "sample/geography/PlaneGeometry.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace sample {

namespace {

using Triangle = std::array<int, 3>; ///< sites, anticlockwise

/// Finds a site again by its exact place.
class SiteNumbers {
public:
    explicit SiteNumbers(std::span<const MapPoint> sites) {
        for (std::size_t i = 0; i < sites.size(); ++i)
            order_.push_back({{sites[i].x, sites[i].y}, static_cast<int>(i)});
        std::sort(order_.begin(), order_.end());
        for (std::size_t i = 1; i < order_.size(); ++i)
            if (order_[i].first == order_[i - 1].first)
                throw std::runtime_error("two sites stand at the same place");
    }

    int at(MapPoint place) const {
        return std::lower_bound(order_.begin(), order_.end(), Entry{{place.x, place.y}, 0})->second;
    }

private:
    using Entry = std::pair<std::pair<double, double>, int>;
    std::vector<Entry> order_;
};

std::vector<Triangle> delaunay(std::span<const MapPoint> sites) {
    const Geos geos;
    const Geos::Geometry points = geos.lineString(sites);
    const Geos::Geometry mesh = geos.own(GEOSDelaunayTriangulation_r(geos.handle(), points.get(), 0, 0));
    const SiteNumbers numbers(sites);

    std::vector<Triangle> triangles;
    const int count = GEOSGetNumGeometries_r(geos.handle(), mesh.get());
    for (int i = 0; i < count; ++i) {
        const GEOSGeometry* ring =
            GEOSGetExteriorRing_r(geos.handle(), GEOSGetGeometryN_r(geos.handle(), mesh.get(), i));
        std::array<MapPoint, 4> corners;
        GEOSCoordSeq_copyToBuffer_r(geos.handle(), GEOSGeom_getCoordSeq_r(geos.handle(), ring), &corners[0].x, 0, 0);
        Triangle triangle{numbers.at(corners[0]), numbers.at(corners[1]), numbers.at(corners[2])};
        if (cross(corners[1] - corners[0], corners[2] - corners[0]) < 0)
            std::swap(triangle[1], triangle[2]);
        triangles.push_back(triangle);
    }
    // The library does not promise an order.
    std::sort(triangles.begin(), triangles.end());
    return triangles;
}

MapPoint circumcentre(MapPoint a, MapPoint b, MapPoint c) {
    const MapPoint u = b - a;
    const MapPoint v = c - a;
    const double d = 2 * cross(u, v);
    const double uu = dot(u, u);
    const double vv = dot(v, v);
    return a + MapPoint{(v.y * uu - u.y * vv) / d, (u.x * vv - v.x * uu) / d};
}

} // namespace

Voronoi makeVoronoi(std::span<const MapPoint> sites) {
    Voronoi result;
    struct Side {
        int low, high, triangle;
        bool forward; ///< the triangle runs from low to high
    };
    std::vector<Side> sides;
    for (const Triangle& t : delaunay(sites)) {
        const auto corner = [&](int i) { return sites[static_cast<std::size_t>(t[static_cast<std::size_t>(i)])]; };
        const int number = static_cast<int>(result.vertices.size());
        result.vertices.push_back(circumcentre(corner(0), corner(1), corner(2)));
        for (std::size_t i = 0; i < 3; ++i) {
            const int a = t[i];
            const int b = t[(i + 1) % 3];
            sides.push_back({std::min(a, b), std::max(a, b), number, a < b});
        }
    }
    std::sort(sides.begin(), sides.end(),
              [](const Side& l, const Side& r) { return std::pair(l.low, l.high) < std::pair(r.low, r.high); });
    // The triangle that runs from low to high lies at the left of that side, so that going from its centre to its
    // neighbour's leaves `high` at the left.
    for (std::size_t i = 0; i + 1 < sides.size(); ++i) {
        const Side& a = sides[i];
        const Side& b = sides[i + 1];
        if (a.low != b.low || a.high != b.high)
            continue;
        const Side& first = a.forward ? a : b;
        const Side& second = a.forward ? b : a;
        result.edges.push_back({first.triangle, second.triangle, a.high, a.low});
    }
    return result;
}

} // namespace sample
