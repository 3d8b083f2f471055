#pragma once

#include "animation/AnimationSettings.h"
#include "core/Prompts.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// One frame of an animation: the days and times of day from which and to which it counts calls. Days are whole, times
/// fractions of day 0 in whole seconds.
struct AnimationFrame {
    Date startDate, startTime, endDate, endTime;
    friend bool operator==(const AnimationFrame&, const AnimationFrame&) = default;
};

/// Why there can be no animation, in the words for the user.
struct ScheduleFault {
    std::string text;
    PromptStyle style = PromptStyle::Plain;
};

/// The frames in their order; none where there is a fault.
struct FrameSchedule {
    std::vector<AnimationFrame> frames;
    std::optional<ScheduleFault> fault;
};

/// The minutes that the text of a frame's length stands for: "90min", "1.5hr"; parts of a minute are cut off. Nothing
/// where it is neither hours nor minutes.
std::optional<long> minutesOf(std::string_view length);

/// The length of a frame in minutes. With OptPeriod 1 it is that of CmbDataPeriod; with OptPeriod 0 the time from start
/// to end is shared out among the frames, in whole minutes. Nothing where there is no length or no frame to share with.
std::optional<long> frameMinutes(const AnimationSettings& settings);

/// Lays frames of equal length one behind the other. Each but the first starts a second after the end of the one before
/// it, so that they do not overlap. One that ends at midnight ends at 23:59:59 of the day before instead, and the next
/// starts with the day. Faults: the length is not above 0, or a frame ends on a day after `lastDate`; midnight is
/// already the day after.
FrameSchedule scheduleFrames(const AnimationSettings& settings, Date lastDate);
