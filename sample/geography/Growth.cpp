#include "sample/geography/Growth.h"

#include "sample/geography/PlaneGeometry.h"
#include "sample/geography/SeededRandom.h"

#include <algorithm>
#include <limits>
#include <queue>
#include <tuple>

namespace sample {

namespace {

constexpr int nobody = -1;

/// The time it takes from one piece to the next. Ground with many small pieces, a town, holds growth up, so that the
/// outskirts of a city do not swallow the villages round it; bumps of noise bend the lines between areas.
double costBetween(const LandGraph::Piece& a, const LandGraph::Piece& b, std::uint64_t seed) {
    const MapPoint middle = (a.centre + b.centre) * 0.5;
    const double spacing = (a.spacing + b.spacing) / 2;
    const double hills = planeNoise(seed, middle.x, middle.y, 4 * spacing);
    return distance(a.centre, b.centre) / std::sqrt(spacing) * (0.5 + hills);
}

class Growth {
public:
    Growth(const LandGraph& graph, std::span<const int> seeds, std::uint64_t seed)
        : graph_(graph), seeds_(seeds), seed_(seed), labels_(graph.pieces.size(), nobody) {}

    std::vector<int> run() {
        growOverLand();
        for (std::size_t piece = 0; piece < labels_.size(); ++piece)
            if (nationOf(piece) == Nation::RepublicOfIreland)
                labels_[piece] = static_cast<int>(seeds_.size());
        giveIslands();
        return std::move(labels_);
    }

private:
    Nation nationOf(std::size_t piece) const { return graph_.pieces[piece].nation; }

    void growOverLand() {
        using Step = std::tuple<double, int, int>; // time, piece, area
        std::priority_queue<Step, std::vector<Step>, std::greater<>> steps;
        for (std::size_t area = 0; area < seeds_.size(); ++area)
            steps.emplace(0.0, seeds_[area], static_cast<int>(area));
        while (!steps.empty()) {
            const auto [time, number, area] = steps.top();
            steps.pop();
            const auto piece = static_cast<std::size_t>(number);
            if (labels_[piece] != nobody)
                continue;
            labels_[piece] = area;
            for (int next : graph_.neighbours[piece]) {
                const auto neighbour = static_cast<std::size_t>(next);
                if (labels_[neighbour] == nobody && nationOf(neighbour) == nationOf(piece))
                    steps.emplace(time + costBetween(graph_.pieces[piece], graph_.pieces[neighbour], seed_), next,
                                  area);
            }
        }
    }

    /// The land that no area has reached, island by island.
    void giveIslands() {
        const std::vector<int> reached = labels_;
        for (std::size_t start = 0; start < labels_.size(); ++start) {
            if (labels_[start] != nobody)
                continue;
            std::vector<std::size_t> island{start};
            std::vector<bool> found(labels_.size(), false);
            found[start] = true;
            for (std::size_t i = 0; i < island.size(); ++i) {
                for (int next : graph_.neighbours[island[i]]) {
                    const auto neighbour = static_cast<std::size_t>(next);
                    if (found[neighbour] || labels_[neighbour] != nobody || nationOf(neighbour) != nationOf(start))
                        continue;
                    found[neighbour] = true;
                    island.push_back(neighbour);
                }
            }
            const int area = nearestArea(island, reached);
            for (std::size_t piece : island)
                labels_[piece] = area;
        }
    }

    int nearestArea(const std::vector<std::size_t>& island, const std::vector<int>& reached) const {
        double best = std::numeric_limits<double>::infinity();
        int area = 0;
        for (std::size_t other = 0; other < reached.size(); ++other) {
            if (reached[other] == nobody || nationOf(other) == Nation::RepublicOfIreland)
                continue;
            // Another nation only where its own has no area at all.
            const double handicap = nationOf(other) == nationOf(island.front()) ? 0 : 1e6;
            for (std::size_t piece : island) {
                const double d = handicap + distance(graph_.pieces[other].centre, graph_.pieces[piece].centre);
                if (d >= best)
                    continue;
                best = d;
                area = reached[other];
            }
        }
        return area;
    }

    const LandGraph& graph_;
    std::span<const int> seeds_;
    std::uint64_t seed_;
    std::vector<int> labels_;
};

void sortNeighbours(LandGraph& graph) {
    for (std::vector<int>& list : graph.neighbours) {
        std::sort(list.begin(), list.end());
        list.erase(std::unique(list.begin(), list.end()), list.end());
    }
}

} // namespace

LandGraph makeFaceGraph(const FaceMesh& mesh, std::span<const Site> sites, const Nations& nations) {
    LandGraph graph;
    for (const FaceMesh::Face& face : mesh.faces) {
        const double spacing =
            face.site == FaceMesh::noSite ? std::sqrt(face.area) : sites[static_cast<std::size_t>(face.site)].spacing;
        graph.pieces.push_back({face.centre, spacing, nations.at(face.ring, face.centre)});
    }
    graph.neighbours.resize(mesh.faces.size());
    for (std::size_t h = 0; h < mesh.halfEdges.size(); ++h) {
        const int face = mesh.halfEdges[h].face;
        const int across = mesh.faceAcross(static_cast<int>(h));
        if (face != FaceMesh::sea && across != FaceMesh::sea && face != across)
            graph.neighbours[static_cast<std::size_t>(face)].push_back(across);
    }
    sortNeighbours(graph);
    return graph;
}

LandGraph joinPieces(const LandGraph& graph, std::span<const int> labels, std::span<const int> seeds) {
    LandGraph joined;
    for (const int piece : seeds)
        joined.pieces.push_back(graph.pieces[static_cast<std::size_t>(piece)]);
    joined.neighbours.resize(seeds.size());
    const auto isArea = [&](int label) { return label < static_cast<int>(seeds.size()); };
    for (std::size_t piece = 0; piece < graph.pieces.size(); ++piece)
        for (const int next : graph.neighbours[piece])
            if (const int other = labels[static_cast<std::size_t>(next)];
                other != labels[piece] && isArea(other) && isArea(labels[piece]))
                joined.neighbours[static_cast<std::size_t>(labels[piece])].push_back(other);
    sortNeighbours(joined);
    return joined;
}

std::vector<int> growAreas(const LandGraph& graph, std::span<const int> seeds, std::uint64_t seed) {
    return Growth(graph, seeds, seed).run();
}

} // namespace sample
