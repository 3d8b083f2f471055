#include "sample/geography/NoisyLine.h"

#include "sample/geography/PlaneGeometry.h"
#include "sample/geography/SeededRandom.h"

#include <algorithm>

namespace sample {

namespace {

constexpr double decay = 0.56; // of the displacement from one halving to the next; a half would be a smooth curve
constexpr int mostHalvings = 5;

/// Displacements at 0, 1/n .. 1 of the way, n a power of two: the middle of each stretch is moved by a random share.
std::vector<double> fractal(std::size_t n, double amplitude, SeededRandom& random) {
    std::vector<double> height(n + 1, 0.0);
    for (std::size_t stride = n; stride > 1; stride /= 2, amplitude *= decay)
        for (std::size_t i = 0; i < n; i += stride)
            height[i + stride / 2] = (height[i] + height[i + stride]) / 2 + amplitude * random.between(-1, 1);
    return height;
}

} // namespace

std::vector<MapPoint> unevenPoints(MapPoint from, MapPoint to, const Unevenness& unevenness, std::uint64_t seed) {
    const MapPoint way = to - from;
    const double length = distance(from, to);
    int halvings = 0;
    while (halvings < mostHalvings && length / static_cast<double>(1 << halvings) > unevenness.stepLength)
        ++halvings;
    const std::size_t n = std::size_t{1} << halvings;
    if (n == 1)
        return {};

    SeededRandom random(seed);
    const std::vector<double> height = fractal(n, unevenness.roughness * length, random);
    const MapPoint normal = MapPoint{-way.y, way.x} * (1 / length);
    std::vector<MapPoint> points;
    for (std::size_t i = 1; i < n; ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(n);
        const double room =
            std::min({t * length * unevenness.slopeFrom, (1 - t) * length * unevenness.slopeTo, unevenness.reach});
        points.push_back(from + way * t + normal * std::clamp(height[i], -room, room));
    }
    return points;
}

double tangentAt(MapPoint apex, MapPoint one, MapPoint other) {
    const double along = dot(one - apex, other - apex);
    const double across = std::abs(cross(one - apex, other - apex));
    return along <= 0 ? std::numeric_limits<double>::infinity() : across / along;
}

} // namespace sample
