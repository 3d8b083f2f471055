#pragma once

#include "sample/geography/Coast.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sample {

/// The point round which one cell of the base tessellation lies.
struct Site {
    MapPoint place;
    double spacing = 0; ///< distance to be kept from the neighbours, map units: the size of the cell
};

/// Scatters the sites over the land and the waters close to it, densely where the centres are dense. The first sites
/// are the centres themselves, in their order, so that each centre has a cell of its own; then come the others; at the
/// end stand some far out at sea, which close the tessellation round the land.
std::vector<Site> scatterSites(const Coast& coast, std::span<const MapPoint> centres, std::uint64_t seed);

} // namespace sample
