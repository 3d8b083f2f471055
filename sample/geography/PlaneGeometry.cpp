#include "sample/geography/PlaneGeometry.h"

#include <algorithm>

namespace sample {

double distanceToLine(MapPoint point, MapPoint from, MapPoint to) {
    const MapPoint way = to - from;
    const double squared = dot(way, way);
    const double t = squared == 0 ? 0 : std::clamp(dot(point - from, way) / squared, 0.0, 1.0);
    return distance(point, from + way * t);
}

double signedArea(std::span<const MapPoint> ring) {
    double twice = 0;
    for (std::size_t i = 1; i + 1 < ring.size(); ++i)
        twice += cross(ring[i] - ring[0], ring[i + 1] - ring[0]);
    return twice / 2;
}

MapPoint centroid(std::span<const MapPoint> ring) {
    double twice = 0;
    MapPoint sum;
    for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
        const MapPoint a = ring[i] - ring[0];
        const MapPoint b = ring[i + 1] - ring[0];
        const double c = cross(a, b);
        twice += c;
        sum = sum + (a + b) * c;
    }
    return twice == 0 ? ring[0] : ring[0] + sum * (1 / (3 * twice));
}

bool ringHolds(std::span<const MapPoint> ring, MapPoint point) {
    bool inside = false;
    for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
        const MapPoint a = ring[i];
        const MapPoint b = ring[i + 1];
        if ((a.y > point.y) != (b.y > point.y) && point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y))
            inside = !inside;
    }
    return inside;
}

} // namespace sample
