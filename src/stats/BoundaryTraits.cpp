#include "stats/BoundaryTraits.h"

#include "core/RuntimeError.h"
#include "data/types/Value.h"

#include <algorithm>

const BoundaryTraits tvRegions{
    .mainTable = "TblTV",
    .areaColumn = "TVRegion",
    .dataColumn = "TVArea",
    .overseasTest = " LIKE '.*'",
    .specialRowTables = {"TblTV", "TblSelectedDataForTV", "TblAnimatedTV1", "TblAnimatedTV2"},
    .laterPeriodsPlacedOnly = true,
    .texts = {.selection = "Updating TV Areas...",
              .cost = "Updating Total Cost By TV Area Statistics...",
              .revenue = "Updating Total Revenue By TV Area Statistics...",
              .answeredCallers = "Updating Answered Callers By TV Area Statistics...",
              .lostCallers = "Updating Lost Callers By TV Area Statistics...",
              .sidePanels = "Updating 'Other', 'International', 'Mobile' Statistics..."}};

const BoundaryTraits callingSubscriberGeographies{
    .mainTable = "TblCSG",
    .areaColumn = "CSG",
    .dataColumn = "CSG",
    .shapeTable = "PGN_CSG",
    .overseasTest = " = '0'",
    .specialRowTables = {"TblCSG", "TblSelectedDataForCSG"},
    .periodColumns = PeriodColumns::ByPosition,
    .countedAreas = {.numbersOnly = true, .besides = {"MOBILE", "NO CLI", "UNTRACEAB", "VOIP"}},
    .summedAreas = {.numbersOnly = true, .besides = {"MOBILE", "VOIP", "UNTRACEAB", "NO CLI", "OLO"}},
    .summedFromFirstRow = {"UNTRACEAB", "NO CLI", "OLO"},
    .callerSearch = CallerSearch::ForwardOnly,
    .texts = {.selection = "Updating CSG Statistics...",
              .rows = "Updating CSG Mapping Information...",
              .calls = "Updating Calls By CSG Statistics...",
              .cost = "Updating Total Cost By CSG Statistics...",
              .revenue = "Updating Total Revenue By CSG Statistics...",
              .lostCounts = "Calculating Lost Caller Statistics...",
              .answeredCounts = "Calculating Answered Caller Statistics...",
              .sidePanels = "Calculating 'Other', 'Mobile', and 'International' Statistics..."}};

const BoundaryTraits exchanges{
    .mainTable = "TblExchangeArea",
    .areaColumn = "Exchange",
    .dataColumn = "Exchange",
    .renamedArea = "NORTHERN",
    .newName = "BIRMINGHAM NORTHERN",
    .overseasTest = " LIKE '.*'",
    .specialRowTables = {"TblSelectedDataForExchangeArea"},
    .periodColumns = PeriodColumns::ByPosition,
    .texts = {.selection = "Updating Exchange Data...",
              .calls = "Updating Calls By Exchange Statistics...",
              .cost = "Updating Total Cost By Exchange Statistics...",
              .revenue = "Updating Total Revenue By Exchange Statistics...",
              .answeredCallers = "Updating Exchange Answered Caller Statistics...",
              .sidePanels = "Updating 'Other', 'International' and 'Mobile' Statistics for Exchanges..."}};

const BoundaryTraits postcodeDistricts{
    .mainTable = "TblPostCodeDistrict",
    .areaColumn = "PostcodeDistrict",
    .dataColumn = "Postcode",
    .shapeTable = "PGN_POSTCODEDISTRICT",
    .overseasTest = " LIKE '.*'",
    .specialRowTables = {"TblSelectedDataForPostCodeDistrict", "TblAnimatedPostCodeDistrict1",
                         "TblAnimatedPostCodeDistrict2"},
    .callersInPeriodOne = true,
    .texts = {.selection = "Refreshing Post Code Statistics...",
              .rows = "Updating Post Code Data...",
              .calls = "Updating Calls By Post Code Statistics...",
              .cost = "Updating Total Cost By Post Code Statistics...",
              .revenue = "Updating Total Revenue By Post Code Statistics...",
              .answeredCallers = "Updating Answered Caller Statistics...",
              .sidePanels = "Updating 'Other', 'Mobile', 'International' Statistics..."}};

const BoundaryTraits customerGroups{.mainTable = "TblCustomerGroups",
                                    .areaColumn = "GroupName",
                                    .dataColumn = "GroupName",
                                    .areasFrom = "TblGroups",
                                    .areasWhere = " WHERE GroupName <> ''",
                                    .periodColumns = PeriodColumns::ByPosition,
                                    .callerSearch = CallerSearch::ForwardOnly,
                                    .alwaysShowsTexts = true,
                                    .texts = {.selection = "Updating Group Source Data...",
                                              .rows = "Updating Group Statistics...",
                                              .calls = "Updating Calls By Group Statistics...",
                                              .cost = "Total Cost By Group Statistics..."}};

namespace {

bool isNumber(std::string_view text) {
    try {
        (void)Value(std::string(text)).asDouble();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace

bool AreaFilter::takes(std::string_view area) const {
    if (equalText(area, ""))
        return false;
    return !numbersOnly || isNumber(area) ||
           std::any_of(besides.begin(), besides.end(), [&](std::string_view name) { return equalText(area, name); });
}

const BoundaryTraits* boundaryOfSpecialRows(std::string_view table) {
    for (const BoundaryTraits* boundary : {&tvRegions, &callingSubscriberGeographies, &exchanges, &postcodeDistricts}) {
        for (const std::string_view name : boundary->specialRowTables) {
            if (!name.empty() && equalText(table, name))
                return boundary;
        }
    }
    return nullptr;
}
