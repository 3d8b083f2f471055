#include "stats/ModData_SelectedCustomerGroups.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/GroupScanFigures.h"
#include "stats/StatisticsRun.h"

#include <optional>

namespace {

bool projectHasGroups(const StatisticsRun& run) {
    run.display.task("Checking Group Data structures...");
    long groups = 0;
    onSystemDatabase([&] {
        groups = countOf(projectDatabase(), "SELECT Count(*) AS CountOfGroups FROM tblGroups Where GroupName <> ''");
    });
    return groups > 0;
}

void linkGroups(const StatisticsRun& run) {
    run.display.task("Updating Group Data structures...");
    onSystemDatabase([] { dropTable(systemDatabase(), "TblGroup_Link"); });
    run.display.task("Creating Group Links...");
    onSystemDatabase([] {
        TableDef link = systemDatabase().createTableDef("TblGroup_Link");
        link.sourceTableName = "TblGroups";
        link.connect = "MS Access;DATABASE=" + customerGroupsPath();
        systemDatabase().tableDefs().append(link);
    });
}

/// Of which areas the account's groups are made; nothing where that was never set.
std::optional<GroupAreas> groupAreas() {
    std::optional<GroupAreas> areas;
    onSystemDatabase([&] {
        const auto type =
            firstValue(systemDatabase(),
                       "SELECT DataType FROM tblMappingGroupSetup_Link WHERE TallyAccount = " + quoted(gsAccount));
        if (!type || type->isNull())
            return;
        areas = GroupAreas::Unknown;
        const long number = type->asLong();
        if (number >= static_cast<long>(GroupAreas::Csg) && number <= static_cast<long>(GroupAreas::PostcodeDistrict))
            areas = static_cast<GroupAreas>(number);
    });
    return areas;
}

/// In period 1 the row of mobile callers stays, should there be one.
void removeCallAreas(StatisticsRun& run) {
    if (run.target.period() != 1) {
        removeRows(run, "'MOBILE', 'OTHER', 'International'");
        return;
    }
    removeRows(run, "'OTHER', 'International'");
    removeRows(run, "'NO CLI', 'OLO', 'UNTRACEAB'");
    removeRowsLike(run, ".*");
}

void countGroups(StatisticsRun& run, const std::optional<GroupAreas>& areas) {
    if (areas) {
        makeGroupGeography(*areas);
        selectCalls(run);
    }
    keepOrRebuildRows(run);
    countCallsAndMoney(run);
    if (run.target.period() == 1) {
        findAnsweredCallers(run);
        run.figures->makeCallers(CallerKind::Lost, {}); // of all dates
        countAnsweredCallers(run);
        countLostCallers(run);
    }
    removeCallAreas(run);
}

} // namespace

void ModData_SelectedCustomerGroups(const std::string& tableName, int period) {
    StatisticsRun run(customerGroups, tableName, period, nullptr);
    runStatistics("ModData_SelectedCustomerGroups", run, [&] {
        if (!projectHasGroups(run))
            return;
        linkGroups(run);
        run.display.task("Analysing Group Data Type...");
        const auto areas = groupAreas();
        run.figures = newGroupFigureSource(tableName, areas.value_or(GroupAreas::Unknown));
        countGroups(run, areas);
    });
}
