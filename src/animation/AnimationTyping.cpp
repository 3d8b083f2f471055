#include "animation/AnimationTyping.h"

#include "animation/Animation.h"
#include "animation/AnimationSettings.h"

#include <cmath>

std::string framesFault(std::string_view text) {
    if (trimmedText(text).empty())
        return {};
    const auto number = numberOf(text);
    if (!number)
        return notNumeric;
    if (*number > maximumFrames)
        return "Invalid value entered - value must not exceed 10.";
    return *number == std::floor(*number) ? "" : notWhole;
}

std::string intervalFault(std::string_view text) {
    constexpr double longest = 30; // seconds
    if (trimmedText(text).empty())
        return {};
    const auto number = numberOf(text);
    if (!number)
        return notNumeric;
    return *number > longest ? "Invalid value entered - value must not exceed 30." : "";
}
