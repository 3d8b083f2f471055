#pragma once

#include <string>
#include <string_view>

/// What may be typed into the lists of FrmAnimate. Of keys, the lists of numbers take digits alone.

/// Told where a list of numbers is given another character.
inline constexpr const char* notNumeric = "Invalid character entered - only numeric values may be entered. Use the "
                                          "Delete key to remove unwanted entries";
/// Told where a whole number is wanted and a decimal is given.
inline constexpr const char* notWhole =
    "Invalid character entered - only numeric values may be entered, decimal values are not allowed.";

/// What is wrong with the text when CmbFrames or CmbInterval is left; empty where nothing is, as with an empty text.
std::string framesFault(std::string_view text);
std::string intervalFault(std::string_view text);
