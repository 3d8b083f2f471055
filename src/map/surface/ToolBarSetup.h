#pragma once

#include "map/surface/MapTool.h"

#include <array>
#include <string>
#include <string_view>

/// Which buttons a map's tool bar has, and their tool tips, in the order of ToolButtons.
struct ToolBarSetup {
    std::array<bool, ToolButtonCount> visible{};
    std::array<std::string, ToolButtonCount> toolTips;

    /// Reads ":BUTTON_VISIBLE:" and fourteen flags 0 or 1, then ":TOOLTIPS:" and fourteen tips, each with a comma
    /// behind it; the last comma may be missing. Throws RuntimeError 380 that says what is wrong.
    static ToolBarSetup parse(std::string_view text);
    /// The text that parse() reads.
    std::string text() const;

    friend bool operator==(const ToolBarSetup&, const ToolBarSetup&) = default;
};
