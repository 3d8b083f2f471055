#include "data/shapes/ShapeCodec.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

constexpr std::size_t PointBytes = 2 * sizeof(double);
constexpr std::size_t IndexBytes = sizeof(std::int32_t);
constexpr std::size_t FewestCorners = 3;
// Ten million kilometres; anything beyond is damage, and would overflow once it is turned into pixels.
constexpr double FarthestCoordinate = 1e9;

template<typename Unsigned>
void putLittleEndian(std::vector<std::byte>& out, Unsigned bits) {
    for (std::size_t i = 0; i < sizeof(Unsigned); ++i)
        out.push_back(static_cast<std::byte>((bits >> (8 * i)) & 0xFFU));
}

template<typename Unsigned>
Unsigned littleEndian(std::span<const std::byte> bytes) {
    Unsigned bits = 0;
    for (std::size_t i = 0; i < sizeof(Unsigned); ++i)
        bits |= static_cast<Unsigned>(std::to_integer<Unsigned>(bytes[i]) << (8 * i));
    return bits;
}

ShapePoint pointAt(std::span<const std::byte> vertices, std::size_t index) {
    const auto bytes = vertices.subspan(index * PointBytes, PointBytes);
    return {std::bit_cast<double>(littleEndian<std::uint64_t>(bytes.first(sizeof(double)))),
            std::bit_cast<double>(littleEndian<std::uint64_t>(bytes.last(sizeof(double))))};
}

bool onAnyMap(const ShapePoint& point) {
    // A comparison with NaN is false, so NaN fails here as well.
    return std::abs(point.x) <= FarthestCoordinate && std::abs(point.y) <= FarthestCoordinate;
}

bool isClosed(const ShapeRing& ring) {
    return ring.size() > 1 && ring.front() == ring.back();
}

void close(ShapeRing& ring) {
    if (!ring.empty() && !isClosed(ring))
        ring.push_back(ring.front());
}

std::optional<ShapeFault> faultOf(const ShapeRing& closedRing) {
    if (closedRing.size() < FewestCorners + 1)
        return ShapeFault::RingTooShort;
    if (!std::all_of(closedRing.begin(), closedRing.end(), onAnyMap))
        return ShapeFault::BadCoordinate;
    return {};
}

bool countFits(std::int64_t count, std::size_t bytes, std::size_t bytesEach) {
    return count >= 0 && bytes % bytesEach == 0 && static_cast<std::uint64_t>(count) == bytes / bytesEach;
}

/// The first point of every ring, and behind them the number of all points; nothing where they do not rise from 0.
std::optional<std::vector<std::size_t>> ringStarts(std::span<const std::byte> parts, std::size_t pointCount) {
    std::vector<std::size_t> starts;
    for (std::size_t offset = 0; offset < parts.size(); offset += IndexBytes) {
        const auto start = std::bit_cast<std::int32_t>(littleEndian<std::uint32_t>(parts.subspan(offset, IndexBytes)));
        const bool rises = starts.empty() ? start == 0 : start > 0 && static_cast<std::size_t>(start) > starts.back();
        if (!rises || static_cast<std::size_t>(start) >= pointCount)
            return {};
        starts.push_back(static_cast<std::size_t>(start));
    }
    starts.push_back(pointCount);
    return starts;
}

} // namespace

EncodedShape encodeShape(const Shape& shape) {
    if (shape.rings.empty())
        throw std::invalid_argument("a shape without rings cannot be stored");
    EncodedShape encoded;
    std::size_t points = 0;
    for (ShapeRing ring : shape.rings) {
        close(ring);
        if (const auto fault = faultOf(ring))
            throw std::invalid_argument(std::string(describe(*fault)));
        putLittleEndian(encoded.parts, static_cast<std::uint32_t>(points));
        for (const ShapePoint& point : ring) {
            putLittleEndian(encoded.vertices, std::bit_cast<std::uint64_t>(point.x));
            putLittleEndian(encoded.vertices, std::bit_cast<std::uint64_t>(point.y));
        }
        points += ring.size();
        if (points > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
            throw std::invalid_argument("a shape has more vertices than its table can count");
    }
    encoded.numVert = static_cast<std::int32_t>(points);
    encoded.numParts = static_cast<std::int32_t>(shape.rings.size());
    encoded.bounds = boundsOf(shape);
    encoded.centerX = (encoded.bounds.lowX + encoded.bounds.upX) / 2.0;
    encoded.centerY = (encoded.bounds.lowY + encoded.bounds.upY) / 2.0;
    return encoded;
}

std::string_view describe(ShapeFault fault) {
    switch (fault) {
    case ShapeFault::Empty:
        return "it has no vertices";
    case ShapeFault::VertexCount:
        return "its vertices do not fit its vertex count";
    case ShapeFault::PartCount:
        return "its ring indices do not fit its ring count";
    case ShapeFault::PartOrder:
        return "its ring indices are out of range or out of order";
    case ShapeFault::RingTooShort:
        return "one of its rings has fewer than three corners";
    case ShapeFault::BadCoordinate:
        return "one of its coordinates is not on the map";
    }
    return "it is damaged";
}

std::variant<Shape, ShapeFault> decodeShape(std::int64_t numVert, std::span<const std::byte> vertices,
                                            std::int64_t numParts, std::span<const std::byte> parts) {
    if (!countFits(numVert, vertices.size(), PointBytes))
        return ShapeFault::VertexCount;
    if (!countFits(numParts, parts.size(), IndexBytes))
        return ShapeFault::PartCount;
    if (numVert == 0 || numParts == 0)
        return ShapeFault::Empty;
    const auto starts = ringStarts(parts, static_cast<std::size_t>(numVert));
    if (!starts)
        return ShapeFault::PartOrder;

    Shape shape;
    shape.rings.reserve(starts->size() - 1);
    for (std::size_t part = 0; part + 1 < starts->size(); ++part) {
        ShapeRing ring;
        ring.reserve((*starts)[part + 1] - (*starts)[part]);
        for (std::size_t index = (*starts)[part]; index < (*starts)[part + 1]; ++index)
            ring.push_back(pointAt(vertices, index));
        close(ring);
        if (const auto fault = faultOf(ring))
            return *fault;
        shape.rings.push_back(std::move(ring));
    }
    return shape;
}

ShapeBounds boundsOf(const Shape& shape) {
    ShapeBounds bounds;
    bool first = true;
    for (const ShapeRing& ring : shape.rings) {
        for (const ShapePoint& point : ring) {
            if (first)
                bounds = {point.x, point.y, point.x, point.y};
            first = false;
            bounds = {std::min(bounds.lowX, point.x), std::min(bounds.lowY, point.y), std::max(bounds.upX, point.x),
                      std::max(bounds.upY, point.y)};
        }
    }
    return bounds;
}

double signedDoubleArea(const ShapeRing& ring) {
    if (ring.empty())
        return 0.0;
    // About a point of the ring: products of coordinates that are far from zero would drown a small area.
    const ShapePoint origin = ring.front();
    double sum = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const ShapePoint& here = ring[i];
        const ShapePoint& next = ring[(i + 1) % ring.size()];
        sum += (here.x - origin.x) * (next.y - origin.y) - (next.x - origin.x) * (here.y - origin.y);
    }
    return sum;
}
