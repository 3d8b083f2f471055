#pragma once

#include "sample/geography/FaceMesh.h"
#include "sample/geography/Nations.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sample {

/// Pieces of land and which of them lie side by side.
struct LandGraph {
    struct Piece {
        MapPoint centre;
        double spacing = 1; ///< the usual size of pieces there, map units
        Nation nation = Nation::England;
    };

    std::vector<Piece> pieces;
    std::vector<std::vector<int>> neighbours; ///< per piece, in rising order
};

LandGraph makeFaceGraph(const FaceMesh& mesh, std::span<const Site> sites, const Nations& nations);

/// The graph of the areas into which `labels` divide a graph. Area `i` stands at the piece `seeds[i]`.
LandGraph joinPieces(const LandGraph& graph, std::span<const int> labels, std::span<const int> seeds);

/// Lets the areas grow over the land, each from its seed, the piece `seeds[i]`, all at the same speed over uneven
/// ground; gives for each piece the number of its area. Areas hang together by land, do not leave their nation, and an
/// island without a seed goes whole to the nearest area. The Republic becomes an area of its own, number seeds.size().
/// No two seeds may be the same piece.
std::vector<int> growAreas(const LandGraph& graph, std::span<const int> seeds, std::uint64_t seed);

} // namespace sample
