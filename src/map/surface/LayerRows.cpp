#include "map/surface/LayerRows.h"

#include "data/engine/Database.h"
#include "map/surface/LayerSource.h"
#include "map/surface/ShapeTable.h"

#include <array>
#include <string_view>

namespace {

/// Whether the join text begins behind the table of shapes, and does not name it itself.
bool continuesTheTable(const std::string& joins) {
    const std::size_t begin = joins.find_first_not_of(' ');
    if (begin == std::string::npos)
        return true;
    constexpr std::array<std::string_view, 5> openings{",", "WHERE ", "LEFT JOIN ", "INNER JOIN ", "RIGHT JOIN "};
    for (std::string_view opening : openings) {
        if (equalText(std::string_view(joins).substr(begin, opening.size()), opening))
            return true;
    }
    return false;
}

} // namespace

LayerQuery LayerQuery::of(const Layer& layer) {
    const std::string table = shapeTableOf(layer.LayerCoverageName, layer.LayerInterpretation);
    LayerQuery query;
    int columns = 1;
    query.sql = "SELECT " + table + "." + identifierColumn(layer.LayerInterpretation);
    for (const auto& [expression, position] : {std::pair(&layer.LayerSymbolExpression, &query.valueColumn),
                                               std::pair(&layer.LayerLabelSource, &query.labelColumn)}) {
        if (expression->empty())
            continue;
        *position = columns++;
        query.sql += ", " + *expression;
    }
    if (!layer.LayerFields.empty())
        query.sql += ", " + layer.LayerFields;
    query.sql += " FROM ";
    if (continuesTheTable(layer.LayerJoins))
        query.sql += table + " ";
    query.sql += layer.LayerJoins;
    query.sql = resolveCoverages(query.sql, layer.LayerInterpretation);
    return query;
}

std::vector<LayerRow> readLayerRows(Database& database, const LayerQuery& query) {
    const auto records = database.openRecordset(query.sql);
    std::vector<LayerRow> rows;
    rows.reserve(static_cast<std::size_t>(records->RecordCount()));
    for (; !records->EOF_(); records->MoveNext()) {
        if (!records->value(0).isNumber())
            continue;
        LayerRow row;
        row.id = records->value(0).asInteger();
        if (query.valueColumn >= 0)
            row.value = records->value(query.valueColumn);
        if (query.labelColumn >= 0)
            row.label = records->value(query.labelColumn).asText();
        rows.push_back(std::move(row));
    }
    return rows;
}
