#pragma once

#include "animation/AnimationSettings.h"
#include "map/MapFormState.h"
#include "report/ProjectPeriod.h"
#include "stats/ReportParameters.h"

#include <optional>
#include <string>

/// What the set-up of an animation shows of itself while it works. Without a window nothing is shown.
class AnimationForm {
public:
    virtual ~AnimationForm() = default;
    /// Nothing can be used while frames are counted.
    virtual void DisableForm() {}
    virtual void EnableForm() {}
    /// Label7 and Prog1: shown with a text and a maximum.
    virtual void showProgress(const std::string& /*text*/, int /*maximum*/) {}
    virtual void setProgress(int /*value*/) {}
    virtual void hideProgress() {}
};

/// What the window FrmAnimate decides, without its controls. The map's window and its periods outlive it. Main thread.
class AnimationSetup {
public:
    /// `parameters`: those of the report whose map is to be animated; their filter holds for every frame. `periods`:
    /// those of the map, which get the days and times of the frames.
    AnimationSetup(const ReportParameters& parameters, MapPeriods& periods);

    /// What the window starts with: the last animation of this project, else the days and hours of the report.
    AnimationSettings presets() const;

    /// Frames and times that the settings come to, in words, or what is wrong with them; empty while they are not
    /// complete.
    std::string outline(const AnimationSettings& settings) const;

    /// Checks the settings, counts the frames unless the tables hold them already, and remembers what they stand for.
    /// True: the frames are there to be played, and FrameIntervalSeconds is set. False: the user knows why not, the
    /// form is enabled again and the map is as it was.
    bool CmdApply_Click(const AnimationSettings& settings, AnimationForm& form);

private:
    bool prepare(const AnimationSettings& settings, AnimationForm& form);

    ReportParameters parameters_;
    std::optional<ProjectPeriod> project_;
    MapPeriods& periods_;
};

/// What is wrong with the settings, in the words for the user; empty where nothing is.
std::string settingsFault(const AnimationSettings& settings, const ProjectPeriod& project);
