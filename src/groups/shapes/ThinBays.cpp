#include "groups/shapes/ThinBays.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <tuple>
#include <vector>

namespace {

constexpr double ShortestBay = 4.0;           ///< length of its shore, in widths; less is a dent in the coast
constexpr std::ptrdiff_t MostNeighbours = 64; ///< of a vertex; more of them are a coast in great detail
constexpr std::size_t FewestVertices = 3;     ///< of a closed ring without an area

double cross(const ShapePoint& a, const ShapePoint& b) {
    return a.x * b.y - a.y * b.x;
}

struct Pair {
    std::size_t from;
    std::size_t to; ///< later in the ring
};

/// Pairs of vertices of a closed ring that may be less than `width` apart, found in strips of that width.
std::vector<Pair> nearPairs(const ShapeRing& ring, double width) {
    struct Place {
        double strip;
        double y;
        std::size_t vertex;
        bool operator<(const Place& other) const { return std::tie(strip, y) < std::tie(other.strip, other.y); }
    };
    std::vector<Place> places;
    for (std::size_t i = 0; i < ring.size(); ++i)
        places.push_back({std::floor(ring[i].x / width), ring[i].y, i});
    std::sort(places.begin(), places.end());

    std::vector<Pair> pairs;
    const auto collect = [&](const Place& place, auto from, double strip) {
        const auto last = places.end() - from > MostNeighbours ? from + MostNeighbours : places.end();
        for (; from != last && from->strip == strip && from->y < place.y + width; ++from)
            pairs.push_back({std::min(place.vertex, from->vertex), std::max(place.vertex, from->vertex)});
    };
    for (auto place = places.begin(); place != places.end(); ++place) {
        collect(*place, place + 1, place->strip);
        const Place lowest{place->strip + 1, place->y - width, 0};
        collect(*place, std::lower_bound(place, places.end(), lowest), lowest.strip);
    }
    return pairs;
}

/// A ring with the sums that tell the area and the length of any part of it.
class Shore {
public:
    explicit Shore(const ShapeRing& ring) : ring_(ring), doubleAreas_(ring.size()), lengths_(ring.size()) {
        for (std::size_t i = 1; i < ring.size(); ++i) {
            doubleAreas_[i] = doubleAreas_[i - 1] + cross(fromStart(i - 1), fromStart(i));
            lengths_[i] = lengths_[i - 1] + distance(i - 1, i);
        }
    }

    /// Whether the ring leaves the coast at `from` and comes back to it at `to` round a thin piece of water.
    bool isThinBay(const Pair& mouth, double width) const {
        const double shore = lengths_[mouth.to] - lengths_[mouth.from];
        return isThin(mouth, shore, doubleAreas_[mouth.to] - doubleAreas_[mouth.from] - chord(mouth), width);
    }

    /// The same for the way from `to` over the end of the ring to `from`.
    bool isThinBayOverTheEnd(const Pair& mouth, double width) const {
        const double shore = lengths_.back() - lengths_[mouth.to] + lengths_[mouth.from];
        return isThin(mouth, shore,
                      doubleAreas_.back() - doubleAreas_[mouth.to] + doubleAreas_[mouth.from] + chord(mouth), width);
    }

private:
    ShapePoint fromStart(std::size_t i) const { return {ring_[i].x - ring_[0].x, ring_[i].y - ring_[0].y}; }
    double chord(const Pair& mouth) const { return cross(fromStart(mouth.from), fromStart(mouth.to)); }
    double distance(std::size_t i, std::size_t j) const {
        return std::hypot(ring_[j].x - ring_[i].x, ring_[j].y - ring_[i].y);
    }
    bool isThin(const Pair& mouth, double shore, double doubleArea, double width) const {
        const double across = distance(mouth.from, mouth.to);
        return across < width && shore > ShortestBay * width && doubleArea < 0.0 &&
               -doubleArea < width * (shore + across);
    }

    const ShapeRing& ring_;
    std::vector<double> doubleAreas_; ///< from the first vertex to this one and back
    std::vector<double> lengths_;     ///< from the first vertex to this one
};

ShapeRing begunAt(ShapeRing ring, std::size_t vertex) {
    ring.pop_back();
    std::rotate(ring.begin(), ring.begin() + static_cast<std::ptrdiff_t>(vertex), ring.end());
    ring.push_back(ring.front());
    return ring;
}

/// The ring with one vertex at the mouth of each bay that leads to the other; bays within bays go with them.
ShapeRing withoutBays(const ShapeRing& ring, const std::vector<Pair>& bays) {
    std::vector<std::size_t> next(ring.size());
    std::iota(next.begin(), next.end(), std::size_t{1});
    for (const Pair& bay : bays)
        next[bay.from] = std::max(next[bay.from], bay.to);
    ShapeRing filled;
    for (std::size_t i = 0; i < ring.size(); i = next[i])
        filled.push_back(ring[i]);
    return filled;
}

enum class Turn { Allowed, Done };

ShapeRing fillBays(const ShapeRing& ring, double width, Turn turn) {
    const Shore shore(ring);
    std::vector<Pair> bays;
    for (const Pair& mouth : nearPairs(ring, width)) {
        // A bay in which the ring begins is a bay like any other once the ring begins at its mouth.
        if (turn == Turn::Allowed && shore.isThinBayOverTheEnd(mouth, width))
            return fillBays(begunAt(ring, mouth.to), width, Turn::Done);
        if (shore.isThinBay(mouth, width))
            bays.push_back(mouth);
    }
    if (bays.empty())
        return ring;
    ShapeRing filled = withoutBays(ring, bays);
    return filled.size() > FewestVertices ? filled : ring;
}

} // namespace

ShapeRing withoutThinBays(const ShapeRing& ring, double width) {
    return fillBays(ring, width, Turn::Allowed);
}
