#include "map/data/DataStatement.h"

#include "data/types/Value.h"
#include "map/Boundaries.h"

namespace {

constexpr long tvRegions = 2, postcodeDistricts = 3, customerGroups = 5;

/// "TotalCalls1 AS TotalCalls", or the column alone.
std::string counted(const std::string& name, const DataView& view, bool named) {
    const std::string column = name + std::to_string(view.dataSet);
    return named ? column + " AS " + name : column;
}

std::string rate(const std::string& name, const DataView& view) {
    return "FORMAT(" + name + std::to_string(view.dataSet) + ", '0.000') AS " + name;
}

std::string money(const std::string& name, const DataView& view) {
    return "FORMAT(" + name + std::to_string(view.dataSet) + ", '£0.00') as [" + name + "(£)]";
}

template<typename Column>
std::string measures(const DataView& view, Column column) {
    return column("TotalCalls") + ", " + column("Answered") + ", " + column("Ineffective") + ", " +
           money("Cost", view) + ", " + money("Revenue", view) + ", " + column("Engaged") + ", " + column("RTNR") +
           ", " + column("Other") + ", " + column("LostCallers") + ", " + column("AnsweredCallers");
}

bool hasRates(const DataView& view) {
    return (view.boundary == tvRegions || view.boundary == postcodeDistricts) &&
           (equalText(view.table, "tblTVByPopulation") || equalText(view.table, "tblPostCodeByPopulation"));
}

/// The shares of a campaign's spend. Tables of the frames of an animation keep none.
std::string costColumns(const DataView& view) {
    if (view.table.find("Animate") != std::string::npos || !view.hasCostColumns)
        return "";
    if (view.boundary == postcodeDistricts && hasRates(view))
        return ", AreaCostPerAnsweredCall, AreaCostPerAnsweredCaller ";
    return ", AreaCostPerAnsweredCall AS [Area Cost Per Answered Call], "
           "AreaCostPerAnsweredCaller AS [Area Cost Per Answered Caller]";
}

std::string source(const DataView& view, const std::string& key) {
    if (!view.hasPopulation || (view.boundary != tvRegions && view.boundary != postcodeDistricts))
        return " FROM " + view.table;
    const std::string population =
        view.boundary == tvRegions ? "tblTVPopulationDensity" : "tblPostCodePopulationDensity";
    return ", Population FROM " + view.table + " LEFT JOIN " + population + " ON " + view.table + "." + key + " = " +
           population + ".Reference";
}

} // namespace

std::string dataStatement(const DataView& view) {
    const Boundary* boundary = findBoundary(view.boundary);
    if (!boundary)
        return "";
    const std::string key(boundary->keyColumn);
    const bool rates = hasRates(view);
    const auto column = [&](const std::string& name) {
        return rates ? rate(name, view) : counted(name, view, view.boundary != customerGroups);
    };
    // CSGs are numbers: they are ordered as such.
    const std::string order = view.boundary == 1 ? "Format( CSG, '0000')" : key;
    return "Select " + key + ", " + measures(view, column) + costColumns(view) + source(view, key) + " ORDER BY " +
           order;
}
