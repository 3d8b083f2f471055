#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/StatisticsRun.h"

namespace {

void onSystem(const std::string& statement) {
    onSystemDatabase([&] { systemDatabase().execute(statement); });
}

/// Whether there is a row of the name. A table that cannot be read counts as one that has it.
bool hasRowNamed(const StatisticsRun& run, std::string_view name) {
    bool has = true;
    onSystemDatabase([&] {
        has = countOf(systemDatabase(), "SELECT COUNT(*) as RecCount FROM " + run.target.name() + " WHERE ucase(" +
                                            run.target.areaColumn() + ") = " + quoted(upperText(name))) > 0;
    });
    return has;
}

void addZeroRow(const StatisticsRun& run, std::string_view name, int periods) {
    onSystem(zeroRowStatement(run.target.name(), run.target.areaColumn(), name, periods));
}

/// One row `name` with the sums of period 1 over the rows that fit `condition`.
void addSumRow(const StatisticsRun& run, std::string_view name, const std::string& condition, EmptySums empty) {
    std::string sums;
    for (const Measure measure : periodMeasures) {
        const std::string sum = "SUM(" + measureColumn(measure, 1) + ")";
        sums += empty == EmptySums::Null ? ", " + sum : ", iif(isnull(" + sum + "), 0, " + sum + ")";
    }
    onSystem("INSERT INTO " + run.target.name() + " (" + run.target.areaColumn() + ", " + measureColumnList(1) +
             ") SELECT '" + std::string(name) + "' AS Expr1" + sums + " FROM " + run.target.name() + condition);
}

} // namespace

void foldUnplacedAndOverseas(StatisticsRun& run, EmptySums unplacedSums) {
    run.display.task(run.boundary.texts.sidePanels);
    const std::string& area = run.target.areaColumn();
    const std::string removeFrom = "DELETE FROM " + run.target.name();
    const std::string unplaced = " WHERE " + area + " IN ('NO CLI', 'OLO', 'UNTRACEAB')";
    const std::string overseas = " WHERE " + area + std::string(run.boundary.overseasTest);

    removeRows(run, "'OTHER', 'International'");
    addSumRow(run, "Other", unplaced, unplacedSums);
    onSystem(removeFrom + unplaced);
    addSumRow(run, "International", overseas, EmptySums::Zero);
    onSystem(removeFrom + overseas);
    run.display.stepDone();
}

void foldPseudoAreas(StatisticsRun& run, EmptySums unplaced) {
    foldUnplacedAndOverseas(run, unplaced);
    if (hasRowNamed(run, "MOBILE"))
        nameMobile(run);
    else
        addZeroRow(run, "MOBILE", 1);
    for (const char* name : {"Other", "International"}) {
        if (!hasRowNamed(run, name))
            addZeroRow(run, name, 1);
    }
}

void nameMobile(StatisticsRun& run) {
    const std::string& area = run.target.areaColumn();
    onSystem("UPDATE " + run.target.name() + " SET " + area + " = 'Mobile' WHERE " + area + " = 'MOBILE'");
}

void ensureRow(StatisticsRun& run, std::string_view name) {
    if (!hasRowNamed(run, name))
        addZeroRow(run, name, zeroRowPeriods(run.target.name()));
}

void removeRows(StatisticsRun& run, std::string_view names) {
    onSystem("DELETE FROM " + run.target.name() + " WHERE " + run.target.areaColumn() + " IN (" + std::string(names) +
             ")");
}

void removeRowsLike(StatisticsRun& run, std::string_view pattern) {
    onSystem("DELETE FROM " + run.target.name() + " WHERE " + run.target.areaColumn() + " LIKE " + quoted(pattern));
}

void removeUnnamedAreas(StatisticsRun& run) {
    const std::string& area = run.target.areaColumn();
    onSystem("DELETE FROM " + run.target.name() + " WHERE " + area + " = '' OR " + area + " IS NULL");
}
