#pragma once

#include "data/shapes/Geos.h"
#include "sample/geography/Geography.h"

#include <span>

namespace sample {

/// The geometry library, with points and rings of the sample's making. Its faults are std::runtime_error. One thread at
/// a time.
class Geos : public ::Geos {
public:
    Geometry lineString(std::span<const MapPoint> points) const;
    /// A polygon with one outer ring, and holes behind it.
    Geometry polygon(std::span<const Ring> rings) const;
};

} // namespace sample
