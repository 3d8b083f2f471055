#include "sample/geography/NoisyLine.h"

#include "sample/geography/PlaneGeometry.h"
#include "sample/geography/SeededRandom.h"

#include <algorithm>
#include <limits>

namespace sample {

namespace {

constexpr double roughness = 0.24;    // displacement of the middle, as a share of the length
constexpr double decay = 0.56;        // from one halving to the next; a half would be a smooth curve
constexpr double safetyMargin = 0.85; // how much of the room between edge and site may be used
constexpr int mostHalvings = 5;

/// Tangent of the triangle's angle at `apex` between the edge and the site; no limit from a right angle on.
double slopeTowards(MapPoint apex, MapPoint otherEnd, MapPoint site) {
    const double along = dot(otherEnd - apex, site - apex);
    const double across = std::abs(cross(otherEnd - apex, site - apex));
    return along <= 0 ? std::numeric_limits<double>::infinity() : across / along;
}

/// Displacements at 0, 1/n .. 1 of the way, n a power of two: the middle of each stretch is moved by a random share.
std::vector<double> fractal(std::size_t n, double amplitude, SeededRandom& random) {
    std::vector<double> height(n + 1, 0.0);
    for (std::size_t stride = n; stride > 1; stride /= 2, amplitude *= decay)
        for (std::size_t i = 0; i < n; i += stride)
            height[i + stride / 2] = (height[i] + height[i + stride]) / 2 + amplitude * random.between(-1, 1);
    return height;
}

} // namespace

std::vector<MapPoint> noisyPoints(MapPoint from, MapPoint to, MapPoint site, double stepLength, std::uint64_t seed) {
    const MapPoint way = to - from;
    const double length = distance(from, to);
    int halvings = 0;
    while (halvings < mostHalvings && length / static_cast<double>(1 << halvings) > stepLength)
        ++halvings;
    const std::size_t n = std::size_t{1} << halvings;

    SeededRandom random(seed);
    const std::vector<double> height = fractal(n, roughness * length, random);
    const double slopeFrom = slopeTowards(from, to, site);
    const double slopeTo = slopeTowards(to, from, site);
    const MapPoint normal = MapPoint{-way.y, way.x} * (1 / std::max(length, 1e-9));

    std::vector<MapPoint> points;
    for (std::size_t i = 1; i < n; ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(n);
        const double room = safetyMargin * std::min(t * length * slopeFrom, (1 - t) * length * slopeTo);
        points.push_back(from + way * t + normal * std::clamp(height[i], -room, room));
    }
    return points;
}

} // namespace sample
