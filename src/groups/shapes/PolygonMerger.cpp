#include "groups/shapes/PolygonMerger.h"

#include "core/RuntimeError.h"
#include "groups/shapes/AreaUnion.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr long DamagedData = 3049;
constexpr std::size_t PointBytes = 2 * sizeof(double);
constexpr std::size_t IndexBytes = sizeof(std::int32_t);

std::span<const std::byte> bytesIn(const Value& value) {
    return value.isNull() ? std::span<const std::byte>() : std::span<const std::byte>(value.asBytes());
}

/// Throws RuntimeError with what is wrong.
Shape readShape(const Value& vertices, std::int32_t numParts, const Value& parts) {
    static const Bytes oneRing(IndexBytes); // its first vertex is number 0
    const auto points = bytesIn(vertices);
    auto indices = bytesIn(parts);
    std::int64_t rings = numParts;
    if (indices.empty() && numParts <= 1) {
        indices = oneRing;
        rings = 1;
    } else if (numParts == 0) {
        rings = static_cast<std::int64_t>(indices.size() / IndexBytes);
    }
    auto decoded = decodeShape(static_cast<std::int64_t>(points.size() / PointBytes), points, rings, indices);
    if (const auto* fault = std::get_if<ShapeFault>(&decoded))
        throw RuntimeError(DamagedData, std::string(describe(*fault)));
    return std::move(std::get<Shape>(decoded));
}

/// Reads polygons into areas and keeps account of those that cannot be read.
class AreaReader {
public:
    explicit AreaReader(const Geos& geos) : geos_(geos) {}

    /// Null where there is nothing to unite.
    Geos::Geometry read(const char* which, const Value& vertices, std::int32_t numParts, const Value& parts) {
        try {
            Geos::Geometry area = areaOf(geos_, readShape(vertices, numParts, parts));
            if (!geos_.truth(GEOSisEmpty_r(geos_.handle(), area.get())))
                return area;
            complain(which, "it encloses nothing");
        } catch (const RuntimeError& error) {
            complain(which, error.what());
        }
        return {};
    }

    void throwComplaints() const {
        if (!complaints_.empty())
            throw RuntimeError(DamagedData, complaints_);
    }

private:
    void complain(const std::string& which, std::string why) {
        if (why.ends_with('.'))
            why.pop_back();
        complaints_ += (complaints_.empty() ? "" : " ") + ("The " + which) + " polygon is left out: " + why + ".";
    }

    const Geos& geos_;
    std::string complaints_;
};

EncodedShape encodeArea(const Geos& geos, const GEOSGeometry* area) {
    EncodedShape encoded = encodeShape(shapeOfArea(geos, area));
    const ShapePoint centre = centreOfArea(geos, area);
    encoded.centerX = centre.x;
    encoded.centerY = centre.y;
    return encoded;
}

} // namespace

void PolygonMerger::Merge() {
    union_ = {};
    const Geos geos;
    AreaReader reader(geos);
    const Geos::Geometry first = reader.read("first", Vertices1, NumParts1, Parts1);
    const Geos::Geometry second = reader.read("second", Vertices2, NumParts2, Parts2);
    if (first && second)
        unite(geos, first.get(), second.get());
    else if (first || second)
        union_ = encodeArea(geos, (first ? first : second).get());
    reader.throwComplaints();
}

void PolygonMerger::unite(const Geos& geos, const GEOSGeometry* first, const GEOSGeometry* second) {
    try {
        union_ = encodeArea(geos, uniteAreas(geos, first, second).get());
    } catch (...) {
        union_ = encodeArea(geos, first);
        throw;
    }
}

Value PolygonMerger::Vertices() const {
    return union_.vertices.empty() ? Value() : Value(union_.vertices);
}

Value PolygonMerger::Parts() const {
    return union_.parts.empty() ? Value() : Value(union_.parts);
}
