#include "sample/installation/ShapeTables.h"

#include "data/shapes/ShapeCodec.h"
#include "sample/installation/RowWriter.h"

#include <algorithm>

namespace sample {

namespace {

EncodedShape encode(const Area& area) {
    Shape shape;
    for (const Ring& ring : area.rings) {
        ShapeRing& points = shape.rings.emplace_back();
        for (const MapPoint& vertex : ring.vertices)
            points.push_back({vertex.x, vertex.y});
    }
    return encodeShape(shape);
}

ShapeBounds boundsOfAll(std::span<const Area> areas) {
    if (areas.empty())
        return {};
    const MapPoint first = areas.front().rings.front().vertices.front();
    ShapeBounds box{first.x, first.y, first.x, first.y};
    for (const Area& area : areas) {
        for (const Ring& ring : area.rings) {
            for (const MapPoint& vertex : ring.vertices) {
                box.lowX = std::min(box.lowX, vertex.x);
                box.lowY = std::min(box.lowY, vertex.y);
                box.upX = std::max(box.upX, vertex.x);
                box.upY = std::max(box.upY, vertex.y);
            }
        }
    }
    return box;
}

void writeLabels(Database& map, const std::string& table, std::span<const Area> areas) {
    RowWriter rows(map, table);
    std::int64_t id = 0;
    for (const Area& area : areas)
        rows.add({area.name, ++id, area.label.x, area.label.y});
}

void writeCatalogue(Database& map, const std::string& name, const std::string& shapeTable, std::string_view kind,
                    std::size_t count, const ShapeBounds& box) {
    RowWriter(map, "CCL_" + name)
        .add({name, shapeTable, kind, static_cast<std::int64_t>(count), box.lowX, box.lowY, box.upX, box.upY});
}

} // namespace

void writePolygons(Database& map, std::string_view table, std::span<const Area> areas,
                   std::span<const std::string> prefixes) {
    RowWriter rows(map, table);
    for (std::size_t i = 0; i < areas.size(); ++i) {
        const EncodedShape shape = encode(areas[i]);
        std::vector<Value> row{areas[i].name,     static_cast<std::int64_t>(i + 1),
                               shape.numVert,     shape.bounds.lowX,
                               shape.bounds.lowY, shape.bounds.upX,
                               shape.bounds.upY,  shape.centerX,
                               shape.centerY,     shape.vertices,
                               shape.numParts,    shape.parts};
        if (i < prefixes.size() && !prefixes[i].empty())
            row.emplace_back(prefixes[i]);
        rows.add(row);
    }
}

void writeCoverage(Database& map, const std::string& name, const std::string& labels, std::span<const Area> areas,
                   std::span<const std::string> prefixes) {
    writePolygons(map, "PGN_" + name, areas, prefixes);
    writeLabels(map, "PNT_" + labels, areas);
    const ShapeBounds box = boundsOfAll(areas);
    writeCatalogue(map, name, "PGN_" + name, "Polygon", areas.size(), box);
    writeCatalogue(map, labels, "PNT_" + labels, "Point", areas.size(), box);
}

void writeEmptyCoverage(Database& map, const std::string& name) {
    writeCatalogue(map, name, "PGN_" + name, "Polygon", 0, {});
}

} // namespace sample
