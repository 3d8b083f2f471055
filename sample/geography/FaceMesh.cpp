#include "sample/geography/FaceMesh.h"

#include "sample/geography/NoisyLine.h"
#include "sample/geography/PlaneGeometry.h"
#include "sample/geography/SeededRandom.h"

#include <algorithm>
#include <stdexcept>

namespace sample {

namespace {

/// The line between two cells, without its ends. It stays within the triangles that the edge spans with either site
/// (which are mirror images), and these do not overlap: so no two lines of the tessellation ever cross.
std::vector<MapPoint> cellLine(MapPoint from, MapPoint to, const Site& left, const Site& right, std::uint64_t seed) {
    constexpr double roughness = 0.24;
    constexpr double usedRoom = 0.85;     // short of the sites themselves, lest lines meet in spikes
    constexpr double stepsPerSpacing = 5; // a vertex every fifth of a cell
    constexpr double shortestStep = 8;    // but not closer than eighty metres
    const double step = std::max(shortestStep, std::min(left.spacing, right.spacing) / stepsPerSpacing);
    return unevenPoints(from, to,
                        {.roughness = roughness,
                         .stepLength = step,
                         .slopeFrom = usedRoom * tangentAt(from, to, left.place),
                         .slopeTo = usedRoom * tangentAt(to, from, left.place)},
                        seed);
}

/// What lies at the two sides of an edge before the faces are known.
struct Sides {
    int leftRing, rightRing;
    int leftSite, rightSite;
};

class MeshBuilder {
public:
    MeshBuilder(const Coast& coast, const Voronoi& voronoi, std::span<const Site> sites, std::uint64_t seed)
        : coast_(coast), voronoi_(voronoi), sites_(sites), seed_(seed),
          voronoiVertex_(voronoi.vertices.size(), noVertex), cuts_(coast.segments().size()) {
        mesh_.vertices.assign(coast.vertices().begin(), coast.vertices().end());
    }

    FaceMesh build() {
        for (const Voronoi::Edge& edge : voronoi_.edges)
            addLine(edge);
        addCoast();
        linkAroundVertices();
        traceFaces();
        return std::move(mesh_);
    }

private:
    static constexpr int noVertex = -1;

    struct Cut {
        double t;
        int vertex;
    };

    int newVertex(MapPoint place) {
        mesh_.vertices.push_back(place);
        return static_cast<int>(mesh_.vertices.size()) - 1;
    }

    int vertexOf(int voronoiVertex) {
        int& vertex = voronoiVertex_[static_cast<std::size_t>(voronoiVertex)];
        if (vertex == noVertex)
            vertex = newVertex(voronoi_.vertices[static_cast<std::size_t>(voronoiVertex)]);
        return vertex;
    }

    bool isHome(int ring) const { return ring != Coast::sea && !coast_.isAbroad(ring); }

    void addEdge(int from, int to, const Sides& sides) {
        mesh_.halfEdges.push_back({from, 0, FaceMesh::sea});
        mesh_.halfEdges.push_back({to, 0, FaceMesh::sea});
        ring_.push_back(sides.leftRing);
        ring_.push_back(sides.rightRing);
        site_.push_back(sides.leftSite);
        site_.push_back(sides.rightSite);
    }

    /// Adds those pieces of the line between two cells that lie at home.
    void addLine(const Voronoi::Edge& edge) {
        const Site& left = sites_[static_cast<std::size_t>(edge.leftSite)];
        const Site& right = sites_[static_cast<std::size_t>(edge.rightSite)];
        const MapPoint from = voronoi_.vertices[static_cast<std::size_t>(edge.from)];
        const MapPoint to = voronoi_.vertices[static_cast<std::size_t>(edge.to)];
        std::vector<MapPoint> path = cellLine(from, to, left, right, mixAll(seed_, edge.leftSite, edge.rightSite));
        path.push_back(to);

        int ring = coast_.ringAt(from);
        MapPoint place = from;
        int vertex = isHome(ring) ? vertexOf(edge.from) : noVertex;
        for (std::size_t i = 0; i < path.size(); ++i) {
            const std::vector<CoastCrossing> crossings = coast_.crossings(place, path[i]);
            const std::vector<int> cuts = cutCoast(place, path[i], crossings);
            for (std::size_t k = 0; k < cuts.size(); ++k) {
                if (isHome(ring) && cuts[k] != vertex)
                    addEdge(vertex, cuts[k], {ring, ring, edge.leftSite, edge.rightSite});
                ring = crossings[k].ring;
                vertex = cuts[k];
            }
            place = path[i];
            if (!isHome(ring))
                continue;
            const int end = i + 1 == path.size() ? vertexOf(edge.to) : newVertex(place);
            addEdge(vertex, end, {ring, ring, edge.leftSite, edge.rightSite});
            vertex = end;
        }
    }

    bool hasEnd(int segment, int vertex) const {
        const Coast::Segment& s = coast_.segments()[static_cast<std::size_t>(segment)];
        return s.from == vertex || s.to == vertex;
    }

    /// The end of the segment that is as good as at the place, or `noVertex`.
    int endCloseTo(MapPoint place, int segment) const {
        constexpr double close = 0.05;
        const Coast::Segment& s = coast_.segments()[static_cast<std::size_t>(segment)];
        for (const int end : {s.from, s.to})
            if (distance(mesh_.vertices[static_cast<std::size_t>(end)], place) < close)
                return end;
        return noVertex;
    }

    /// The vertices where a straight line crosses the coast. Close to a vertex of the coast it is that vertex itself: a
    /// piece of coast shorter than the grid of the finished shapes would make them cross themselves. A line that cuts
    /// off such a corner then goes through the corner with both its crossings.
    std::vector<int> cutCoast(MapPoint from, MapPoint to, const std::vector<CoastCrossing>& crossings) {
        std::vector<int> cuts;
        for (const CoastCrossing& crossing : crossings)
            cuts.push_back(endCloseTo(from + (to - from) * crossing.t, crossing.segment));
        for (std::size_t i = 1; i < cuts.size(); ++i) {
            if (cuts[i] == noVertex && hasEnd(crossings[i].segment, cuts[i - 1]))
                cuts[i] = cuts[i - 1];
            else if (cuts[i - 1] == noVertex && hasEnd(crossings[i - 1].segment, cuts[i]))
                cuts[i - 1] = cuts[i];
        }
        for (std::size_t i = 0; i < cuts.size(); ++i) {
            if (cuts[i] != noVertex)
                continue;
            const std::size_t segment = static_cast<std::size_t>(crossings[i].segment);
            const MapPoint place = from + (to - from) * crossings[i].t;
            const auto start = static_cast<std::size_t>(coast_.segments()[segment].from);
            cuts[i] = newVertex(place);
            cuts_[segment].push_back({distance(mesh_.vertices[start], place), cuts[i]});
        }
        return cuts;
    }

    void addCoast() {
        for (std::size_t i = 0; i < cuts_.size(); ++i) {
            const Coast::Segment& s = coast_.segments()[i];
            std::vector<Cut>& cuts = cuts_[i];
            std::sort(cuts.begin(), cuts.end(), [](const Cut& l, const Cut& r) { return l.t < r.t; });
            int from = s.from;
            for (const Cut& cut : cuts) {
                addEdge(from, cut.vertex, {s.left, s.right, FaceMesh::noSite, FaceMesh::noSite});
                from = cut.vertex;
            }
            addEdge(from, s.to, {s.left, s.right, FaceMesh::noSite, FaceMesh::noSite});
        }
    }

    MapPoint direction(int halfEdge) const {
        const std::size_t from = static_cast<std::size_t>(mesh_.halfEdges[static_cast<std::size_t>(halfEdge)].from);
        return mesh_.vertices[static_cast<std::size_t>(mesh_.target(halfEdge))] - mesh_.vertices[from];
    }

    /// The face at the left goes on with the first way out that is met turning clockwise from the way back.
    void linkAroundVertices() {
        std::vector<std::vector<int>> leaving(mesh_.vertices.size());
        for (std::size_t h = 0; h < mesh_.halfEdges.size(); ++h)
            leaving[static_cast<std::size_t>(mesh_.halfEdges[h].from)].push_back(static_cast<int>(h));
        for (std::vector<int>& out : leaving) {
            if (out.size() > 2)
                std::sort(out.begin(), out.end(), [this](int l, int r) {
                    const MapPoint a = direction(l);
                    const MapPoint b = direction(r);
                    return std::atan2(a.y, a.x) < std::atan2(b.y, b.x);
                });
            for (std::size_t i = 0; i < out.size(); ++i) {
                const int clockwise = out[(i + out.size() - 1) % out.size()];
                mesh_.halfEdges[static_cast<std::size_t>(FaceMesh::twin(out[i]))].next = clockwise;
            }
        }
    }

    void traceFaces() {
        std::vector<bool> done(mesh_.halfEdges.size(), false);
        for (std::size_t start = 0; start < mesh_.halfEdges.size(); ++start) {
            if (done[start])
                continue;
            FaceMesh::Face face{ring_[start], FaceMesh::noSite, static_cast<int>(start), 0, {}};
            const int number = face.ring == Coast::sea ? FaceMesh::sea : static_cast<int>(mesh_.faces.size());
            std::size_t h = start;
            do {
                done[h] = true;
                mesh_.halfEdges[h].face = number;
                if (ring_[h] != face.ring)
                    throw std::runtime_error("the coast and the lines between the cells do not fit together");
                face.site = std::max(face.site, site_[h]);
                h = static_cast<std::size_t>(mesh_.halfEdges[h].next);
            } while (h != start);
            if (number == FaceMesh::sea)
                continue;
            mesh_.faces.push_back(face);
            const std::vector<MapPoint> outline = mesh_.outline(number);
            mesh_.faces.back().area = signedArea(outline);
            mesh_.faces.back().centre = centroid(outline);
        }
    }

    const Coast& coast_;
    const Voronoi& voronoi_;
    std::span<const Site> sites_;
    std::uint64_t seed_;
    FaceMesh mesh_;
    std::vector<int> voronoiVertex_;     ///< its vertex in the mesh, while it has one
    std::vector<std::vector<Cut>> cuts_; ///< per segment of the coast
    std::vector<int> ring_;              ///< per half-edge, at its left
    std::vector<int> site_;              ///< per half-edge, at its left
};

} // namespace

std::vector<MapPoint> FaceMesh::outline(int face) const {
    std::vector<MapPoint> points;
    const int start = faces[static_cast<std::size_t>(face)].halfEdge;
    int h = start;
    do {
        points.push_back(vertices[static_cast<std::size_t>(halfEdges[static_cast<std::size_t>(h)].from)]);
        h = halfEdges[static_cast<std::size_t>(h)].next;
    } while (h != start);
    points.push_back(points.front());
    return points;
}

FaceMesh makeFaceMesh(const Coast& coast, const Voronoi& voronoi, std::span<const Site> sites, std::uint64_t seed) {
    return MeshBuilder(coast, voronoi, sites, seed).build();
}

} // namespace sample
