#include "tests/groups/shapes/Unions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

void setFirst(PolygonMerger& merger, const Shape& shape) {
    const EncodedShape encoded = encodeShape(shape);
    merger.Vertices1 = encoded.vertices;
    merger.NumParts1 = encoded.numParts;
    merger.Parts1 = encoded.parts;
}

void setSecond(PolygonMerger& merger, const Shape& shape) {
    const EncodedShape encoded = encodeShape(shape);
    merger.Vertices2 = encoded.vertices;
    merger.NumParts2 = encoded.numParts;
    merger.Parts2 = encoded.parts;
}

Shape unionOf(const PolygonMerger& merger) {
    if (merger.Vertices().isNull())
        return {};
    auto decoded =
        decodeShape(merger.NumVert(), merger.Vertices().asBytes(), merger.NumParts(), merger.Parts().asBytes());
    if (const auto* fault = std::get_if<ShapeFault>(&decoded)) {
        ADD_FAILURE() << "the union cannot be read: " << describe(*fault);
        return {};
    }
    return std::get<Shape>(decoded);
}

Shape united(const Shape& a, const Shape& b) {
    return unitedInTurn({a, b});
}

Shape unitedInTurn(const std::vector<Shape>& shapes) {
    PolygonMerger merger;
    setFirst(merger, shapes.front());
    for (std::size_t i = 1; i < shapes.size(); ++i) {
        setSecond(merger, shapes[i]);
        merger.Merge();
        merger.Vertices1 = merger.Vertices();
        merger.NumParts1 = merger.NumParts();
        merger.Parts1 = merger.Parts();
    }
    return unionOf(merger);
}

double areaOf(const Shape& shape) {
    double doubled = 0.0;
    for (const ShapeRing& ring : shape.rings)
        doubled += signedDoubleArea(ring);
    return doubled / 2.0;
}

double outlineLength(const Shape& shape) {
    double length = 0.0;
    for (const ShapeRing& ring : shape.rings) {
        for (std::size_t i = 0; i + 1 < ring.size(); ++i)
            length += std::hypot(ring[i + 1].x - ring[i].x, ring[i + 1].y - ring[i].y);
    }
    return length;
}

std::size_t outerRings(const Shape& shape) {
    return static_cast<std::size_t>(std::count_if(shape.rings.begin(), shape.rings.end(),
                                                  [](const ShapeRing& ring) { return signedDoubleArea(ring) > 0; }));
}

std::size_t holes(const Shape& shape) {
    return shape.rings.size() - outerRings(shape);
}

double thinnestHole(const Shape& shape) {
    double thinnest = std::numeric_limits<double>::infinity();
    for (const ShapeRing& ring : shape.rings) {
        const double doubleArea = signedDoubleArea(ring);
        if (doubleArea <= 0)
            thinnest = std::min(thinnest, -doubleArea / outlineLength({{ring}}));
    }
    return thinnest;
}

bool covers(const Shape& shape, ShapePoint point) {
    bool inside = false;
    for (const ShapeRing& ring : shape.rings) {
        for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
            const ShapePoint& a = ring[i];
            const ShapePoint& b = ring[i + 1];
            if ((a.y > point.y) != (b.y > point.y) && point.x < a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x))
                inside = !inside;
        }
    }
    return inside;
}
