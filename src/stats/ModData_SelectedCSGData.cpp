#include "stats/ModData_SelectedCSGData.h"

#include "stats/ModData_UpdateSpecialRows.h"
#include "stats/StatisticsRun.h"

void ModData_SelectedCSGData(const std::string& tableName, int period) {
    StatisticsRun run(callingSubscriberGeographies, tableName, period);
    runStatistics("ModData_SelectedCSGData", run, [&] {
        selectCalls(run);
        rebuildRows(run);
        countCallsAndMoney(run);
        if (period == 1) {
            countCallers(run);
            foldUnplacedAndOverseas(run, EmptySums::Null);
            nameMobile(run);
        } else {
            removeRows(run, "'MOBILE', 'OTHER'");
        }
        ensureRow(run, "VOIP");
        ensureRow(run, "Republic Of Ireland");
        removeUnnamedAreas(run);
        if (isAnimatedTable(tableName) || isSelectedTable(tableName))
            updateSpecialRows(tableName, period, *run.figures);
    });
}
