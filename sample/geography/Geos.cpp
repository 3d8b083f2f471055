#include "sample/geography/Geos.h"

#include <vector>

namespace sample {

Geos::Geometry Geos::lineString(std::span<const MapPoint> points) const {
    static_assert(sizeof(MapPoint) == 2 * sizeof(double), "the library reads x, y, x, y, ...");
    const auto count = static_cast<unsigned int>(points.size());
    return own(
        GEOSGeom_createLineString_r(handle(), GEOSCoordSeq_copyFromBuffer_r(handle(), &points.data()->x, count, 0, 0)));
}

Geos::Geometry Geos::polygon(std::span<const Ring> rings) const {
    std::vector<ShapeRing> shapeRings;
    for (const Ring& ring : rings) {
        ShapeRing& points = shapeRings.emplace_back();
        for (const MapPoint& vertex : ring.vertices)
            points.push_back({vertex.x, vertex.y});
    }
    return ::Geos::polygon(shapeRings);
}

} // namespace sample
