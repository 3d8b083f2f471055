#pragma once

#include "data/shapes/Geos.h"
#include "data/types/Value.h"

#include <cstdint>

/// Forms the union of two polygons as the shape tables hold them. Neighbours lose the edges that they share, areas that
/// do not touch stay separate parts, islands and holes stay. The result may be fed back as the first polygon and Merge
/// called again. Map units. One thread at a time.
class PolygonMerger {
public:
    /// The first polygon: VERTICES, NUMPARTS (0 where it is null) and PARTS. Without ring indices the vertices are one
    /// ring.
    Value Vertices1;
    std::int32_t NumParts1 = 0;
    Value Parts1;
    /// The second polygon.
    Value Vertices2;
    std::int32_t NumParts2 = 0;
    Value Parts2;

    /// Forms the union. A polygon that is damaged or encloses nothing is left out: the result is then the other one,
    /// or empty, and RuntimeError says what is wrong. Where the union itself fails the result is the first polygon.
    void Merge();

    /// The union. Vertices and Parts are null while there is none.
    Value Vertices() const;
    std::int32_t NumVert() const { return union_.numVert; }
    double BoundLowX() const { return union_.bounds.lowX; }
    double BoundLowY() const { return union_.bounds.lowY; }
    double BoundUppX() const { return union_.bounds.upX; }
    double BoundUppY() const { return union_.bounds.upY; }
    /// A point on the largest part.
    double CenterX() const { return union_.centerX; }
    double CenterY() const { return union_.centerY; }
    std::int32_t NumParts() const { return union_.numParts; }
    Value Parts() const;

private:
    void unite(const Geos& geos, const GEOSGeometry* first, const GEOSGeometry* second);

    EncodedShape union_;
};
