#include "map/MapMeasures.h"

#include "data/types/Value.h"

#include <array>

namespace {

constexpr std::array Measures{
    MapMeasure{1, "Total Calls", "TotalCalls", [](const MapMaxima& m) { return m.MaxTotalCalls; }},
    MapMeasure{2, "Answered Calls", "Answered", [](const MapMaxima& m) { return static_cast<double>(m.MaxAnswered); }},
    MapMeasure{3, "Ineffective Calls", "Ineffective",
               [](const MapMaxima& m) { return static_cast<double>(m.MaxIneffective); }},
    MapMeasure{4, "Cost", "Cost", [](const MapMaxima& m) { return m.MaxCost; }},
    MapMeasure{5, "Revenue", "Revenue", [](const MapMaxima& m) { return m.MaxRevenue; }},
    MapMeasure{8, "Average Calls Per Caller", "AverageCalls", [](const MapMaxima& m) { return m.MaxAverageCalls; }},
    MapMeasure{9, "Lost Callers", "LostCallers", [](const MapMaxima& m) { return m.MaxLostCallers; }},
    MapMeasure{10, "Answered Callers", "AnsweredCallers", [](const MapMaxima& m) { return m.MaxAnsweredCallers; }},
};

} // namespace

std::span<const MapMeasure> mapMeasures() {
    return Measures;
}

const MapMeasure* findMapMeasure(long mapType) {
    for (const MapMeasure& measure : Measures) {
        if (measure.mapType == mapType)
            return &measure;
    }
    return nullptr;
}

std::string statisticsColumn(long mapType, int dataSet) {
    const MapMeasure* measure = findMapMeasure(mapType);
    return measure == nullptr ? std::string() : std::string(measure->stem) + std::to_string(dataSet);
}

std::string unitSignOf(std::string_view column) {
    const std::string upper = upperText(column);
    const bool money = upper.find("REVENUE") != std::string::npos || upper.find("COST") != std::string::npos;
    return money ? "£" : "";
}
