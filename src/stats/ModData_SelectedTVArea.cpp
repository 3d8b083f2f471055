#include "stats/ModData_SelectedTVArea.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "stats/ModData_CheckNameChanges.h"
#include "stats/ModData_UpdateSpecialRows.h"
#include "stats/StatisticsRun.h"

#include <optional>

namespace {

void prepareRows(StatisticsRun& run) {
    if (keepsRows(run))
        zeroRows(run);
    else
        rebuildRows(run);
}

} // namespace

void ModData_SelectedTVArea(const std::string& tableName, int period) {
    gsCurrentProc = "ModData_SelectedTVArea";
    StatisticsRun run(tvRegions, tableName, period);
    openForRun(run);

    std::optional<WorkspaceTransaction> transaction;
    logAndGoOn([&] { transaction.emplace(*defaultWorkspace()); });
    selectCalls(run);
    prepareRows(run);
    countCalls(run);
    sumCost(run);
    sumRevenue(run);
    findAnsweredCallers(run);
    findLostCallers(run);
    countLostCallers(run);
    countAnsweredCallers(run);
    if (period == 1)
        foldPseudoAreas(run);
    if (isAnimatedTable(tableName) || isSelectedTable(tableName))
        updateSpecialRows(tableName, period, *run.figures);
    ensureRepublicOfIreland(run);
    ModData_CheckTVNameChanges();
    removeUnnamedAreas(run);
    run.target.close();
    if (transaction)
        logAndGoOn([&] { transaction->commit(); });
}
