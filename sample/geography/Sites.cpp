#include "sample/geography/Sites.h"

#include "sample/geography/PlaneGeometry.h"
#include "sample/geography/SeededRandom.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numbers>

namespace sample {

namespace {

// Spacings in map units: 250 metres in the densest city, three kilometres on the widest moor.
constexpr double closest = 25;
constexpr double widest = 300;
constexpr double spacingPerCentreDistance = 0.36;

constexpr MapPoint mapLow{-20000, -11000};
constexpr double mapSize = 1400 * 100.0;

double spacingAt(MapPoint place, std::span<const MapPoint> centres) {
    // The third nearest centre, so that one village alone makes no dense spot.
    std::array<double, 3> nearest;
    nearest.fill(std::numeric_limits<double>::infinity());
    for (const MapPoint& centre : centres) {
        const double d = dot(centre - place, centre - place);
        if (d >= nearest[2])
            continue;
        nearest[2] = d;
        std::sort(nearest.begin(), nearest.end());
    }
    return std::clamp(spacingPerCentreDistance * std::sqrt(nearest[2]), closest, widest);
}

/// Keeps sites apart: buckets as wide as the widest spacing.
class Crowd {
public:
    Crowd() : buckets_(static_cast<std::size_t>(side) * side) {}

    bool hasRoom(const Site& site) const {
        const auto [column, row] = bucketOf(site.place);
        for (int y = row - 1; y <= row + 1; ++y)
            for (int x = column - 1; x <= column + 1; ++x)
                for (const MapPoint& other : buckets_[static_cast<std::size_t>(y * side + x)])
                    if (distance(other, site.place) < site.spacing)
                        return false;
        return true;
    }

    void add(MapPoint place) {
        const auto [column, row] = bucketOf(place);
        buckets_[static_cast<std::size_t>(row * side + column)].push_back(place);
    }

private:
    static constexpr int side = static_cast<int>(mapSize / widest) + 2;

    static std::pair<int, int> bucketOf(MapPoint place) {
        const auto index = [](double value) { return std::clamp(static_cast<int>(value / widest), 1, side - 2); };
        return {index(place.x - mapLow.x), index(place.y - mapLow.y)};
    }

    std::vector<std::vector<MapPoint>> buckets_;
};

/// At home, or in waters so close that the cell would otherwise take a piece of the shore.
bool isWanted(const Coast& coast, const Site& site) {
    if (coast.isHome(site.place))
        return true;
    constexpr int directions = 8;
    for (int i = 0; i < directions; ++i) {
        const double angle = 2 * std::numbers::pi * i / directions;
        if (coast.isHome(site.place + MapPoint{std::cos(angle), std::sin(angle)} * (1.5 * site.spacing)))
            return true;
    }
    return false;
}

/// Splits a square until its side fits the spacing there, then throws some candidates into it.
void addCandidates(MapPoint low, double size, const Coast& coast, std::span<const MapPoint> centres,
                   SeededRandom& random, std::vector<Site>& candidates) {
    constexpr int throwsPerSquare = 6;
    constexpr double margin = 1.5 * widest;
    if (!coast.mayTouchHome(low - MapPoint{margin, margin}, size + 2 * margin))
        return;
    const double spacing = spacingAt(low + MapPoint{size / 2, size / 2}, centres);
    if (size > spacing * 1.4) {
        for (const MapPoint corner : {MapPoint{0, 0}, MapPoint{1, 0}, MapPoint{0, 1}, MapPoint{1, 1}})
            addCandidates(low + corner * (size / 2), size / 2, coast, centres, random, candidates);
        return;
    }
    for (int i = 0; i < throwsPerSquare; ++i) {
        const double x = random.unit();
        const double y = random.unit();
        candidates.push_back({low + MapPoint{x, y} * size, spacing});
    }
}

void addFarSites(std::vector<Site>& sites) {
    constexpr int count = 48;
    const MapPoint middle = mapLow + MapPoint{mapSize / 2, mapSize / 2};
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * (i + 0.37) / count;
        sites.push_back({middle + MapPoint{std::cos(angle), std::sin(angle)} * mapSize, mapSize});
    }
}

} // namespace

std::vector<Site> scatterSites(const Coast& coast, std::span<const MapPoint> centres, std::uint64_t seed) {
    std::vector<Site> sites;
    Crowd crowd;
    for (const MapPoint& centre : centres) {
        sites.push_back({centre, spacingAt(centre, centres)});
        crowd.add(centre);
    }

    SeededRandom random(seed);
    std::vector<Site> candidates;
    addCandidates(mapLow, mapSize, coast, centres, random, candidates);
    for (std::size_t i = candidates.size(); i > 1; --i)
        std::swap(candidates[i - 1], candidates[random.below(i)]);
    for (const Site& candidate : candidates) {
        if (!crowd.hasRoom(candidate) || !isWanted(coast, candidate))
            continue;
        sites.push_back(candidate);
        crowd.add(candidate.place);
    }
    addFarSites(sites);
    return sites;
}

} // namespace sample
