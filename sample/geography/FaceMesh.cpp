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
        : coast_(coast), voronoi_(voronoi), sites_(sites), seed_(seed), voronoiVertex_(voronoi.vertices.size(), -1),
          cuts_(coast.segments().size()) {
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
        if (vertex < 0)
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
        int vertex = isHome(ring) ? vertexOf(edge.from) : -1;
        for (std::size_t i = 0; i < path.size(); ++i) {
            for (const CoastCrossing& crossing : coast_.crossings(place, path[i])) {
                const int cut = cutCoast(place + (path[i] - place) * crossing.t, crossing.segment);
                if (isHome(ring))
                    addEdge(vertex, cut, {ring, ring, edge.leftSite, edge.rightSite});
                ring = crossing.ring;
                vertex = cut;
            }
            place = path[i];
            if (!isHome(ring))
                continue;
            const int end = i + 1 == path.size() ? vertexOf(edge.to) : newVertex(place);
            addEdge(vertex, end, {ring, ring, edge.leftSite, edge.rightSite});
            vertex = end;
        }
    }

    int cutCoast(MapPoint place, int segment) {
        const Coast::Segment& s = coast_.segments()[static_cast<std::size_t>(segment)];
        const MapPoint from = mesh_.vertices[static_cast<std::size_t>(s.from)];
        const int vertex = newVertex(place);
        cuts_[static_cast<std::size_t>(segment)].push_back({distance(from, place), vertex});
        return vertex;
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
    std::vector<int> voronoiVertex_;     ///< its vertex in the mesh, -1 while it has none
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
