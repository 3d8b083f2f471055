#include "data/shapes/Geos.h"

#include "core/RuntimeError.h"

#include <utility>

namespace {

constexpr long internalError = 51;
constexpr char libraryFault = 2; ///< in place of a truth

unsigned int countOf(std::size_t size) {
    return static_cast<unsigned int>(size);
}

/// The bare pointers, for calls that take the geometries whether they succeed or not.
std::vector<GEOSGeometry*> releaseAll(std::vector<Geos::Geometry>& owned) {
    std::vector<GEOSGeometry*> bare;
    bare.reserve(owned.size());
    for (Geos::Geometry& geometry : owned)
        bare.push_back(geometry.release());
    return bare;
}

} // namespace

Geos::Geos() : handle_(GEOS_init_r()) {
    GEOSContext_setErrorMessageHandler_r(
        handle_, [](const char* message, void* self) { static_cast<Geos*>(self)->complaint_ = message; }, this);
}

Geos::~Geos() {
    GEOS_finish_r(handle_);
}

void Geos::fail() const {
    throw RuntimeError(internalError, "geometry: " + complaint_);
}

Geos::Geometry Geos::own(GEOSGeometry* result) const {
    if (!result)
        fail();
    return Geometry(result, Deleter{handle_});
}

bool Geos::truth(char result) const {
    if (result == libraryFault)
        fail();
    return result != 0;
}

Geos::Geometry Geos::point(ShapePoint at) const {
    return own(GEOSGeom_createPointFromXY_r(handle_, at.x, at.y));
}

Geos::Geometry Geos::linearRing(const ShapeRing& ring) const {
    static_assert(sizeof(ShapePoint) == 2 * sizeof(double), "the library reads x, y, x, y, ...");
    const double* xy = ring.empty() ? nullptr : &ring.front().x;
    return own(
        GEOSGeom_createLinearRing_r(handle_, GEOSCoordSeq_copyFromBuffer_r(handle_, xy, countOf(ring.size()), 0, 0)));
}

Geos::Geometry Geos::polygon(std::span<const ShapeRing> rings) const {
    Geometry outer = linearRing(rings.front());
    std::vector<Geometry> holes;
    for (const ShapeRing& hole : rings.subspan(1))
        holes.push_back(linearRing(hole));
    auto bareHoles = releaseAll(holes);
    return own(GEOSGeom_createPolygon_r(handle_, outer.release(), bareHoles.data(), countOf(bareHoles.size())));
}

Geos::Geometry Geos::collect(std::vector<Geometry> polygons) const {
    if (polygons.size() == 1)
        return std::move(polygons.front());
    auto bare = releaseAll(polygons);
    return own(GEOSGeom_createCollection_r(handle_, GEOS_MULTIPOLYGON, bare.data(), countOf(bare.size())));
}

ShapeRing Geos::ringOf(const GEOSGeometry* linearRing) const {
    const GEOSCoordSequence* points = GEOSGeom_getCoordSeq_r(handle_, linearRing);
    unsigned int count = 0;
    if (!points || !GEOSCoordSeq_getSize_r(handle_, points, &count))
        fail();
    ShapeRing ring(count);
    if (count > 0 && !GEOSCoordSeq_copyToBuffer_r(handle_, points, &ring.front().x, 0, 0))
        fail();
    return ring;
}

double Geos::area(const GEOSGeometry* geometry) const {
    double area = 0.0;
    if (!GEOSArea_r(handle_, geometry, &area))
        fail();
    return area;
}
