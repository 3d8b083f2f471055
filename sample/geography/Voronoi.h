#pragma once

#include "sample/geography/Geography.h"

#include <span>
#include <vector>

namespace sample {

/// The Voronoi diagram of some sites: its edges between its vertices, each with a site at its left and its right.
/// The open edges round the outside are left out.
struct Voronoi {
    struct Edge {
        int from = 0;
        int to = 0;
        int leftSite = 0;
        int rightSite = 0;
    };

    std::vector<MapPoint> vertices;
    std::vector<Edge> edges;
};

/// The sites must differ from one another; throws std::runtime_error where they do not.
Voronoi makeVoronoi(std::span<const MapPoint> sites);

} // namespace sample
