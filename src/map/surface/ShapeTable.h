#pragma once

#include "data/shapes/ShapeCodec.h"
#include "map/surface/Scene.h"

#include <QPointF>
#include <QRectF>

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

class Database;

/// One polygon or label point of a shape table. Map units.
struct MapShape {
    std::int64_t id = 0; ///< POLYGONID or PointID
    std::string name;    ///< of the area; empty where the table has no name column
    Shape shape;         ///< without rings: a point
    QRectF bounds;       ///< x and y are the low corner
    QPointF anchor;      ///< where its label stands
};

/// The shapes of one table, read whole. Immutable; shared by all layers and draws that show the table.
class ShapeTable {
public:
    explicit ShapeTable(std::vector<MapShape> shapes);

    const std::vector<MapShape>& shapes() const { return shapes_; }
    /// Positions in shapes() of an identifier; more than one where the table repeats it.
    const std::vector<std::size_t>& find(std::int64_t id) const;

private:
    std::vector<MapShape> shapes_;
    std::unordered_map<std::int64_t, std::vector<std::size_t>> positions_;
};

/// Reads a shape table. A polygon that is damaged is left out and named in the error log; the others are read. Throws
/// DatabaseError where the table or one of its columns is missing.
ShapeTable readShapeTable(Database& database, const std::string& table, CoverageKind kind);

/// A text that changes when shapes of the table are added, removed, moved or reshaped; read without the shapes
/// themselves.
std::string stampOfShapeTable(Database& database, const std::string& table, CoverageKind kind);

/// Name of the identifying column: POLYGONID or PointID.
std::string identifierColumn(CoverageKind kind);
