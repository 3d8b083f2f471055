#include "map/form/MapTypeList.h"

#include "core/ModDeclarations.h"
#include "map/Boundaries.h"
#include "map/MapMeasures.h"

#include <algorithm>

namespace {

constexpr long totalCalls = 1, averageCalls = 8;
constexpr long mapTypeOrder[] = {1, 2, 3, 4, 5, 9, 10, averageCalls};
constexpr long boundaryOrder[] = {0, 1, 3, 2};
constexpr long customerGroups = 5;

ListEntry mapTypeEntry(long code) {
    return {code, findMapMeasure(code)->text};
}

bool hasPopulation(std::string_view boundaryType) {
    return (boundaryType == "PostcodeDistrict" && gbPostCodePopulation) ||
           (boundaryType == "TVRegion" && gbTVPopulation);
}

} // namespace

std::vector<ListEntry> mapTypeEntries() {
    std::vector<ListEntry> entries;
    for (const long code : mapTypeOrder)
        entries.push_back(mapTypeEntry(code));
    return entries;
}

std::vector<ListEntry> boundaryEntries(bool withCustomerGroups) {
    std::vector<ListEntry> entries;
    for (const long code : boundaryOrder)
        entries.push_back({code, findBoundary(code)->text});
    if (withCustomerGroups)
        entries.push_back({customerGroups, findBoundary(customerGroups)->text});
    return entries;
}

MapTypeChoice mapTypesOf(std::string_view boundaryType, std::vector<ListEntry> entries, long mapType) {
    MapTypeChoice choice{.mapTypes = std::move(entries), .mapType = mapType};
    const auto averages = std::ranges::find(choice.mapTypes, averageCalls, &ListEntry::code);
    const bool known = boundaryType == "TVRegion" || boundaryType == "PostcodeDistrict";
    if (!known && averages != choice.mapTypes.end())
        choice.mapTypes.erase(averages);
    if (known && averages == choice.mapTypes.end())
        choice.mapTypes.push_back(mapTypeEntry(averageCalls));
    if (!known && mapType == averageCalls) {
        choice.revertedToTotals = true;
        choice.mapType = totalCalls;
    }
    choice.densitiesEnabled = hasPopulation(boundaryType) && choice.mapType != averageCalls;
    return choice;
}
