#pragma once

#include "sample/geography/Coast.h"
#include "sample/geography/Sites.h"
#include "sample/geography/Voronoi.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sample {

/// The land cut into faces, each a cell of the tessellation as far as it lies on one ring of the coast (or one of the
/// pieces into which the coast cuts it). The land abroad is not cut: each of its rings is one face.
///
/// Half-edges come in pairs, i and i ^ 1, which run in opposite directions between the same two vertices. Each has its
/// face at its left, and `next` is the half-edge that follows round that face anticlockwise.
struct FaceMesh {
    static constexpr int sea = -1;
    static constexpr int noSite = -1;

    struct HalfEdge {
        int from = 0;
        int next = 0;
        int face = sea;
    };

    struct Face {
        int ring = 0;      ///< of the coast
        int site = noSite; ///< none where the coast alone surrounds the face
        int halfEdge = 0;  ///< any one of it
        double area = 0;
        MapPoint centre;
    };

    std::vector<MapPoint> vertices;
    std::vector<HalfEdge> halfEdges;
    std::vector<Face> faces;

    static int twin(int halfEdge) { return halfEdge ^ 1; }
    int target(int halfEdge) const { return halfEdges[static_cast<std::size_t>(twin(halfEdge))].from; }
    int faceAcross(int halfEdge) const { return halfEdges[static_cast<std::size_t>(twin(halfEdge))].face; }
    /// The closed outline of a face, anticlockwise.
    std::vector<MapPoint> outline(int face) const;
};

FaceMesh makeFaceMesh(const Coast& coast, const Voronoi& voronoi, std::span<const Site> sites, std::uint64_t seed);

} // namespace sample
