#include "data/types/Value.h"

#include "core/RuntimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace {

[[noreturn]] void mismatch(const char* wanted) {
    throw RuntimeError(13, std::string("Type mismatch: ") + wanted + " is needed here");
}
[[noreturn]] void overflow() {
    throw RuntimeError(6, "Overflow");
}
[[noreturn]] void invalidNull() {
    throw RuntimeError(94, "Invalid use of Null");
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// "£1,234.50" as "1234.50". A comma that does not part thousands stays, so that the text is no number.
std::string withoutMoneySigns(std::string_view text) {
    constexpr std::string_view pound = "£";
    std::string plain;
    if (text.starts_with('-')) {
        plain = "-";
        text.remove_prefix(1);
    }
    if (text.starts_with(pound))
        text.remove_prefix(pound.size());
    const std::size_t whole = std::min(text.find('.'), text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool parts = text[i] == ',' && i > 0 && i < whole && (whole - i) % 4 == 0 && isDigit(text[i - 1]);
        if (!parts)
            plain += text[i];
    }
    return plain;
}

double numberOfText(std::string_view text) {
    std::string_view digits = trimmed(text);
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    std::string plain;
    if (digits.find_first_of(",\xC2") != std::string_view::npos) {
        plain = withoutMoneySigns(digits);
        digits = plain;
    }
    double number = 0;
    const auto [end, failed] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (digits.empty() || failed != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(number))
        mismatch("a number");
    return number;
}

std::string dateText(Date date) {
    const DateParts p = partsOf(date);
    const bool hasTime = p.hour != 0 || p.minute != 0 || p.second != 0;
    const bool hasDay = std::trunc(date.days) != 0.0;
    char text[40];
    if (hasDay && !hasTime)
        std::snprintf(text, sizeof text, "%02d/%02d/%04d", p.day, p.month, p.year);
    else if (!hasDay)
        std::snprintf(text, sizeof text, "%02d:%02d:%02d", p.hour, p.minute, p.second);
    else
        std::snprintf(text, sizeof text, "%02d/%02d/%04d %02d:%02d:%02d", p.day, p.month, p.year, p.hour, p.minute,
                      p.second);
    return text;
}

template<typename... Fs>
struct Overloaded : Fs... {
    using Fs::operator()...;
};
template<typename... Fs>
Overloaded(Fs...) -> Overloaded<Fs...>;

} // namespace

Money Money::fromDouble(double pounds) {
    const double scaled = pounds * 10000.0;
    if (!(std::fabs(scaled) < 9.2e18))
        overflow();
    return Money{static_cast<std::int64_t>(std::nearbyint(scaled))};
}

bool Value::isNumber() const {
    return std::holds_alternative<bool>(storage_) || std::holds_alternative<std::int64_t>(storage_) ||
           std::holds_alternative<double>(storage_) || std::holds_alternative<Money>(storage_);
}

bool Value::asBoolean() const {
    if (isText()) {
        const std::string& text = std::get<std::string>(storage_);
        if (equalText(text, "True") || equalText(text, "Yes"))
            return true;
        if (equalText(text, "False") || equalText(text, "No"))
            return false;
    }
    return asDouble() != 0.0;
}

std::int64_t Value::asInteger() const {
    if (const auto* integer = std::get_if<std::int64_t>(&storage_))
        return *integer;
    const double rounded = std::nearbyint(asDouble());
    if (!(std::fabs(rounded) < 9.2e18))
        overflow();
    return static_cast<std::int64_t>(rounded);
}

std::int32_t Value::asLong() const {
    const std::int64_t wide = asInteger();
    if (wide < std::numeric_limits<std::int32_t>::min() || wide > std::numeric_limits<std::int32_t>::max())
        overflow();
    return static_cast<std::int32_t>(wide);
}

double Value::asDouble() const {
    return std::visit(Overloaded{
                          [](std::monostate) -> double { invalidNull(); },
                          [](bool b) { return b ? -1.0 : 0.0; },
                          [](std::int64_t i) { return static_cast<double>(i); },
                          [](double d) { return d; },
                          [](Money m) { return m.toDouble(); },
                          [](Date d) { return d.days; },
                          [](const std::string& s) { return numberOfText(s); },
                          [](const Bytes&) -> double { mismatch("a number"); },
                      },
                      storage_);
}

Money Value::asMoney() const {
    if (const auto* money = std::get_if<Money>(&storage_))
        return *money;
    return Money::fromDouble(asDouble());
}

Date Value::asDate() const {
    if (const auto* date = std::get_if<Date>(&storage_))
        return *date;
    if (const auto* text = std::get_if<std::string>(&storage_))
        return parseDate(*text);
    return checkedDate(Date{asDouble()});
}

const Bytes& Value::asBytes() const {
    if (isNull())
        invalidNull();
    if (const auto* bytes = std::get_if<Bytes>(&storage_))
        return *bytes;
    mismatch("binary data");
}

std::string Value::asText() const {
    return std::visit(Overloaded{
                          [](std::monostate) { return std::string(); },
                          [](bool b) { return std::string(b ? "True" : "False"); },
                          [](std::int64_t i) { return std::to_string(i); },
                          [](double d) { return shortestText(d); },
                          [](Money m) { return shortestText(m.toDouble()); },
                          [](Date d) { return dateText(d); },
                          [](const std::string& s) { return s; },
                          [](const Bytes& b) { return std::string(reinterpret_cast<const char*>(b.data()), b.size()); },
                      },
                      storage_);
}

std::string shortestText(double number) {
    if (number == 0.0)
        return "0";
    char text[400];
    const double size = std::fabs(number);
    const bool plain = size >= 1e-4 && size < 1e15;
    const auto [end, failed] =
        std::to_chars(text, text + sizeof text, number, plain ? std::chars_format::fixed : std::chars_format::general);
    if (failed != std::errc{})
        return "0";
    std::string result(text, end);
    for (char& c : result) {
        if (c == 'e')
            c = 'E';
    }
    return result;
}
