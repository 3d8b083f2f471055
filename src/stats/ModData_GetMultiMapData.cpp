#include "stats/ModData_GetMultiMapData.h"

#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "stats/CurrentProcedure.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "stats/ModData_MaxValues.h"
#include "stats/ModData_SelectedPostCodeData.h"
#include "stats/ModData_SelectedTVArea.h"
#include "stats/ModData_Setup_SQLSelection.h"
#include "stats/SelectionState.h"
#include "stats/StatsProgress.h"

namespace {

constexpr int stepsPerMap = 4;
constexpr int firstPeriod = 2; ///< period 1 is the single map

void selectRange(const ReportParameters& parameters, const MultiMapParameters& ranges, int range) {
    const auto* picked = &ranges.DTPicker1[static_cast<std::size_t>(range) * 4];
    Date start = picked[0];
    Date end = picked[2];
    ModData_Setup_SQLSelection(parameters, SelectionSql, start, end, picked[1], picked[3], 0);
}

void countRange(int period, bool recompute) {
    const bool byRegion = !currentTables.TV.empty();
    const std::string table = byRegion ? currentTables.TV : currentTables.PostCodeDistrict;
    if (table.empty())
        return;
    if (recompute) {
        progress().setReportBar(true, StatsProgressMaximum, StatsProgressStep);
        progress().yield();
        (byRegion ? ModData_SelectedTVArea : ModData_SelectedPostCodeData)(table, period);
    }
    ModData_MaxValues(table, period);
}

} // namespace

int mapCount(const MultiMapParameters& ranges) {
    return ranges.OptPeriods == 2 ? 6 : ranges.OptPeriods == 1 ? 4 : 2;
}

void ModData_GetMultiMapData(const ReportParameters& parameters, const MultiMapParameters& ranges, bool recompute) {
    const CurrentProcedure procedure("ModData_GetMultiMapData");
    const int maps = mapCount(ranges);
    mapMaxima.resetForRun();
    StatsProgressStep = 0;
    StatsProgressMaximum = maps * stepsPerMap;
    for (int range = 0; range < maps; ++range) {
        progress().setReportBar(recompute, StatsProgressMaximum, ++StatsProgressStep);
        progress().yield();
        selectRange(parameters, ranges, range);
        if (GroupLimitExceeded)
            break;
        countRange(range + firstPeriod, recompute);
    }
    GroupLimitExceeded = false;
}
