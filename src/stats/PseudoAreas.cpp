#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/StatisticsRun.h"

namespace {

void onSystem(const std::string& statement) {
    onSystemDatabase([&] { systemDatabase().execute(statement); });
}

/// Whether any row fits the condition " WHERE …". A table that cannot be read counts as one where it does.
bool hasRow(const StatisticsRun& run, const std::string& condition) {
    bool has = true;
    onSystemDatabase([&] {
        has = countOf(systemDatabase(), "SELECT COUNT(*) as RecCount FROM " + run.target.name() + condition) > 0;
    });
    return has;
}

void addZeroRow(const StatisticsRun& run, std::string_view name, int periods) {
    onSystem(zeroRowStatement(run.target.name(), run.target.areaColumn(), name, periods));
}

/// One row `name` with the sums of period 1 over the rows that fit `condition`.
void addSumRow(const StatisticsRun& run, std::string_view name, const std::string& condition) {
    std::string sums;
    for (const Measure measure : periodMeasures) {
        const std::string column = measureColumn(measure, 1);
        sums += ", iif(isnull(SUM(" + column + ")), 0, SUM(" + column + "))";
    }
    onSystem("INSERT INTO " + run.target.name() + " (" + run.target.areaColumn() + ", " + measureColumnList(1) +
             ") SELECT '" + std::string(name) + "' AS Expr1" + sums + " FROM " + run.target.name() + condition);
}

} // namespace

void foldPseudoAreas(StatisticsRun& run) {
    run.display.task(run.boundary.texts.sidePanels);
    const std::string& area = run.target.areaColumn();
    const std::string removeFrom = "DELETE FROM " + run.target.name();
    const std::string unplaced = " WHERE " + area + " IN ('NO CLI', 'OLO', 'UNTRACEAB')";
    const std::string overseas = " WHERE " + area + std::string(run.boundary.overseasTest);

    onSystem(removeFrom + " WHERE " + area + " IN ('OTHER', 'International')");
    addSumRow(run, "Other", unplaced);
    onSystem(removeFrom + unplaced);
    addSumRow(run, "International", overseas);
    onSystem(removeFrom + overseas);
    if (hasRow(run, " WHERE ucase(" + area + ") = 'MOBILE'"))
        onSystem("UPDATE " + run.target.name() + " SET " + area + " = 'Mobile' WHERE " + area + " = 'MOBILE'");
    else
        addZeroRow(run, "MOBILE", 1);
    if (!hasRow(run, " WHERE " + area + " = 'Other'"))
        addZeroRow(run, "Other", 1);
    if (!hasRow(run, " WHERE ucase(" + area + ") = 'International'"))
        addZeroRow(run, "International", 1);
    run.display.stepDone();
}

void ensureRepublicOfIreland(StatisticsRun& run) {
    if (!hasRow(run, " WHERE ucase(" + run.target.areaColumn() + ") = 'REPUBLIC OF IRELAND'"))
        addZeroRow(run, "Republic Of Ireland", zeroRowPeriods(run.target.name()));
}

void removeUnnamedAreas(StatisticsRun& run) {
    const std::string& area = run.target.areaColumn();
    onSystem("DELETE FROM " + run.target.name() + " WHERE " + area + " = '' OR " + area + " IS NULL");
}
