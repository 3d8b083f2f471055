#pragma once

#include "sample/geography/Geography.h"

#include <cstdint>
#include <vector>

namespace sample {

/// Makes a natural line of the straight edge between two cells: the points between its ends, displaced by fractal
/// noise. The line stays between the edge and the two sites (it is a graph over the edge and lies below the triangles
/// that the sites span with it), so that no two lines of a Voronoi diagram ever cross.
/// `site` is either of the two sites; `seed` decides the shape.
std::vector<MapPoint> noisyPoints(MapPoint from, MapPoint to, MapPoint site, double stepLength, std::uint64_t seed);

} // namespace sample
