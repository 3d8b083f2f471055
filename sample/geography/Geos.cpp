#include "sample/geography/Geos.h"

#include <stdexcept>
#include <vector>

namespace sample {

namespace {

GEOSCoordSequence* coordinates(GEOSContextHandle_t handle, std::span<const MapPoint> points) {
    static_assert(sizeof(MapPoint) == 2 * sizeof(double), "the library reads x, y, x, y, ...");
    return GEOSCoordSeq_copyFromBuffer_r(handle, &points.data()->x, static_cast<unsigned int>(points.size()), 0, 0);
}

} // namespace

Geos::Geos() : handle_(GEOS_init_r()) {
    GEOSContext_setErrorMessageHandler_r(
        handle_, [](const char* message, void* self) { static_cast<Geos*>(self)->complaint_ = message; }, this);
}

Geos::~Geos() {
    GEOS_finish_r(handle_);
}

Geos::Geometry Geos::own(GEOSGeometry* result) const {
    if (!result)
        throw std::runtime_error("geometry: " + complaint_);
    return Geometry(result, Deleter{handle_});
}

Geos::Geometry Geos::lineString(std::span<const MapPoint> points) const {
    return own(GEOSGeom_createLineString_r(handle_, coordinates(handle_, points)));
}

GEOSGeometry* Geos::linearRing(const Ring& ring) const {
    return own(GEOSGeom_createLinearRing_r(handle_, coordinates(handle_, ring.vertices))).release();
}

Geos::Geometry Geos::polygon(std::span<const Ring> rings) const {
    std::vector<GEOSGeometry*> holes;
    for (const Ring& hole : rings.subspan(1))
        holes.push_back(linearRing(hole));
    return own(GEOSGeom_createPolygon_r(handle_, linearRing(rings.front()), holes.data(),
                                        static_cast<unsigned int>(holes.size())));
}

} // namespace sample
