#include "stats/ModData_SelectedPostCodeData.h"

#include "core/Prompts.h"
#include "data/types/Value.h"
#include "stats/ModData_CheckNameChanges.h"
#include "stats/ModData_UpdateSpecialRows.h"
#include "stats/StatisticsRun.h"

void ModData_SelectedPostCodeData(const std::string& tableName, int period) {
    StatisticsRun run(postcodeDistricts, tableName, period);
    runStatistics("ModData_SelectedPostCodeData", run, [&] {
        selectCalls(run);
        keepOrRebuildRows(run);
        countCallsAndMoney(run);
        if (period == 1 || (period == 2 && equalText(tableName, "TblSelectedDataForPostCodeDistrict")))
            countCallers(run);
        if (period == 1) {
            foldPseudoAreas(run, EmptySums::Null);
            ensureRow(run, "VOIP");
        } else if (isAnimatedTable(tableName) || isSelectedTable(tableName)) {
            updateSpecialRows(tableName, period, *run.figures);
        }
        ensureRow(run, "Republic Of Ireland");
        if (ModData_CheckPostCodeNameChanges() != 0)
            showMessage("Could not update PostCode region names");
        removeUnnamedAreas(run);
    });
}
