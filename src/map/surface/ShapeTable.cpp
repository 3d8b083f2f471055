#include "map/surface/ShapeTable.h"

#include "core/LogError.h"
#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"

#include <array>
#include <cmath>
#include <optional>

namespace {

constexpr const char* Procedure = "MapSurface_ReadShapes";
constexpr long DamagedData = 3049;

std::string nameColumn(Database& database, const std::string& table) {
    const TableDef* definition = database.tableDefs().find(table);
    if (definition == nullptr)
        return {};
    for (const char* candidate : {"NAME", "GROUPNAME"}) {
        if (definition->findField(candidate) != nullptr)
            return candidate;
    }
    return {};
}

/// The columns that are read, in this order, with the table's name in front of each; the name column stands last.
std::string selectShapes(Database& database, const std::string& table, CoverageKind kind) {
    const std::string name = nameColumn(database, table);
    std::string columns = kind == CoverageKind::Polygons
                              ? "POLYGONID, NUMVERT, VERTICES, NUMPARTS, PARTS, CENTERX, CENTERY"
                              : "PointID, XCoord, YCoord";
    if (!name.empty())
        columns += ", " + name;
    return "SELECT " + columns + " FROM " + table;
}

void logDamage(const MapShape& shape, const std::string& table, std::string_view reason) {
    const std::string name = shape.name.empty() ? std::string() : "\"" + shape.name + "\" ";
    LogError(Procedure, DamagedData,
             "The shape " + name + "(" + std::to_string(shape.id) + ") of " + table +
                 " is not drawn: " + std::string(reason) + ".");
}

std::int64_t countIn(const Value& value) {
    return value.isNull() ? -1 : value.asInteger();
}

std::span<const std::byte> bytesIn(const Value& value) {
    return value.isNull() ? std::span<const std::byte>() : std::span<const std::byte>(value.asBytes());
}

std::optional<QPointF> pointIn(const Value& x, const Value& y) {
    if (x.isNull() || y.isNull())
        return {};
    const QPointF point(x.asDouble(), y.asDouble());
    return std::isfinite(point.x()) && std::isfinite(point.y()) ? std::optional(point) : std::nullopt;
}

/// Fills a polygon from the current row. Gives what is wrong with it, or nothing.
std::optional<std::string_view> readPolygon(const Recordset& rows, MapShape& polygon) {
    auto decoded =
        decodeShape(countIn(rows.value(1)), bytesIn(rows.value(2)), countIn(rows.value(3)), bytesIn(rows.value(4)));
    if (const auto* fault = std::get_if<ShapeFault>(&decoded))
        return describe(*fault);
    polygon.shape = std::move(std::get<Shape>(decoded));
    const ShapeBounds bounds = boundsOf(polygon.shape);
    polygon.bounds = QRectF(QPointF(bounds.lowX, bounds.lowY), QPointF(bounds.upX, bounds.upY));
    polygon.anchor = pointIn(rows.value(5), rows.value(6)).value_or(polygon.bounds.center());
    return {};
}

std::optional<std::string_view> readPoint(const Recordset& rows, MapShape& point) {
    const auto place = pointIn(rows.value(1), rows.value(2));
    if (!place)
        return "it has no place";
    point.anchor = *place;
    point.bounds = QRectF(*place, QSizeF(0, 0));
    return {};
}

} // namespace

ShapeTable::ShapeTable(std::vector<MapShape> shapes) : shapes_(std::move(shapes)) {
    for (std::size_t i = 0; i < shapes_.size(); ++i)
        positions_[shapes_[i].id].push_back(i);
}

const std::vector<std::size_t>& ShapeTable::find(std::int64_t id) const {
    static const std::vector<std::size_t> none;
    const auto found = positions_.find(id);
    return found == positions_.end() ? none : found->second;
}

ShapeTable readShapeTable(Database& database, const std::string& table, CoverageKind kind) {
    const auto rows = database.openRecordset(selectShapes(database, table, kind));
    const bool polygons = kind == CoverageKind::Polygons;
    const int namePosition = polygons ? 7 : 3;
    std::vector<MapShape> shapes;
    shapes.reserve(static_cast<std::size_t>(rows->RecordCount()));
    for (; !rows->EOF_(); rows->MoveNext()) {
        MapShape shape;
        try {
            if (namePosition < rows->fieldCount())
                shape.name = rows->value(namePosition).asText();
            shape.id = rows->value(0).asInteger();
            if (const auto fault = polygons ? readPolygon(*rows, shape) : readPoint(*rows, shape))
                logDamage(shape, table, *fault);
            else
                shapes.push_back(std::move(shape));
        } catch (const RuntimeError& error) {
            logDamage(shape, table, error.what()); // a column holds a value of another kind
        }
    }
    return ShapeTable(std::move(shapes));
}

std::string stampOfShapeTable(Database& database, const std::string& table, CoverageKind kind) {
    const std::string sums = kind == CoverageKind::Polygons
                                 ? "Sum(POLYGONID), Sum(NUMVERT), Sum(NUMPARTS), Sum(BOUNDLOWX), Sum(BOUNDLOWY), "
                                   "Sum(BOUNDUPPX), Sum(BOUNDUPPY), Sum(CENTERX), Sum(CENTERY), "
                                   // Two areas that have changed places leave all other sums as they are.
                                   "Sum(POLYGONID * (BOUNDLOWX + 3 * BOUNDUPPY + 7 * NUMVERT))"
                                 : "Sum(PointID), Sum(XCoord), Sum(YCoord), Sum(PointID * (XCoord + 3 * YCoord))";
    const auto row = database.openRecordset("SELECT Count(*), " + sums + " FROM " + table);
    std::string stamp;
    for (int column = 0; !row->EOF_() && column < row->fieldCount(); ++column)
        stamp += row->value(column).asText() + ";";
    return stamp;
}

std::string identifierColumn(CoverageKind kind) {
    return kind == CoverageKind::Polygons ? "POLYGONID" : "PointID";
}
