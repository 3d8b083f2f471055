#include "map/data/MapData.h"

#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "data/engine/Recordset.h"
#include "data/engine/TableDefs.h"
#include "data/project/Databases.h"
#include "map/Boundaries.h"
#include "stats/CurrentTables.h"

namespace {

constexpr long tvRegions = 2, postcodeDistricts = 3;

/// A map database of an older delivery may have tables without the shares of a campaign spend.
bool hasCostColumns(const std::string& table) {
    const TableDef* definition = systemDatabase().tableDefs().find(table);
    return !definition || definition->findField("AreaCostPerAnsweredCall") != nullptr;
}

} // namespace

DataView dataView(long boundary, int dataSet, bool densities) {
    DataView view;
    view.boundary = boundary;
    if (const std::string* table = currentTables.of(boundary))
        view.table = *table;
    view.dataSet = dataSet;
    view.hasCostColumns = hasCostColumns(view.table);
    view.hasPopulation =
        (boundary == tvRegions && gbTVPopulation) || (boundary == postcodeDistricts && gbPostCodePopulation);
    view.densities = densities;
    return view;
}

DataTable readDataTable(const DataView& view) {
    const std::string statement = dataStatement(view);
    if (statement.empty() || view.table.empty())
        throw RuntimeError(5, "There are no figures for boundary " + std::to_string(view.boundary));
    DataTable table;
    table.title = findBoundary(view.boundary)->text;
    if (view.densities)
        table.title += ", per head of population";
    table.rates = view.densities;
    const auto rows = systemDatabase().openRecordset(statement);
    const int columns = rows->fieldCount();
    for (int column = 0; column < columns; ++column)
        table.captions.push_back(rows->field(column).name);
    table.rows.reserve(static_cast<std::size_t>(rows->RecordCount()));
    for (; !rows->EOF_(); rows->MoveNext()) {
        std::vector<Value>& row = table.rows.emplace_back();
        row.reserve(table.captions.size());
        for (int column = 0; column < columns; ++column)
            row.push_back(rows->value(column));
    }
    return table;
}
