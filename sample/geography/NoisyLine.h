#pragma once

#include "sample/geography/Geography.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace sample {

/// How a straight line is made uneven.
struct Unevenness {
    double roughness = 0;  ///< displacement of the middle at most, as a share of the length
    double stepLength = 0; ///< vertices come about so close, map units
    // The room: the line may not rise above these slopes from its ends, nor further than `reach` from the straight.
    double slopeFrom = std::numeric_limits<double>::infinity();
    double slopeTo = std::numeric_limits<double>::infinity();
    double reach = std::numeric_limits<double>::infinity();
};

/// Makes a natural line of a straight one: the points between its ends, displaced by fractal noise whose shape `seed`
/// decides. Seen from the straight the line is a graph, so that it never crosses itself.
std::vector<MapPoint> unevenPoints(MapPoint from, MapPoint to, const Unevenness& unevenness, std::uint64_t seed);

/// Tangent of the angle at `apex` between the ways to the two others; infinite from a right angle on.
double tangentAt(MapPoint apex, MapPoint one, MapPoint other);

} // namespace sample
