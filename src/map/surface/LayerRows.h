#pragma once

#include "map/surface/Scene.h"

#include <cstdint>
#include <string>
#include <vector>

class Database;

/// The statement that reads a layer's attributes, without its shapes. Column 0 is the shape's identifier.
struct LayerQuery {
    std::string sql;
    int valueColumn = -1; ///< of LayerSymbolExpression; -1 where that is empty
    int labelColumn = -1; ///< of LayerLabelSource; -1 where that is empty

    /// Of a layer whose LayerCoverageName is not empty.
    static LayerQuery of(const Layer& layer);
};

/// One joined row of a layer.
struct LayerRow {
    std::int64_t id = 0; ///< POLYGONID or PointID of its shape
    Value value;         ///< selects the symbol; null where there is none
    std::string label;
};

/// Runs the query. Rows without an identifier are left out. Throws DatabaseError as the engine does.
std::vector<LayerRow> readLayerRows(Database& database, const LayerQuery& query);
