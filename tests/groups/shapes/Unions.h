#pragma once

#include "groups/shapes/PolygonMerger.h"
#include "tests/support/ShapeRows.h"

#include <vector>

/// Puts a shape into one side of a merger.
void setFirst(PolygonMerger& merger, const Shape& shape);
void setSecond(PolygonMerger& merger, const Shape& shape);

/// The union that a merger holds; without rings where it holds none. Fails the test where it cannot be read back.
Shape unionOf(const PolygonMerger& merger);
Shape united(const Shape& a, const Shape& b);
/// The first with the second, the result with the third, and so on.
Shape unitedInTurn(const std::vector<Shape>& shapes);

/// Square map units: outer rings less holes, by the way that they run.
double areaOf(const Shape& shape);
/// Of all rings, in map units.
double outlineLength(const Shape& shape);
/// Rings that run anticlockwise, and clockwise.
std::size_t outerRings(const Shape& shape);
std::size_t holes(const Shape& shape);
/// Twice the area by the length of the outline; the thinnest hole of the shape, or infinity.
double thinnestHole(const Shape& shape);
/// Whether a point lies inside an odd number of rings.
bool covers(const Shape& shape, ShapePoint point);

inline Shape square(double x, double y, double side) {
    return {{squareRing(x, y, side)}};
}
inline Shape rectangle(double lowX, double lowY, double upX, double upY) {
    return {{{{lowX, lowY}, {upX, lowY}, {upX, upY}, {lowX, upY}, {lowX, lowY}}}};
}
