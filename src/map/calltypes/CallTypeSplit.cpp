#include "map/calltypes/CallTypeSplit.h"

#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "map/Boundaries.h"
#include "map/MapMeasures.h"

namespace {

constexpr long customerGroups = 5, tvRegions = 2;
constexpr long totalCalls = 1, revenue = 5;

const Boundary& boundaryOf(std::string_view boundaryType) {
    for (const Boundary& boundary : boundaries()) {
        if (boundary.boundaryType == boundaryType && boundary.code != customerGroups)
            return boundary;
    }
    return *findBoundary(tvRegions);
}

/// Callers and averages of calls do not add up: their pie is that of all calls.
const MapMeasure& measureOf(long mapType) {
    return *findMapMeasure(mapType > totalCalls && mapType <= revenue ? mapType : totalCalls);
}

std::string sumOf(const std::string& key, const char* name, const std::string& column, const char* alias) {
    return "SUM(IIF(" + key + " = " + quoted(name) + ", " + column + ", 0)) AS " + alias + ", ";
}

double number(const Recordset& row, const char* field) {
    const Value& value = row.value(field);
    return value.isNull() ? 0 : value.asDouble();
}

} // namespace

std::optional<CallTypeSplit> callTypeSplit(std::string_view boundaryType, long mapType) {
    const Boundary& boundary = boundaryOf(boundaryType);
    const MapMeasure& measure = measureOf(mapType);
    const std::string column = statisticsColumn(measure.mapType, 1);
    const std::string key(boundary.keyColumn);
    const auto row =
        systemDatabase().openRecordset("SELECT " + sumOf(key, "International", column, "SumInternational") +
                                       sumOf(key, "MOBILE", column, "SumMobile") +
                                       sumOf(key, "Other", column, "SumOther") + sumOf(key, "VOIP", column, "SumVOIP") +
                                       "SUM(" + column + ") AS SumTotal FROM " + std::string(boundary.defaultTable));
    CallTypeSplit split;
    split.total = number(*row, "SumTotal");
    if (split.total == 0)
        return std::nullopt;
    const double abroad = number(*row, "SumInternational"), mobile = number(*row, "SumMobile"),
                 voip = number(*row, "SumVOIP"), other = number(*row, "SumOther");
    split.title = measure.text;
    split.series = {{{"UK Line", split.total - abroad - mobile - voip - other, 0x996CD5},
                     {"Payphone", 0, 0xFF80FF},
                     {"International", abroad, 0xFF5A4B},
                     {"Mobile", mobile, 0x1EC8E6},
                     {"VOIP", voip, 0xD4BFEC},
                     {"Other", other, 0xFFB7FE}}};
    return split;
}
