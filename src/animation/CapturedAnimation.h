#pragma once

#include "animation/AnimationSettings.h"
#include "stats/ReportParameters.h"

#include <optional>
#include <string>

/// The capture row of the system map database remembers whose frames the animated tables hold: project, boundary,
/// number of frames, start, length of a frame, and the filter. Errors are logged and passed over. Main thread.

/// Whether the frames must be counted anew: the row remembers something else than the open project, gsBoundaryType,
/// these settings or the inbound numbers and answer points of these parameters. A destination and the overnight tick
/// are not looked at. So it is as well where the row cannot be read.
bool CheckAnimationData(const AnimationSettings& settings, const ReportParameters& parameters);

/// Writes all that to the row, where there is one.
void SaveAnimationData(const AnimationSettings& settings, const ReportParameters& parameters);

/// The row knows of no frames: the animated tables are about to change.
void forgetAnimationData();

/// What the last animation of the open project was set up with. A length that the list does not offer is left empty.
struct CapturedAnimation {
    Date startDate, startTime;
    std::string CmbFrames, CmbDataPeriod;
};
std::optional<CapturedAnimation> capturedAnimation();
