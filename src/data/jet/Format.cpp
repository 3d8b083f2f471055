#include "data/jet/Format.h"

#include "core/RuntimeError.h"
#include "data/jet/Characters.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace jet {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> namedNumbers{{
    {"CURRENCY", "£#,##0.00"},
    {"FIXED", "0.00"},
    {"STANDARD", "#,##0.00"},
    {"PERCENT", "0.00%"},
    {"SCIENTIFIC", "0.00E+00"},
}};

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> namedDates{{
    {"LONG DATE", "dd mmmm yyyy"},
    {"MEDIUM DATE", "dd-mmm-yy"},
    {"SHORT DATE", "dd/mm/yyyy"},
    {"LONG TIME", "hh:nn:ss"},
    {"MEDIUM TIME", "hh:nn AM/PM"},
    {"SHORT TIME", "hh:nn"},
}};

constexpr std::array<std::array<std::string_view, 3>, 3> namedTruths{{
    {"YES/NO", "Yes", "No"},
    {"TRUE/FALSE", "True", "False"},
    {"ON/OFF", "On", "Off"},
}};

template<std::size_t n>
std::optional<std::string_view> named(const std::array<std::pair<std::string_view, std::string_view>, n>& names,
                                      std::string_view name) {
    const auto found = std::find_if(names.begin(), names.end(), [&](const auto& entry) { return entry.first == name; });
    return found == names.end() ? std::nullopt : std::optional(found->second);
}

/// Whether a sign of `signs` stands in the picture outside quotes.
bool pictureHas(std::string_view picture, std::string_view signs) {
    bool quoted = false;
    for (std::size_t i = 0; i < picture.size(); ++i) {
        if (picture[i] == '"')
            quoted = !quoted;
        else if (picture[i] == '\\' && !quoted)
            ++i;
        else if (!quoted && signs.find(picture[i]) != std::string_view::npos)
            return true;
    }
    return false;
}

std::optional<double> asNumber(const Value& value) {
    try {
        return value.asDouble();
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::optional<Date> asDate(const Value& value) {
    try {
        return value.asDate();
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

/// @ is a character or a blank, & a character or nothing, filled from the right; < and > change the case.
std::string formatText(const std::string& text, std::string_view picture) {
    std::string source = picture.find('<') != std::string_view::npos   ? lowerText(text)
                         : picture.find('>') != std::string_view::npos ? upperText(text)
                                                                       : text;
    const auto places = static_cast<std::size_t>(
        std::count_if(picture.begin(), picture.end(), [](char c) { return c == '@' || c == '&'; }));
    if (places == 0)
        return source;
    const std::size_t count = characterCount(source);
    std::size_t missing = places > count ? places - count : 0;
    std::string_view rest = source;
    std::string result;
    const auto takeOne = [&] {
        const std::size_t bytes = characterBytes(rest);
        result.append(rest.substr(0, bytes));
        rest.remove_prefix(bytes);
    };
    for (std::size_t extra = count > places ? count - places : 0; extra > 0; --extra)
        takeOne();
    for (const char c : picture) {
        if (c == '<' || c == '>' || c == '!')
            continue;
        if (c != '@' && c != '&') {
            result += c;
        } else if (missing > 0) {
            --missing;
            if (c == '@')
                result += ' ';
        } else {
            takeOne();
        }
    }
    return result;
}

std::optional<std::string> formatNamed(const Value& value, std::string_view name) {
    if (name == "GENERAL NUMBER") {
        const auto number = asNumber(value);
        return number ? shortestText(*number) : value.asText();
    }
    if (name == "GENERAL DATE") {
        const auto date = asDate(value);
        return date ? Value(*date).asText() : value.asText();
    }
    for (const auto& truth : namedTruths) {
        if (truth[0] == name) {
            const auto number = asNumber(value);
            return number ? std::string(*number != 0.0 ? truth[1] : truth[2]) : value.asText();
        }
    }
    if (const auto picture = named(namedNumbers, name)) {
        const auto number = asNumber(value);
        return number ? formatNumber(*number, *picture) : value.asText();
    }
    if (const auto picture = named(namedDates, name)) {
        const auto date = asDate(value);
        return date ? formatDate(*date, *picture) : value.asText();
    }
    return std::nullopt;
}

} // namespace

std::string formatValue(const Value& value, std::string_view format) {
    if (value.isNull())
        return formatNull(format);
    if (format.empty())
        return value.asText();
    if (auto result = formatNamed(value, upperText(format)))
        return *result;
    const bool numeric = pictureHas(format, "0#");
    const bool dated = !numeric && pictureHas(format, "dDmMyYhHnNsSqQwWcCtT");
    if (value.isDate() ? !numeric : dated) {
        const auto date = asDate(value);
        return date ? formatDate(*date, format) : value.asText();
    }
    if (value.isText() && pictureHas(format, "@&<>"))
        return formatText(value.asText(), format);
    const auto number = asNumber(value);
    return number ? formatNumber(*number, format) : value.asText();
}

} // namespace jet
