#include "map/surface/ToolBarSetup.h"

#include "core/RuntimeError.h"

#include <vector>

namespace {

constexpr std::string_view FlagsKey = ":BUTTON_VISIBLE:";
constexpr std::string_view TipsKey = ":TOOLTIPS:";
constexpr long InvalidPropertyValue = 380;

[[noreturn]] void refuse(const std::string& reason) {
    throw RuntimeError(InvalidPropertyValue, "Invalid property value: ToolBarSetup " + reason);
}

/// The items of a list in which each item has a comma behind it.
std::vector<std::string_view> itemsOf(std::string_view list, const char* what) {
    std::vector<std::string_view> items;
    while (!list.empty()) {
        const std::size_t comma = list.find(',');
        items.push_back(list.substr(0, comma));
        list.remove_prefix(comma == std::string_view::npos ? list.size() : comma + 1);
    }
    if (items.size() != ToolButtonCount)
        refuse("has " + std::to_string(items.size()) + " " + what + " for " + std::to_string(ToolButtonCount) +
               " buttons");
    return items;
}

} // namespace

ToolBarSetup ToolBarSetup::parse(std::string_view text) {
    if (!text.starts_with(FlagsKey))
        refuse("does not begin with " + std::string(FlagsKey));
    const std::size_t tips = text.find(TipsKey, FlagsKey.size());
    if (tips == std::string_view::npos)
        refuse("has no " + std::string(TipsKey));
    const auto flags = itemsOf(text.substr(FlagsKey.size(), tips - FlagsKey.size()), "flags");
    const auto words = itemsOf(text.substr(tips + TipsKey.size()), "tool tips");

    ToolBarSetup setup;
    for (std::size_t i = 0; i < ToolButtonCount; ++i) {
        if (flags[i] != "0" && flags[i] != "1")
            refuse("has the flag '" + std::string(flags[i]) + "', which is neither 0 nor 1");
        setup.visible[i] = flags[i] == "1";
        setup.toolTips[i] = words[i];
    }
    return setup;
}

std::string ToolBarSetup::text() const {
    std::string result(FlagsKey);
    for (bool flag : visible)
        result += flag ? "1," : "0,";
    result += TipsKey;
    for (const std::string& tip : toolTips)
        result += tip + ",";
    return result;
}
