#include "groups/shapes/ThinBays.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace {

constexpr double ShortestBay = 4.0;     ///< length of its shore, in widths; less is a dent in the coast
constexpr std::size_t CrowdedCell = 64; ///< vertices; more of them are a coast in great detail

double cross(const ShapePoint& a, const ShapePoint& b) {
    return a.x * b.y - a.y * b.x;
}

/// The vertices of a ring by the cells of a grid.
class NearVertices {
public:
    NearVertices(const ShapeRing& ring, double cell) : ring_(ring), cell_(cell) {
        for (std::size_t i = 0; i < ring.size(); ++i)
            cells_[key(column(ring[i].x), column(ring[i].y))].push_back(i);
    }

    /// Calls `visit` with the vertices that may be less than a cell away.
    template<typename Visit>
    void visitNear(std::size_t vertex, Visit visit) const {
        for (int right = -1; right <= 1; ++right) {
            for (int up = -1; up <= 1; ++up) {
                const auto cell = cells_.find(key(column(ring_[vertex].x) + right, column(ring_[vertex].y) + up));
                if (cell != cells_.end() && cell->second.size() <= CrowdedCell)
                    std::for_each(cell->second.begin(), cell->second.end(), visit);
            }
        }
    }

private:
    std::int64_t column(double coordinate) const { return static_cast<std::int64_t>(std::floor(coordinate / cell_)); }
    static std::uint64_t key(std::int64_t column, std::int64_t row) {
        return (static_cast<std::uint64_t>(column) << 32U) ^ (static_cast<std::uint64_t>(row) & 0xFFFFFFFFU);
    }

    const ShapeRing& ring_;
    double cell_;
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> cells_;
};

/// A ring with the sums that tell the area and the length of any part of it.
class Shore {
public:
    explicit Shore(const ShapeRing& ring) : ring_(ring), doubleAreas_(ring.size()), lengths_(ring.size()) {
        for (std::size_t i = 1; i < ring.size(); ++i) {
            doubleAreas_[i] = doubleAreas_[i - 1] + cross(fromStart(i - 1), fromStart(i));
            lengths_[i] = lengths_[i - 1] + distance(i - 1, i);
        }
    }

    double distance(std::size_t i, std::size_t j) const {
        return std::hypot(ring_[j].x - ring_[i].x, ring_[j].y - ring_[i].y);
    }

    /// Whether the ring leaves the coast at `from` and comes back to it at `to` round a thin piece of water.
    bool isThinBay(std::size_t from, std::size_t to, double width) const {
        const double mouth = distance(from, to);
        const double shore = lengths_[to] - lengths_[from];
        const double doubleArea = doubleAreas_[to] - doubleAreas_[from] + cross(fromStart(to), fromStart(from));
        return mouth < width && shore > ShortestBay * width && doubleArea < 0.0 &&
               -doubleArea < width * (shore + mouth);
    }

private:
    ShapePoint fromStart(std::size_t i) const { return {ring_[i].x - ring_[0].x, ring_[i].y - ring_[0].y}; }

    const ShapeRing& ring_;
    std::vector<double> doubleAreas_; ///< from the first vertex to this one and back
    std::vector<double> lengths_;     ///< from the first vertex to this one
};

/// The bays that do not go round the first vertex.
ShapeRing fillBays(const ShapeRing& ring, double width) {
    const Shore shore(ring);
    const NearVertices vertices(ring, width);
    ShapeRing filled;
    for (std::size_t i = 0; i < ring.size();) {
        filled.push_back(ring[i]);
        std::size_t next = i + 1;
        vertices.visitNear(i, [&](std::size_t j) {
            if (j > next && shore.isThinBay(i, j, width))
                next = j;
        });
        i = next;
    }
    return filled;
}

} // namespace

ShapeRing withoutThinBays(const ShapeRing& ring, double width) {
    ShapeRing filled = fillBays(ring, width);
    if (filled.size() < 4)
        return ring;
    // Once more from the other side, for a bay round the first vertex.
    ShapeRing turned = filled;
    turned.pop_back();
    std::rotate(turned.begin(), turned.begin() + static_cast<std::ptrdiff_t>(turned.size() / 2), turned.end());
    turned.push_back(turned.front());
    ShapeRing twice = fillBays(turned, width);
    return twice.size() == turned.size() || twice.size() < 4 ? filled : twice;
}
