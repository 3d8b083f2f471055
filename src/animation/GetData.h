#pragma once

#include "animation/FrameSchedule.h"
#include "map/MapFormState.h"
#include "stats/ReportParameters.h"

#include <functional>

/// What the frames are counted from and how the counting shows itself.
struct FrameRun {
    /// The filter: inbound numbers, answer points, destination, overnight. Its days and hours have no part in it.
    const ReportParameters& parameters;
    bool recompute = true; ///< count the calls; else the figures stand and only the scale is worked out
    std::function<void(int frames)> frameDone; ///< how many frames are done; may be empty
};

/// Counts the calls of each frame into its period of the animated tables, of TV regions where a TV table is in use,
/// else of postcode districts, and finds the maxima over all frames, the one scale on which they are played. Then keeps
/// their days and times in `periods` at the numbers of the frames, sets FrameCount, and puts the table of the first
/// frame in use. SelectionSql is left as that of the last frame. Yields between frames.
///
/// False, with the user told why and nothing else changed, where no table that can be animated is in use, or a
/// community group is too large. An error of a step is logged, and the next one follows.
bool GetData(const FrameRun& run, const std::vector<AnimationFrame>& frames, MapPeriods& periods);
