#include "stats/ModData_SelectedExchangeData.h"

#include "core/Prompts.h"
#include "stats/ModData_CheckNameChanges.h"
#include "stats/StatisticsRun.h"

void ModData_SelectedExchangeData(const std::string& tableName, int period) {
    StatisticsRun run(exchanges, tableName, period);
    runStatistics("ModData_SelectedExchangeData", run, [&] {
        selectCalls(run);
        rebuildRows(run);
        countCallsAndMoney(run);
        if (period == 1) {
            countCallers(run);
            foldPseudoAreas(run, EmptySums::Zero);
        } else {
            removeRows(run, "'MOBILE', 'OTHER', 'International'");
        }
        ensureRow(run, "VOIP");
        if (period == 1)
            ensureRow(run, "Mobile");
        ensureRow(run, "Republic Of Ireland");
        if (period == 1 && run.isMain && ModData_CheckExchangeNameChanges() != 0)
            showMessage("Could not update Exchange Names");
        removeUnnamedAreas(run);
    });
}
