#include "report/ReportRun.h"

#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "report/OpenInstallation.h"
#include "report/SelectedData.h"
#include "report/WorkOutFilterActive.h"
#include "stats/CurrentTables.h"
#include "stats/FigureEngine.h"
#include "stats/MapMaxima.h"
#include "stats/ModData_MaxValues.h"
#include "stats/ModData_SelectedCSGData.h"
#include "stats/ModData_SelectedCustomerGroups.h"
#include "stats/ModData_SelectedExchangeData.h"
#include "stats/ModData_SelectedPostCodeData.h"
#include "stats/ModData_SelectedTVArea.h"
#include "stats/ModData_Setup_SQLSelection.h"
#include "stats/ModData_UpdateCallDataByPopulationDensity.h"
#include "stats/ModUtilities_CreateAverageCallsTables.h"
#include "stats/SelectionState.h"

namespace {

using StatisticsProcedure = void (*)(const std::string& tableName, int period);

/// How the calls are counted for a boundary, and into which tables.
struct BoundaryReport {
    long boundary;
    std::string_view boundaryType;
    std::string_view mainTable;
    std::string_view selectedTable;
    StatisticsProcedure procedure;
    bool derivesMeasures = false; ///< has calls for each caller and rates for each head of population
};

constexpr long customerGroupsCode = 5;

constexpr BoundaryReport boundaryReports[] = {
    {0, "Exchange", "TblExchangeArea", "TblSelectedDataForExchangeArea", &ModData_SelectedExchangeData},
    {1, "CSG", "TblCSG", "TblSelectedDataForCSG", &ModData_SelectedCSGData},
    {2, "TVRegion", "TblTV", "TblSelectedDataForTV", &ModData_SelectedTVArea, true},
    {3, "PostcodeDistrict", "TblPostCodeDistrict", "TblSelectedDataForPostCodeDistrict", &ModData_SelectedPostCodeData,
     true},
    {customerGroupsCode, "CustomerGroups", "TblCustomerGroups", "TblSelectedDataForCustomerGroups",
     &ModData_SelectedCustomerGroups},
};

const BoundaryReport& reportOf(long boundary) {
    for (const BoundaryReport& report : boundaryReports) {
        if (report.boundary == boundary)
            return report;
    }
    throw RuntimeError(5, "There is no boundary " + std::to_string(boundary));
}

void requireGroups() {
    const bool has = projectDatabase().tableDefs().find("tblGroups") &&
                     countOf(projectDatabase(), "SELECT Count(*) FROM tblGroups WHERE GroupName <> ''") > 0;
    if (!has)
        throw RuntimeError(5, "No Customer Groups have been set up. Please do this in Callscope before attempting to "
                              "update Groups with Callscope Mapping");
}

void buildSelection(const ReportParameters& parameters) {
    SelectionSql.clear();
    SelectionDescription.clear();
    if (!FilterActive)
        return;
    Date start = parameters.DTStart;
    Date end = parameters.DTEnd;
    ModData_Setup_SQLSelection(parameters, SelectionSql, start, end, parameters.DTStartTime[0],
                               parameters.DTStartTime[1], 0);
    if (GroupLimitExceeded) {
        GroupLimitExceeded = false;
        throw RuntimeError(5, "Please re-select parameters");
    }
}

/// A wanted engine counts anew what the last run may have left.
void countSelection(const BoundaryReport& report, const ReportParameters& parameters) {
    RecomputeSelection = figureEngine() != FigureEngine::Automatic;
    CheckSelectedData(parameters);
    if (!RecomputeSelection)
        return;
    report.procedure(std::string(report.selectedTable), 1);
    SaveSelectedData(parameters);
    if (report.derivesMeasures)
        ModUtilities_CreateAverageCallsTables();
}

} // namespace

std::string mainTable(long boundary) {
    return std::string(reportOf(boundary).mainTable);
}

void countWholeProject(long boundary) {
    const BoundaryReport& report = reportOf(boundary);
    if (boundary == customerGroupsCode)
        requireGroups();
    SelectionSql.clear();
    FilterActive = false;
    report.procedure(std::string(report.mainTable), 1);
    if (!report.derivesMeasures)
        return;
    ModUtilities_CreateAverageCallsTables();
    if (ModData_UpdateCallDataByPopulationDensity() != 0)
        throw RuntimeError(5, "The calls could not be divided by the population");
}

ReportFigures runReport(long boundary, const ReportParameters& parameters) {
    const BoundaryReport& report = reportOf(boundary);
    const ReportParameters whole = wholeProject();
    if (boundary == customerGroupsCode)
        requireGroups();
    currentTables.clear();
    gsBoundaryType = report.boundaryType;
    FilterActive = workOutFilterActive(parameters, whole.DTStart, whole.DTEnd);
    buildSelection(parameters);
    ReportFigures figures;
    figures.filtered = FilterActive;
    figures.table = FilterActive ? report.selectedTable : report.mainTable;
    if (FilterActive)
        countSelection(report, parameters);
    *currentTables.of(boundary) = figures.table;
    mapMaxima.resetForRun();
    ModData_MaxValues(figures.table, 1);
    return figures;
}

void runMultiMapReport(long boundary, const ReportParameters& parameters, const MultiMapParameters& ranges) {
    const BoundaryReport& report = reportOf(boundary);
    if (!report.derivesMeasures)
        throw RuntimeError(5, "Several maps are of TV regions or postcode districts");
    const ReportParameters whole = wholeProject();
    currentTables.clear();
    FilterActive = workOutFilterActive(parameters, whole.DTStart, whole.DTEnd);
    buildSelection(parameters);
    gsBoundaryType = report.boundaryType;
    RecomputeSelection = figureEngine() != FigureEngine::Automatic;
    CheckMultiData(parameters, ranges);
    *currentTables.of(boundary) = report.selectedTable;
    ModData_GetMultiMapData(parameters, ranges, RecomputeSelection);
    SaveMultiData(parameters, ranges);
}
