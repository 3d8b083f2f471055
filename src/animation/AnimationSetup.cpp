#include "animation/AnimationSetup.h"

#include "animation/Animation.h"
#include "animation/AnimationTyping.h"
#include "animation/CapturedAnimation.h"
#include "animation/FrameSchedule.h"
#include "animation/GetData.h"
#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"

#include <cmath>

std::string settingsFault(const AnimationSettings& settings, const ProjectPeriod& project) {
    if (std::floor(settings.startDate.days) < std::floor(project.start.days))
        return "Invalid start date entered";
    if (settings.OptPeriod == 0 && std::floor(settings.endDate.days) > std::floor(project.end.days))
        return "Invalid end date entered";
    if (settings.OptPeriod != 0 && settings.CmbDataPeriod.empty())
        return "Please select a data period";
    if (framesOf(settings) < 1 && framesFault(settings.CmbFrames).empty())
        return "Please select number of frames";
    if (intervalOf(settings) < 1 && intervalFault(settings.CmbInterval).empty())
        return "Please select a display interval";
    const std::string frames = framesFault(settings.CmbFrames);
    return frames.empty() ? intervalFault(settings.CmbInterval) : frames;
}

AnimationSetup::AnimationSetup(const ReportParameters& parameters, MapPeriods& periods)
    : parameters_(parameters), periods_(periods) {}

AnimationSettings AnimationSetup::presets() const {
    AnimationSettings settings;
    settings.startDate = parameters_.DTStart;
    settings.startTime = parameters_.DTStartTime[0];
    settings.endDate = parameters_.DTEnd;
    settings.endTime = parameters_.DTStartTime[1];
    if (const auto captured = capturedAnimation()) {
        settings.startDate = captured->startDate;
        settings.startTime = captured->startTime;
        settings.CmbFrames = captured->CmbFrames;
        settings.CmbDataPeriod = captured->CmbDataPeriod;
    }
    return settings;
}

bool AnimationSetup::prepare(const AnimationSettings& settings, AnimationForm& form) {
    const auto project = projectPeriod();
    if (!project) {
        showMessage("The project does not tell from when to when its calls are");
        return false;
    }
    if (const std::string fault = settingsFault(settings, *project); !fault.empty()) {
        showMessage(fault);
        return false;
    }
    const FrameSchedule schedule = scheduleFrames(settings, project->end);
    if (schedule.fault) {
        showMessage(schedule.fault->text, schedule.fault->style);
        return false;
    }
    FrameRun run{.parameters = parameters_, .recompute = CheckAnimationData(settings, parameters_), .frameDone = {}};
    if (run.recompute)
        form.showProgress("Analysing map data for project, please wait...", framesOf(settings));
    run.frameDone = [&](int frames) { form.setProgress(frames); };
    if (!GetData(run, schedule.frames, periods_))
        return false;
    FrameIntervalSeconds = static_cast<std::int16_t>(intervalOf(settings));
    SaveAnimationData(settings, parameters_);
    return true;
}

bool AnimationSetup::CmdApply_Click(const AnimationSettings& settings, AnimationForm& form) {
    const CurrentProcedure procedure("FrmAnimate_CmdApply_Click");
    form.DisableForm();
    bool prepared = false;
    logAndGoOn([&] { prepared = prepare(settings, form); });
    form.hideProgress();
    if (!prepared)
        form.EnableForm();
    return prepared;
}
