// The bytes of a polygon: 4 bytes each for the number of vertices, of rings and of bytes that are vertices, then the
// bytes. What can be read is written and read again to the same shape.

#include "data/shapes/ShapeCodec.h"

#include "fuzz/Target.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <stdexcept>

namespace {

struct Header {
    std::int32_t vertices = 0;
    std::int32_t parts = 0;
    std::uint32_t vertexBytes = 0;
};

std::string input(const EncodedShape& shape) {
    const Header header{shape.numVert, shape.numParts, static_cast<std::uint32_t>(shape.vertices.size())};
    std::string bytes(sizeof header, '\0');
    std::memcpy(bytes.data(), &header, sizeof header);
    for (const auto* part : {&shape.vertices, &shape.parts})
        bytes.append(reinterpret_cast<const char*>(part->data()), part->size());
    return bytes;
}

std::variant<Shape, ShapeFault> decode(const EncodedShape& shape) {
    return decodeShape(shape.numVert, shape.vertices, shape.numParts, shape.parts);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Header header;
    if (size < sizeof header)
        return -1;
    std::memcpy(&header, data, sizeof header);
    // Copies of their own, so that a read past an end is seen.
    const std::size_t vertexBytes = std::min<std::size_t>(header.vertexBytes, size - sizeof header);
    const auto* bytes = reinterpret_cast<const std::byte*>(data) + sizeof header;
    const std::vector<std::byte> vertices(bytes, bytes + vertexBytes);
    const std::vector<std::byte> parts(bytes + vertexBytes, bytes + size - sizeof header);
    const auto read = decodeShape(header.vertices, vertices, header.parts, parts);
    if (const auto* fault = std::get_if<ShapeFault>(&read))
        return describe(*fault).empty() ? throw std::logic_error("a fault without words") : -1;
    const auto& shape = std::get<Shape>(read);
    for (const ShapeRing& ring : shape.rings)
        signedDoubleArea(ring);
    const auto again = decode(encodeShape(shape));
    if (!std::holds_alternative<Shape>(again) || !(std::get<Shape>(again) == shape))
        throw std::logic_error("a shape does not read back as it was written");
    return 0;
}

std::vector<std::string> fuzzSeeds() {
    const ShapeRing square{{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}};
    const ShapeRing hole{{2, 2}, {2, 4}, {4, 4}, {4, 2}, {2, 2}};
    ShapeRing coast;
    for (int i = 0; i < 200; ++i)
        coast.push_back({50000.0 + i * 3.25, 20000.0 + (i % 7) * 1.5});
    return {input(encodeShape({{square}})), input(encodeShape({{square, hole}})),
            input(encodeShape({{coast, square, hole}}))};
}
std::vector<std::string> fuzzTokens() {
    return {std::string(8, '\0'),
            std::string("\0\0\0\0\0\0\xF0\x7F", 8),
            std::string("\0\0\0\0\0\0\xF8\xFF", 8),
            std::string("\xFF\xFF\xFF\x7F", 4),
            std::string("\1\0\0\0", 4),
            std::string(16, '\1')};
}
