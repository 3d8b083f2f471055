#pragma once

#include "sample/geography/Geography.h"

#include <cmath>
#include <span>

namespace sample {

inline MapPoint operator+(MapPoint a, MapPoint b) {
    return {a.x + b.x, a.y + b.y};
}
inline MapPoint operator-(MapPoint a, MapPoint b) {
    return {a.x - b.x, a.y - b.y};
}
inline MapPoint operator*(MapPoint a, double f) {
    return {a.x * f, a.y * f};
}

inline double dot(MapPoint a, MapPoint b) {
    return a.x * b.x + a.y * b.y;
}
/// Positive when `b` points to the left of `a`.
inline double cross(MapPoint a, MapPoint b) {
    return a.x * b.y - a.y * b.x;
}
inline double distance(MapPoint a, MapPoint b) {
    return std::sqrt(dot(a - b, a - b));
}

/// From a point to the nearest place on the line between two others.
double distanceToLine(MapPoint point, MapPoint from, MapPoint to);

/// Area of a closed ring, square map units; positive when it runs anticlockwise. Taken about the first vertex, so that
/// the figures stay small.
double signedArea(std::span<const MapPoint> ring);

/// Centre of gravity of a closed ring.
MapPoint centroid(std::span<const MapPoint> ring);

/// Whether the closed ring holds the point; on the line itself the answer is either.
bool ringHolds(std::span<const MapPoint> ring, MapPoint point);

} // namespace sample
