#include "stats/Measures.h"

#include "data/types/Value.h"

#include <algorithm>

namespace {

constexpr int periodsOfMultipleMaps = 7;
constexpr int periodsOfAnimation = 5;

bool holds(std::string_view table, std::string_view part) {
    return upperText(table).find(upperText(part)) != std::string::npos;
}

} // namespace

std::string_view measureName(Measure measure) {
    static constexpr std::array<std::string_view, 11> names{"TotalCalls",  "Answered",        "Ineffective", "Cost",
                                                            "Revenue",     "Engaged",         "RTNR",        "Other",
                                                            "LostCallers", "AnsweredCallers", "AverageCalls"};
    return names[static_cast<std::size_t>(measure)];
}

std::string measureColumn(Measure measure, int period) {
    return std::string(measureName(measure)) + std::to_string(period);
}

std::string measureColumnList(int lastPeriod) {
    std::string list;
    for (int period = 1; period <= lastPeriod; ++period) {
        for (const Measure measure : periodMeasures)
            list += (list.empty() ? "" : ", ") + measureColumn(measure, period);
    }
    return list;
}

int zeroRowPeriods(std::string_view table) {
    if (isAnimatedTable(table))
        return periodsOfAnimation;
    for (const char* single : {"TblCSG", "TblTV", "TblSelectedDataForCSG"}) {
        if (equalText(table, single))
            return 1;
    }
    return periodsOfMultipleMaps;
}

std::string zeroRowStatement(std::string_view table, std::string_view areaColumn, std::string_view area,
                             int lastPeriod) {
    std::string columns = std::string(areaColumn) + ", " + measureColumnList(lastPeriod);
    std::string values = "'" + std::string(area) + "'";
    for (int period = 1; period <= lastPeriod; ++period)
        values += ", 0, 0, 0, 0.0, 0.0, 0, 0, 0, 0, 0";
    if (lastPeriod == periodsOfMultipleMaps) {
        columns += ", AreaCostPerAnsweredCall, AreaCostPerAnsweredCaller";
        values += ", 0, 0";
    }
    return "INSERT INTO " + std::string(table) + " (" + columns + ") VALUES (" + values + ")";
}

bool isSelectedTable(std::string_view table) {
    return holds(table, "SelectedData");
}
bool isAnimatedTable(std::string_view table) {
    return holds(table, "Animated");
}
