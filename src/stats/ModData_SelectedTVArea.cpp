#include "stats/ModData_SelectedTVArea.h"

#include "stats/ModData_CheckNameChanges.h"
#include "stats/ModData_UpdateSpecialRows.h"
#include "stats/StatisticsRun.h"

void ModData_SelectedTVArea(const std::string& tableName, int period) {
    StatisticsRun run(tvRegions, tableName, period);
    runStatistics("ModData_SelectedTVArea", run, [&] {
        selectCalls(run);
        keepOrRebuildRows(run);
        countCallsAndMoney(run);
        countCallers(run);
        if (period == 1)
            foldPseudoAreas(run, EmptySums::Zero);
        if (isAnimatedTable(tableName) || isSelectedTable(tableName))
            updateSpecialRows(tableName, period, *run.figures);
        ensureRow(run, "Republic Of Ireland");
        ModData_CheckTVNameChanges();
        removeUnnamedAreas(run);
    });
}
