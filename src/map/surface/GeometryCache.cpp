#include "map/surface/GeometryCache.h"

#include "data/engine/Database.h"

std::shared_ptr<const ShapeTable> GeometryCache::shapes(Database& database, const std::string& table,
                                                        CoverageKind kind) {
    const std::string stamp = stampOfShapeTable(database, table, kind);
    Entry& entry = entries_[database.name() + '\n' + foldText(table)];
    if (!entry.shapes || entry.stamp != stamp) {
        entry.shapes = std::make_shared<const ShapeTable>(readShapeTable(database, table, kind));
        entry.stamp = stamp;
        ++reads_;
    }
    return entry.shapes;
}
