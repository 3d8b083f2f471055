#pragma once

#include "data/types/Value.h"

#include <array>
#include <functional>
#include <string>

/// The largest and the smallest area of a map, kept for the workbook.
struct MapExtremes {
    std::string MapMaxName;
    Money MapMaxValue;
    std::string MapMinName;
    Money MapMinValue;
};

/// A view of the surface that can be restored. Map units.
struct SavedView {
    double centerX = 0.0, centerY = 0.0, scale = 0.0;
};

/// Dates and times that a map shows, one for each frame of an animation; a single map has its own at index 1.
struct MapPeriods {
    static constexpr std::size_t Frames = 11;
    std::array<Date, Frames> MapStartDate{};
    std::array<Date, Frames> MapEndDate{};
    std::array<Date, Frames> MapStartTime{};
    std::array<Date, Frames> MapEndTime{};
};

/// What the building of a map reads and writes of its window: enabled controls, read-outs, flags. The window keeps its
/// widgets in step; without a window it is all there is.
struct MapFormState {
    bool CmdExitEnabled = true;
    bool uctFooter1Enabled = true;
    bool chkDensitiesEnabled = false;
    bool groupLabelsVisible = false; ///< lblGroup and the four labels of the call types beside it

    /// 0 to 3: start date, end date, start time, end time; 4 and 5: name and value of the maximum; 6 and 7: of the
    /// minimum.
    std::array<std::string, 8> LblStatusValue;
    std::array<MapExtremes, 6> extremes; ///< by boundary code

    bool closeRequested = false; ///< the user asked to leave while a map was being built
    bool mapReady = false;       ///< a map has been built to its end
    bool keepView = false;       ///< the next build that captures the view restores savedView instead
    bool labelFlag = false;      ///< labels of the small areas are on
    bool extentCaptured = false; ///< the view of this run is known
    bool AnimationActive = false;
    bool oneOfSeveral = false; ///< that it has no figures is no news: the maps beside it may have some
    SavedView savedView;
    int layerCount = 0;
    int groupBaseGeography = 3; ///< what customer groups are made of: 1 CSGs, 2 TV regions, 3 postcode districts
    int CurrentFrame = 0;       ///< 0: not yet set
    MapPeriods periods;

    /// Updates the panels of calls without a place on the map. May be empty.
    std::function<void(long boundary)> updateCallTypePanels;
};
