#include "sample/geography/Labels.h"

#include "sample/geography/PlaneGeometry.h"

#include <algorithm>

namespace sample {

namespace {

/// The first outer ring, which is the largest, with its holes.
std::span<const Ring> largestPart(std::span<const Ring> rings) {
    const auto next =
        std::find_if(rings.begin() + 1, rings.end(), [](const Ring& ring) { return signedArea(ring.vertices) > 0; });
    return {rings.begin(), next};
}

MapPoint firstPoint(const Geos& geos, const GEOSGeometry* geometry) {
    MapPoint point;
    const GEOSCoordSequence* sequence = GEOSGeom_getCoordSeq_r(geos.handle(), geometry);
    GEOSCoordSeq_getXY_r(geos.handle(), sequence, 0, &point.x, &point.y);
    return point;
}

} // namespace

MapPoint labelPoint(const Geos& geos, std::span<const Ring> rings) {
    constexpr double toleranceShare = 0.02; // of the part's width if it were a square; finer cannot be seen
    const std::span<const Ring> part = largestPart(rings);
    const Geos::Geometry polygon = geos.polygon(part);
    const double tolerance = toleranceShare * std::sqrt(signedArea(part.front().vertices));
    // A line from the middle of the circle to its rim.
    const Geos::Geometry radius = geos.own(GEOSMaximumInscribedCircle_r(geos.handle(), polygon.get(), tolerance));
    return firstPoint(geos, radius.get());
}

} // namespace sample
