#pragma once

#include "sample/geography/Geography.h"

#include <geos_c.h>
#include <memory>
#include <span>
#include <string>

namespace sample {

/// One context of the geometry library. Its faults become std::runtime_error. One thread at a time.
class Geos {
public:
    Geos();
    ~Geos();
    Geos(const Geos&) = delete;
    Geos& operator=(const Geos&) = delete;

    struct Deleter {
        GEOSContextHandle_t handle = nullptr;
        void operator()(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(handle, geometry); }
    };
    using Geometry = std::unique_ptr<GEOSGeometry, Deleter>;

    GEOSContextHandle_t handle() const { return handle_; }

    /// Takes a result of the library; throws what it complained of when there is none.
    Geometry own(GEOSGeometry* result) const;

    Geometry lineString(std::span<const MapPoint> points) const;
    /// A polygon with one outer ring, and holes behind it.
    Geometry polygon(std::span<const Ring> rings) const;

private:
    GEOSGeometry* linearRing(const Ring& ring) const;

    GEOSContextHandle_t handle_;
    std::string complaint_;
};

} // namespace sample
