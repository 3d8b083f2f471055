#pragma once

#include "data/engine/Database.h"
#include "data/shapes/ShapeCodec.h"

#include <cstdint>
#include <string>

/// An upright square, its low left corner at (x, y), anticlockwise.
inline ShapeRing squareRing(double x, double y, double side) {
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}, {x, y}};
}

/// Adds an area to a polygon table. `nameColumn` is GROUPNAME in PGN_GROUPS.
inline void addPolygon(Database& database, const std::string& table, std::int64_t id, const std::string& name,
                       const Shape& shape, const std::string& nameColumn = "NAME") {
    const EncodedShape encoded = encodeShape(shape);
    const auto rows = database.openRecordset("SELECT * FROM " + table);
    rows->AddNew();
    rows->set(nameColumn, name);
    rows->set("POLYGONID", id);
    rows->set("NUMVERT", encoded.numVert);
    rows->set("BOUNDLOWX", encoded.bounds.lowX);
    rows->set("BOUNDLOWY", encoded.bounds.lowY);
    rows->set("BOUNDUPPX", encoded.bounds.upX);
    rows->set("BOUNDUPPY", encoded.bounds.upY);
    rows->set("CENTERX", encoded.centerX);
    rows->set("CENTERY", encoded.centerY);
    rows->set("VERTICES", encoded.vertices);
    rows->set("NUMPARTS", encoded.numParts);
    rows->set("PARTS", encoded.parts);
    rows->Update();
}
