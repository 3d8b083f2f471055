#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

/// A corner of a polygon in map units (ten metres on the British National Grid, x to the east, y to the north).
struct ShapePoint {
    double x = 0.0;
    double y = 0.0;
    friend bool operator==(const ShapePoint&, const ShapePoint&) = default;
};

/// A closed line: its last point repeats its first.
using ShapeRing = std::vector<ShapePoint>;

/// A polygon of one or more rings. Outer rings run anticlockwise, holes clockwise; drawing does not depend on it.
struct Shape {
    std::vector<ShapeRing> rings;
    friend bool operator==(const Shape&, const Shape&) = default;
};

/// The smallest upright box round a shape, in map units.
struct ShapeBounds {
    double lowX = 0.0, lowY = 0.0, upX = 0.0, upY = 0.0;
    friend bool operator==(const ShapeBounds&, const ShapeBounds&) = default;
};

/// A shape as the polygon tables hold it.
struct EncodedShape {
    std::int32_t numVert = 0;        ///< NUMVERT: points of all rings, closing points included
    std::int32_t numParts = 0;       ///< NUMPARTS: rings
    std::vector<std::byte> vertices; ///< VERTICES: little-endian float64 pairs x, y of all rings, one behind the other
    std::vector<std::byte> parts;    ///< PARTS: little-endian int32, index of the first point of each ring
    ShapeBounds bounds;              ///< BOUNDLOWX, BOUNDLOWY, BOUNDUPPX, BOUNDUPPY
    double centerX = 0.0;            ///< CENTERX: middle of the bounds
    double centerY = 0.0;            ///< CENTERY
};

/// Writes a shape. Rings that are not closed get their closing point. Throws std::invalid_argument for a shape that
/// could not be read back: no ring, a ring of fewer than three corners, a coordinate that is no number on the map.
EncodedShape encodeShape(const Shape& shape);

/// What is wrong with the bytes of a shape.
enum class ShapeFault {
    Empty,        ///< no vertices or no rings
    VertexCount,  ///< VERTICES is not exactly NUMVERT points long
    PartCount,    ///< PARTS is not exactly NUMPARTS indices long
    PartOrder,    ///< the ring indices do not begin with 0, do not rise or reach past the vertices
    RingTooShort, ///< a ring encloses nothing
    BadCoordinate ///< a coordinate is not a number, or lies further out than any map
};

/// The fault in words, to stand behind the polygon's name in a message.
std::string_view describe(ShapeFault fault);

/// Reads a shape and checks all of it. Never reads past either span, whatever the counts say; never throws but for
/// memory.
std::variant<Shape, ShapeFault> decodeShape(std::int64_t numVert, std::span<const std::byte> vertices,
                                            std::int64_t numParts, std::span<const std::byte> parts);

/// The box round all points. Of an empty shape: a box of zeros.
ShapeBounds boundsOf(const Shape& shape);

/// Twice the area that a ring encloses, in square map units: positive where it runs anticlockwise.
double signedDoubleArea(const ShapeRing& ring);
