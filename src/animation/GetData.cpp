#include "animation/GetData.h"

#include "animation/Animation.h"
#include "animation/CapturedAnimation.h"
#include "core/CurrentProcedure.h"
#include "core/Progress.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "stats/ModData_MaxValues.h"
#include "stats/ModData_SelectedPostCodeData.h"
#include "stats/ModData_SelectedTVArea.h"
#include "stats/ModData_Setup_SQLSelection.h"
#include "stats/SelectionState.h"
#include "stats/StatsProgress.h"

namespace {

/// False where the community group is too large. The flag is this run's to clear.
bool selectFrame(const ReportParameters& parameters, const AnimationFrame& frame) {
    Date start = frame.startDate;
    Date end = frame.endDate;
    ModData_Setup_SQLSelection(parameters, SelectionSql, start, end, frame.startTime, frame.endTime, 0);
    const bool tooLarge = GroupLimitExceeded;
    GroupLimitExceeded = false;
    return !tooLarge;
}

void countFrame(long boundary, int frame, bool recompute) {
    const std::string table = animatedTable(boundary, frame);
    const int period = animatedPeriod(frame);
    if (recompute)
        (boundary == animatedTVRegions ? ModData_SelectedTVArea : ModData_SelectedPostCodeData)(table, period);
    ModData_MaxValues(table, period);
}

void keepFrames(long boundary, const std::vector<AnimationFrame>& frames, MapPeriods& periods) {
    for (std::size_t i = 0; i < frames.size(); ++i) {
        periods.MapStartDate[i + 1] = frames[i].startDate;
        periods.MapStartTime[i + 1] = frames[i].startTime;
        periods.MapEndDate[i + 1] = frames[i].endDate;
        periods.MapEndTime[i + 1] = frames[i].endTime;
    }
    FrameCount = static_cast<std::int16_t>(frames.size());
    *currentTables.of(boundary) = animatedTable(boundary, 1);
}

} // namespace

bool GetData(const FrameRun& run, const std::vector<AnimationFrame>& frames, MapPeriods& periods) {
    const CurrentProcedure procedure("FrmAnimate_GetData");
    const long boundary = animatedBoundary();
    if (boundary < 0) {
        showMessage("Only maps of TV Regions and Post Code Districts can be animated", PromptStyle::Information);
        return false;
    }
    const Hourglass hourglass;
    StatsProgressStep = StatsProgressMaximum = 0; // the bar of reports has no part in this
    for (int frame = 1; frame <= static_cast<int>(frames.size()); ++frame) {
        if (!selectFrame(run.parameters, frames[static_cast<std::size_t>(frame) - 1])) {
            showMessage("Please re-select parameters");
            return false;
        }
        if (frame == 1) {
            mapMaxima.resetForRun();
            if (run.recompute)
                forgetAnimationData();
        }
        countFrame(boundary, frame, run.recompute);
        if (run.frameDone)
            run.frameDone(frame);
        progress().yield();
    }
    keepFrames(boundary, frames, periods);
    return true;
}
