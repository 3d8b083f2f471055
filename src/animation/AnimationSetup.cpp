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

namespace {

/// "2 d 1 h 30 min", without what is 0.
std::string lengthInWords(long minutes) {
    constexpr long ofDay = 1440, ofHour = 60;
    std::string words;
    const auto add = [&](long count, const char* unit) {
        if (count > 0)
            words += (words.empty() ? "" : " ") + std::to_string(count) + unit;
    };
    add(minutes / ofDay, " d");
    add(minutes % ofDay / ofHour, " h");
    add(minutes % ofHour, " min");
    return words;
}

std::string moment(Date day, Date time) {
    return Value(day).asText() + " " + Value(time).asText();
}

} // namespace

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
    : parameters_(parameters), project_(projectPeriod()), periods_(periods) {}

AnimationSettings AnimationSetup::presets() const {
    AnimationSettings settings;
    settings.startDate = parameters_.DTStart;
    settings.startTime = parameters_.DTStartTime[0];
    settings.endDate = parameters_.DTEnd;
    settings.endTime = parameters_.DTStartTime[1];
    if (FrameCount > 0)
        settings.CmbInterval = std::to_string(FrameIntervalSeconds);
    if (const auto captured = capturedAnimation()) {
        settings.startDate = captured->startDate;
        settings.startTime = captured->startTime;
        settings.CmbFrames = captured->CmbFrames;
        settings.CmbDataPeriod = captured->CmbDataPeriod;
    }
    return settings;
}

std::string AnimationSetup::outline(const AnimationSettings& settings) const {
    const int frames = framesOf(settings);
    if (!project_ || frames < 1 || frames > maximumFrames ||
        (settings.OptPeriod != 0 && settings.CmbDataPeriod.empty()))
        return {};
    const FrameSchedule schedule = scheduleFrames(settings, project_->end);
    if (schedule.fault && schedule.fault->style == PromptStyle::Information)
        return "The frames go beyond the calls of the project, which end on " + Value(project_->end).asText();
    if (schedule.fault)
        return "The end must lie at least a minute for each frame after the start";
    const AnimationFrame &first = schedule.frames.front(), &last = schedule.frames.back();
    return lengthInWords(*frameMinutes(settings)) + " a frame, " + moment(first.startDate, first.startTime) + " to " +
           moment(last.endDate, last.endTime);
}

bool AnimationSetup::prepare(const AnimationSettings& settings, AnimationForm& form) {
    if (!project_) {
        showMessage("The project does not tell from when to when its calls are");
        return false;
    }
    if (const std::string fault = settingsFault(settings, *project_); !fault.empty()) {
        showMessage(fault);
        return false;
    }
    const FrameSchedule schedule = scheduleFrames(settings, project_->end);
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
