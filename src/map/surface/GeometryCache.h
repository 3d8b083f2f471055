#pragma once

#include "map/surface/ShapeTable.h"

#include <memory>
#include <string>
#include <unordered_map>

/// Keeps the shapes of the tables that have been drawn, so that a redraw reads figures but no shapes. A table is read
/// again when its stamp has changed. Holds no database open. Main thread.
class GeometryCache {
public:
    /// The shapes of a table of an open database. Throws as readShapeTable does.
    std::shared_ptr<const ShapeTable> shapes(Database& database, const std::string& table, CoverageKind kind);

    /// How often shapes have been read from a file since the cache was made.
    int reads() const { return reads_; }

private:
    struct Entry {
        std::string stamp;
        std::shared_ptr<const ShapeTable> shapes;
    };
    std::unordered_map<std::string, Entry> entries_; // by file and table
    int reads_ = 0;
};
