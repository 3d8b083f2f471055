#include "report/form/Typing.h"

#include "data/types/Value.h"

#include <algorithm>

bool isInboundCharacter(char32_t character) {
    constexpr char32_t copy = 3;
    constexpr char32_t backspace = 8;
    constexpr char32_t carriageReturn = 13;
    constexpr char32_t paste = 22;
    switch (character) {
    case copy:
    case backspace:
    case carriageReturn:
    case paste:
        return true;
    default:
        return (character >= U'0' && character <= U'9') || (character >= U'A' && character <= U'Z') ||
               (character >= U'a' && character <= U'z');
    }
}

std::optional<std::size_t> rowBeginningWith(const std::vector<std::string>& rows, std::string_view typed) {
    if (typed.empty())
        return std::nullopt;
    const std::string wanted = upperText(typed);
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return upperText(row).starts_with(wanted); });
    if (found == rows.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - rows.begin());
}

bool isRow(const std::vector<std::string>& rows, std::string_view text) {
    return std::find(rows.begin(), rows.end(), text) != rows.end();
}
