#include "stats/ModData_UpdateSpecialRows.h"

#include "core/LogError.h"
#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/CurrentProcedure.h"
#include "stats/FigureSource.h"
#include "stats/Measures.h"

namespace {

struct SpecialTable {
    const std::string& name;
    int period;
    const BoundaryTraits& boundary;
    std::string area; ///< key column
};

void onSystem(const std::string& statement) {
    onSystemDatabase([&] { systemDatabase().execute(statement); });
}

void makeRowsAnew(const SpecialTable& table) {
    onSystem("DELETE FROM " + table.name + " WHERE " + table.area + " IN ('OTHER', 'International', 'VOIP', 'MOBILE')");
    for (const char* row : {"VOIP", "International", "Mobile", "Other"})
        onSystem(zeroRowStatement(table.name, table.area, row, zeroRowPeriods(table.name)));
}

void writeRow(const SpecialTable& table, std::string_view row, const SpecialRowFigures& figures) {
    std::string assignments;
    const auto assign = [&](Measure measure, const Value& value) {
        assignments +=
            (assignments.empty() ? "" : ", ") + measureColumn(measure, table.period) + " = " + value.asText();
    };
    assign(Measure::TotalCalls, figures.totalCalls);
    assign(Measure::Answered, figures.answered);
    assign(Measure::Ineffective, figures.ineffective);
    assign(Measure::Cost, figures.cost);
    assign(Measure::Revenue, figures.revenue);
    assign(Measure::Engaged, figures.engaged);
    assign(Measure::RTNR, figures.rtnr);
    assign(Measure::Other, figures.other);
    onSystem("UPDATE " + table.name + " SET " + assignments + " WHERE " + table.area + " = '" + std::string(row) + "'");
}

void addCallers(const SpecialTable& table, Measure measure, const std::vector<CallerCount>& counts) {
    const std::string column = measureColumn(measure, table.period);
    for (const CallerCount& count : counts)
        onSystem("UPDATE " + table.name + " SET " + column + " = " + column + " + " + std::to_string(count.callers) +
                 " WHERE " + table.area + " = '" + count.area.value_or("") + "'");
}

} // namespace

void updateSpecialRows(const std::string& tableName, int period, FigureSource& figures) {
    const CurrentProcedure procedure("ModData_UpdateSpecialRows");
    const BoundaryTraits* boundary = boundaryOfSpecialRows(tableName);
    if (!boundary) {
        LogError(gsCurrentProc, 5, "Table '" + tableName + "' has no side-panel rows to update");
        return;
    }
    const SpecialTable table{tableName, period, *boundary, std::string(boundary->areaColumn)};
    if (period == 1 || (period == 2 && isSelectedTable(tableName)))
        makeRowsAnew(table);
    writeRow(table, "VOIP", figures.specialRow(" = 'VOIP'"));
    writeRow(table, "Other", figures.specialRow(" IN ('NO CLI', 'OLO', 'UNTRACEAB')"));
    writeRow(table, "International", figures.specialRow(boundary->overseasTest));
    writeRow(table, "Mobile", figures.specialRow(" = 'MOBILE'"));
    if (isSelectedTable(tableName)) {
        addCallers(table, Measure::AnsweredCallers, figures.mobileAndVoipCallers(CallerKind::Answered));
        addCallers(table, Measure::LostCallers, figures.mobileAndVoipCallers(CallerKind::Lost));
    }
}

void ModData_UpdateSpecialRows(const std::string& tableName, int period) {
    const BoundaryTraits* boundary = boundaryOfSpecialRows(tableName);
    updateSpecialRows(tableName, period, *newFigureSource(boundary ? *boundary : tvRegions));
}
