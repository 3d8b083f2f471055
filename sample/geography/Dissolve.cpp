#include "sample/geography/Dissolve.h"

#include "sample/geography/PlaneGeometry.h"

#include <algorithm>
#include <cmath>

namespace sample {

namespace {

/// Vertices are given on a grid of two centimetres. Its numbers are exact in a double, and so are sums of areas.
MapPoint snapped(MapPoint p) {
    constexpr double perUnit = 512;
    return {std::round(p.x * perUnit) / perUnit, std::round(p.y * perUnit) / perUnit};
}

class Dissolver {
public:
    Dissolver(const FaceMesh& mesh, std::span<const int> labels, int count)
        : mesh_(mesh), labels_(labels), rings_(static_cast<std::size_t>(count)), depth_(mesh.vertices.size(), -1) {}

    std::vector<std::vector<Ring>> run() {
        std::vector<bool> done(mesh_.halfEdges.size(), false);
        for (std::size_t start = 0; start < mesh_.halfEdges.size(); ++start) {
            if (done[start] || !isOutline(static_cast<int>(start)))
                continue;
            std::vector<int> loop;
            int h = static_cast<int>(start);
            do {
                done[static_cast<std::size_t>(h)] = true;
                loop.push_back(mesh_.halfEdges[static_cast<std::size_t>(h)].from);
                h = nextOnOutline(h);
            } while (h != static_cast<int>(start));
            addLoop(loop, labelOf(mesh_.halfEdges[start].face));
        }
        for (std::vector<Ring>& rings : rings_)
            rings = outersWithHoles(std::move(rings));
        return std::move(rings_);
    }

private:
    int labelOf(int face) const { return face == FaceMesh::sea ? -1 : labels_[static_cast<std::size_t>(face)]; }

    bool isOutline(int h) const {
        const int face = mesh_.halfEdges[static_cast<std::size_t>(h)].face;
        return face != FaceMesh::sea && labelOf(face) != labelOf(mesh_.faceAcross(h));
    }

    /// Turns round the end of the half-edge through the faces of the same label.
    int nextOnOutline(int h) const {
        int next = mesh_.halfEdges[static_cast<std::size_t>(h)].next;
        while (!isOutline(next))
            next = mesh_.halfEdges[static_cast<std::size_t>(FaceMesh::twin(next))].next;
        return next;
    }

    /// A loop that comes back to one of its vertices is several rings that touch there.
    void addLoop(const std::vector<int>& loop, int label) {
        std::vector<int> open;
        for (int v : loop) {
            int& depth = depth_[static_cast<std::size_t>(v)];
            if (depth >= 0) {
                const auto begin = open.begin() + depth;
                addRing({begin, open.end()}, label);
                std::for_each(begin + 1, open.end(), [this](int u) { depth_[static_cast<std::size_t>(u)] = -1; });
                open.erase(begin + 1, open.end());
                continue;
            }
            depth = static_cast<int>(open.size());
            open.push_back(v);
        }
        for (int v : open)
            depth_[static_cast<std::size_t>(v)] = -1;
        addRing(open, label);
    }

    void addRing(const std::vector<int>& vertices, int label) {
        Ring ring;
        for (int v : vertices) {
            const MapPoint place = snapped(mesh_.vertices[static_cast<std::size_t>(v)]);
            if (ring.vertices.empty() || place != ring.vertices.back())
                ring.vertices.push_back(place);
        }
        if (ring.vertices.front() != ring.vertices.back())
            ring.vertices.push_back(ring.vertices.front());
        if (ring.vertices.size() >= 4 && signedArea(ring.vertices) != 0)
            rings_[static_cast<std::size_t>(label)].push_back(std::move(ring));
    }

    static std::vector<Ring> outersWithHoles(std::vector<Ring> rings) {
        struct Outer {
            double area;
            std::vector<Ring> rings;
        };
        std::vector<Outer> outers;
        for (Ring& ring : rings)
            if (const double area = signedArea(ring.vertices); area > 0)
                outers.push_back({area, {std::move(ring)}});
        std::stable_sort(outers.begin(), outers.end(), [](const Outer& l, const Outer& r) { return l.area > r.area; });
        for (Ring& hole : rings) {
            if (hole.vertices.empty()) // an outer ring, moved away
                continue;
            // The smallest outer ring that holds it; a vertex may lie on that ring, the middle of an edge hardly does.
            const MapPoint probe = (hole.vertices[0] + hole.vertices[1]) * 0.5;
            const auto holder = std::find_if(outers.rbegin(), outers.rend(), [&](const Outer& outer) {
                return ringHolds(outer.rings.front().vertices, probe);
            });
            if (holder != outers.rend())
                holder->rings.push_back(std::move(hole));
        }
        std::vector<Ring> ordered;
        for (Outer& outer : outers)
            std::move(outer.rings.begin(), outer.rings.end(), std::back_inserter(ordered));
        return ordered;
    }

    const FaceMesh& mesh_;
    std::span<const int> labels_;
    std::vector<std::vector<Ring>> rings_;
    std::vector<int> depth_; ///< per vertex its place in the loop being split, -1 when it is not in it
};

} // namespace

std::vector<std::vector<Ring>> dissolve(const FaceMesh& mesh, std::span<const int> faceLabels, int labels) {
    return Dissolver(mesh, faceLabels, labels).run();
}

} // namespace sample
