#include "animation/playback/Playback.h"

#include "animation/Animation.h"
#include "animation/playback/PlaybackMap.h"
#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "map/MapFormState.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "stats/ModData_MaxValues.h"
#include "stats/SelectionState.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr std::int16_t settlingTicks = 2;
/// The count of ticks goes round in these bounds, which are above the settling ones.
constexpr std::int16_t highestCount = 101, countStartsAgain = 5;

std::string reportTable(long boundary) {
    if (boundary == animatedTVRegions)
        return FilterActive ? "TblSelectedDataForTV" : "TblTV";
    return FilterActive ? "TblSelectedDataForPostCodeDistrict" : "TblPostCodeDistrict";
}

/// "20:00", to the minute.
std::string hourText(Date time) {
    const DateParts parts = partsOf(time);
    std::string text = std::to_string(parts.hour * 100 + parts.minute + 10000).substr(1);
    return text.insert(2, ":");
}

void useOnly(long boundary, const std::string& table) {
    currentTables.clear();
    *currentTables.of(boundary) = table;
}

} // namespace

class Playback::Work {
public:
    explicit Work(Playback& playback) : playback_(playback) { playback_.busy_ = true; }
    ~Work() { playback_.busy_ = false; }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

private:
    Playback& playback_;
};

Playback::Playback(PlaybackMap& map, MapFormState& form) : map_(map), form_(form) {}

void Playback::begin() {
    TickCount_ = 0;
    FramesReady_ = false;
    leave();
    tellChange();
}

void Playback::framesReady() {
    if (FrameCount < 1 || animatedBoundary() < 0)
        return;
    state_ = State::Paused;
    form_.AnimationActive = true; // a frame without calls is no news
    showFrame(1);
}

void Playback::animate() {
    if (state_ != State::Paused)
        return;
    state_ = State::Playing;
    tellChange();
}

void Playback::pause() {
    if (state_ != State::Playing)
        return;
    state_ = State::Paused;
    form_.CurrentFrame = shownFrame_; // a tick has already gone on to the next
    tellChange();
}

void Playback::tick() {
    if (state_ != State::Playing || busy_)
        return;
    const CurrentProcedure procedure("FrmMap_Timer1_Timer");
    {
        const Work work(*this);
        progress().yield();
        FramesReady_ = FramesReady_ || TickCount_ > settlingTicks;
        if (state_ == State::Playing && form_.CurrentFrame == 0)
            form_.CurrentFrame = 1;
        if (state_ == State::Playing && FramesReady_) {
            showCurrentFrame();
            if (state_ == State::Playing) // still, after a build that let events run
                form_.CurrentFrame = form_.CurrentFrame < FrameCount ? form_.CurrentFrame + 1 : 1;
        }
        TickCount_ = TickCount_ < highestCount ? static_cast<std::int16_t>(TickCount_ + 1) : countStartsAgain;
        form_.CmdExitEnabled = form_.uctFooter1Enabled = true;
    }
    doWhatWasAskedMeanwhile();
    tellChange();
}

void Playback::showFrame(int frame) {
    if (!form_.AnimationActive || !active() || frame < 1 || frame > FrameCount)
        return;
    if (busy_) {
        wantedFrame_ = frame;
        return;
    }
    const CurrentProcedure procedure("FrmMap_HScroll1_Change");
    {
        const Work work(*this);
        form_.CurrentFrame = frame;
        showCurrentFrame();
    }
    doWhatWasAskedMeanwhile();
    tellChange();
}

bool Playback::rebuild() {
    if (!active())
        return false;
    if (busy_) {
        rebuildWanted_ = true;
        return true;
    }
    const int next = std::exchange(form_.CurrentFrame, shownFrame_);
    {
        const Work work(*this);
        showCurrentFrame();
        if (state_ == State::Playing)
            form_.CurrentFrame = next;
    }
    doWhatWasAskedMeanwhile();
    tellChange();
    return true;
}

/// With the table and the period of CurrentFrame.
void Playback::showCurrentFrame() {
    const long boundary = animatedBoundary();
    shownFrame_ = form_.CurrentFrame;
    logAndGoOn([&] {
        useOnly(boundary, animatedTable(boundary, shownFrame_));
        MapPeriod_ = animatedPeriod(shownFrame_);
        map_.build(map_.mapType(), MapPeriod_);
    });
}

/// A stop leaves nothing else to be done; a frame that is shown is rebuilt by that.
void Playback::doWhatWasAskedMeanwhile() {
    const bool stops = std::exchange(stopWanted_, false);
    const int frame = std::exchange(wantedFrame_, 0);
    const bool again = std::exchange(rebuildWanted_, false);
    if (stops)
        stop();
    else if (frame != 0)
        showFrame(frame);
    else if (again)
        rebuild();
}

void Playback::setInterval(int seconds) {
    TickCount_ = 1;
    FrameIntervalSeconds =
        static_cast<std::int16_t>(std::clamp<int>(seconds, 1, std::numeric_limits<std::int16_t>::max()));
    tellChange();
}

void Playback::stop() {
    if (!active())
        return;
    if (busy_) {
        state_ = State::Paused;
        form_.CurrentFrame = shownFrame_;
        stopWanted_ = true;
        tellChange();
        return;
    }
    const CurrentProcedure procedure("FrmMap_cmdStopAnimate_Click");
    state_ = State::Paused; // no clock from here on
    {
        const Work work(*this);
        tellChange();
        progress().yield();
        restoreReport();
    }
    leave();
    tellChange();
}

void Playback::restoreReport() {
    const long boundary = animatedBoundary();
    if (boundary < 0)
        return; // another boundary has been counted
    mapMaxima.resetForRun();
    const std::string table = reportTable(boundary);
    useOnly(boundary, table);
    logAndGoOn([&] { ModData_MaxValues(table, 1); });
    const ReportParameters& report = map_.parameters();
    form_.periods.MapStartDate[1] = report.DTStart;
    form_.periods.MapEndDate[1] = report.DTEnd;
    form_.periods.MapStartTime[1] = report.DTStartTime[0];
    form_.periods.MapEndTime[1] = report.DTStartTime[1];
    leave();
    logAndGoOn([&] { map_.build(map_.mapType(), 1); });
}

void Playback::abandon() {
    if (!active())
        return;
    leave();
    tellChange();
}

void Playback::leave() {
    state_ = State::Static;
    form_.AnimationActive = false;
    form_.CurrentFrame = 0;
    shownFrame_ = 0;
    MapPeriod_ = 1;
    wantedFrame_ = 0;
    stopWanted_ = rebuildWanted_ = false;
}

std::string Playback::frameText() const {
    const auto at = static_cast<std::size_t>(shownFrame_);
    if (!active() || shownFrame_ < 1 || at >= MapPeriods::Frames)
        return {};
    const MapPeriods& periods = form_.periods;
    const std::string from = Value(periods.MapStartDate[at]).asText(), to = Value(periods.MapEndDate[at]).asText();
    return std::to_string(shownFrame_) + " of " + std::to_string(FrameCount) + ": " + from + " " +
           hourText(periods.MapStartTime[at]) + " to " + (to == from ? "" : to + " ") +
           hourText(periods.MapEndTime[at]);
}

void Playback::tellChange() const {
    if (changed)
        changed();
}
