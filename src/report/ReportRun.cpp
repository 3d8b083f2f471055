#include "report/ReportRun.h"

#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "report/OpenInstallation.h"
#include "report/WorkOutFilterActive.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "stats/ModData_MaxValues.h"
#include "stats/ModData_SelectedTVArea.h"
#include "stats/ModData_Setup_SQLSelection.h"
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
};

constexpr BoundaryReport boundaryReports[] = {
    {2, "TVRegion", "TblTV", "TblSelectedDataForTV", &ModData_SelectedTVArea},
};

const BoundaryReport& reportOf(long boundary) {
    for (const BoundaryReport& report : boundaryReports) {
        if (report.boundary == boundary)
            return report;
    }
    throw RuntimeError(5, "Calls can be counted by TV region only; boundary " + std::to_string(boundary) +
                              " has no figures");
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

} // namespace

std::string mainTable(long boundary) {
    return std::string(reportOf(boundary).mainTable);
}

void countWholeProject(long boundary) {
    const BoundaryReport& report = reportOf(boundary);
    SelectionSql.clear();
    report.procedure(std::string(report.mainTable), 1);
}

ReportFigures runReport(long boundary, const ReportParameters& parameters) {
    const BoundaryReport& report = reportOf(boundary);
    const ReportParameters whole = wholeProject();
    currentTables.clear();
    gsBoundaryType = report.boundaryType;
    FilterActive = workOutFilterActive(parameters, whole.DTStart, whole.DTEnd);
    buildSelection(parameters);
    ReportFigures figures;
    figures.filtered = FilterActive;
    figures.table = FilterActive ? report.selectedTable : report.mainTable;
    if (FilterActive)
        report.procedure(figures.table, 1);
    *currentTables.of(boundary) = figures.table;
    mapMaxima.resetForRun();
    ModData_MaxValues(figures.table, 1);
    return figures;
}
