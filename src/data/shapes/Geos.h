#pragma once

#include "data/shapes/ShapeCodec.h"

#include <geos_c.h>
#include <memory>
#include <span>
#include <string>
#include <vector>

/// One context of the geometry library. What the library complains of becomes a RuntimeError. One thread at a time; it
/// must outlive the geometries made with it.
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
    /// The same for results that are truths.
    bool truth(char result) const;

    Geometry point(ShapePoint at) const;
    /// One outer ring, and holes behind it; each closed.
    Geometry polygon(std::span<const ShapeRing> rings) const;
    /// Takes the parts; a single one stays what it is.
    Geometry collect(std::vector<Geometry> polygons) const;

    ShapeRing ringOf(const GEOSGeometry* linearRing) const;
    double area(const GEOSGeometry* geometry) const; ///< square map units

private:
    [[noreturn]] void fail() const;
    Geometry linearRing(const ShapeRing& ring) const;

    GEOSContextHandle_t handle_;
    std::string complaint_;
};
