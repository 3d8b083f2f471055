#include "animation/FrameSchedule.h"

#include <cmath>
#include <cstdint>

namespace {

constexpr std::int64_t secondsOfDay = 86400;
constexpr std::int64_t secondsOfMinute = 60;

/// Moments are counted in whole seconds from day 0, so that no fraction of a day is ever rounded.
std::int64_t momentOf(Date day, Date time) {
    return std::llround(std::floor(day.days)) * secondsOfDay +
           std::llround((time.days - std::floor(time.days)) * static_cast<double>(secondsOfDay));
}

std::int64_t dayOf(std::int64_t moment) {
    const std::int64_t day = moment / secondsOfDay;
    return moment % secondsOfDay < 0 ? day - 1 : day;
}

Date dateOfMoment(std::int64_t moment) {
    return Date{static_cast<double>(dayOf(moment))};
}

Date timeOfMoment(std::int64_t moment) {
    const std::int64_t seconds = moment - dayOf(moment) * secondsOfDay;
    return Date{static_cast<double>(seconds) / static_cast<double>(secondsOfDay)};
}

bool isMidnight(std::int64_t moment) {
    return moment == dayOf(moment) * secondsOfDay;
}

FrameSchedule failed(const char* text, PromptStyle style = PromptStyle::Plain) {
    return {{}, ScheduleFault{text, style}};
}

} // namespace

std::optional<long> minutesOf(std::string_view length) {
    constexpr double mostMinutes = 1e9; // far beyond every date
    const std::string text = lowerText(length);
    const auto hours = text.find("hr"), minutes = text.find("min");
    if (hours == std::string::npos && minutes == std::string::npos)
        return std::nullopt;
    const auto number = numberOf(text.substr(0, hours != std::string::npos ? hours : minutes));
    if (!number || std::abs(*number) * 60 > mostMinutes)
        return std::nullopt;
    return static_cast<long>(hours != std::string::npos ? *number * 60 : *number);
}

std::optional<long> frameMinutes(const AnimationSettings& settings) {
    if (settings.OptPeriod != 0)
        return minutesOf(settings.CmbDataPeriod);
    const int frames = framesOf(settings);
    if (frames < 1)
        return std::nullopt;
    const std::int64_t whole =
        momentOf(settings.endDate, settings.endTime) - momentOf(settings.startDate, settings.startTime);
    return static_cast<long>(whole / frames / secondsOfMinute);
}

FrameSchedule scheduleFrames(const AnimationSettings& settings, Date lastDate) {
    const auto minutes = frameMinutes(settings);
    if (!minutes || *minutes <= 0)
        return failed("Error calculating intervals");
    FrameSchedule schedule;
    std::int64_t start = momentOf(settings.startDate, settings.startTime);
    for (int frame = 1; frame <= framesOf(settings); ++frame) {
        std::int64_t end = start + *minutes * secondsOfMinute;
        if (static_cast<double>(dayOf(end)) > std::floor(lastDate.days))
            return failed("Selected settings will exceed the period of the calls contained within this project, "
                          "please reselect",
                          PromptStyle::Information);
        if (isMidnight(end))
            --end;
        schedule.frames.push_back({dateOfMoment(start), timeOfMoment(start), dateOfMoment(end), timeOfMoment(end)});
        start = end + 1;
    }
    return schedule;
}
