#include "animation/AnimationSettings.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr std::string_view periods[] = {"1min", "2min",  "5min", "10min", "15min", "20min", "25min", "30min", "45min",
                                        "1hr",  "1.5hr", "2hr",  "3hr",   "4hr",   "5hr",   "6hr",   "7hr",   "8hr",
                                        "9hr",  "10hr",  "11hr", "12hr",  "18hr",  "24hr",  "48hr"};
constexpr std::string_view counts[] = {"2", "3", "4", "5", "6", "7", "8", "9", "10"};
constexpr std::string_view intervals[] = {"1", "1.5", "2", "2.5", "3", "4", "5", "8", "10", "15", "20", "30"};

/// Halves go to the even side, as in every conversion to whole numbers of this system.
int wholeNumber(std::string_view text) {
    const auto number = numberOf(text);
    if (!number || std::abs(*number) > std::numeric_limits<std::int16_t>::max())
        return 0;
    return static_cast<int>(Value(*number).asInteger());
}

} // namespace

std::span<const std::string_view> dataPeriods() {
    return periods;
}

std::span<const std::string_view> frameCounts() {
    return counts;
}

std::span<const std::string_view> displayIntervals() {
    return intervals;
}

std::optional<double> numberOf(std::string_view text) {
    const std::string trimmed = trimmedText(text);
    double number = 0;
    const auto [end, failed] = std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), number);
    if (failed != std::errc{} || end != trimmed.data() + trimmed.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

int framesOf(const AnimationSettings& settings) {
    return wholeNumber(settings.CmbFrames);
}

int intervalOf(const AnimationSettings& settings) {
    return wholeNumber(settings.CmbInterval);
}
