#include "core/RuntimeError.h"
#include "data/jet/Characters.h"
#include "data/jet/Format.h"
#include "data/jet/FunctionLibrary.h"

#include <algorithm>
#include <limits>

namespace jet::functions {

namespace {

constexpr std::int64_t longestText = 1'000'000; ///< that Space and String make

[[noreturn]] void invalidArgument() {
    throw RuntimeError(5, "Invalid procedure call or argument");
}

std::size_t lengthArgument(const Value& value) {
    const std::int64_t length = value.asInteger();
    if (length < 0)
        invalidArgument();
    return static_cast<std::size_t>(length);
}

bool anyNull(Arguments arguments) {
    return std::any_of(arguments.begin(), arguments.end(), [](const Value& value) { return value.isNull(); });
}

std::string_view withoutLeading(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view withoutTrailing(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string encoded(char32_t c) {
    const auto byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (c < 0x80)
        return {byte(c)};
    return {byte(0xC0 | (c >> 6)), byte(0x80 | (c & 0x3F))};
}

} // namespace

Value left(Arguments a) {
    if (anyNull(a))
        return {};
    return characters(a[0].asText(), 0, lengthArgument(a[1]));
}

Value right(Arguments a) {
    if (anyNull(a))
        return {};
    const std::string text = a[0].asText();
    const std::size_t length = lengthArgument(a[1]);
    const std::size_t count = characterCount(text);
    return characters(text, count > length ? count - length : 0, length);
}

Value mid(Arguments a) {
    if (anyNull(a))
        return {};
    const std::int64_t start = a[1].asInteger();
    if (start < 1)
        invalidArgument();
    const std::size_t length = a.size() > 2 ? lengthArgument(a[2]) : std::numeric_limits<std::size_t>::max();
    return characters(a[0].asText(), static_cast<std::size_t>(start - 1), length);
}

Value len(Arguments a) {
    if (a[0].isNull())
        return {};
    return static_cast<std::int64_t>(characterCount(a[0].asText()));
}

Value trim(Arguments a) {
    if (a[0].isNull())
        return {};
    const std::string text = a[0].asText();
    return withoutTrailing(withoutLeading(text));
}

Value ltrim(Arguments a) {
    if (a[0].isNull())
        return {};
    const std::string text = a[0].asText();
    return withoutLeading(text);
}

Value rtrim(Arguments a) {
    if (a[0].isNull())
        return {};
    const std::string text = a[0].asText();
    return withoutTrailing(text);
}

Value ucase(Arguments a) {
    return a[0].isNull() ? Value() : Value(upperText(a[0].asText()));
}

Value lcase(Arguments a) {
    return a[0].isNull() ? Value() : Value(lowerText(a[0].asText()));
}

/// InStr([start,] text, wanted[, compare]): case does not count unless compare is 0.
Value inStr(Arguments a) {
    if (anyNull(a))
        return {};
    const bool hasStart = a.size() > 2;
    const std::int64_t start = hasStart ? a[0].asInteger() : 1;
    if (start < 1)
        invalidArgument();
    const bool exact = a.size() > 3 && a[3].asInteger() == 0;
    std::string text = a[hasStart ? 1 : 0].asText();
    std::string wanted = a[hasStart ? 2 : 1].asText();
    if (!exact) {
        text = upperText(text);
        wanted = upperText(wanted);
    }
    const std::size_t count = characterCount(text);
    const auto from = static_cast<std::size_t>(start - 1);
    if (from > count || text.empty())
        return std::int64_t{0};
    const std::size_t skipped = characters(text, 0, from).size();
    const std::size_t found = text.find(wanted, skipped);
    if (found == std::string::npos)
        return std::int64_t{0};
    return static_cast<std::int64_t>(characterCount(std::string_view(text).substr(0, found)) + 1);
}

Value inStrRev(Arguments a) {
    if (anyNull(a))
        return {};
    const std::string text = upperText(a[0].asText());
    const std::size_t found = text.rfind(upperText(a[1].asText()));
    if (found == std::string::npos)
        return std::int64_t{0};
    return static_cast<std::int64_t>(characterCount(std::string_view(text).substr(0, found)) + 1);
}

Value replace(Arguments a) {
    if (anyNull(a))
        return {};
    const std::string text = a[0].asText();
    const std::string wanted = a[1].asText();
    const std::string with = a[2].asText();
    if (wanted.empty())
        return text;
    std::string result;
    std::size_t at = 0;
    while (true) {
        const std::size_t found = text.find(wanted, at);
        if (found == std::string::npos)
            return result + text.substr(at);
        result.append(text, at, found - at).append(with);
        at = found + wanted.size();
        if (result.size() > longestMade)
            throw RuntimeError(14, "Out of string space");
    }
}

Value space(Arguments a) {
    if (a[0].isNull())
        return {};
    const std::int64_t length = a[0].asInteger();
    if (length < 0 || length > longestText)
        invalidArgument();
    return std::string(static_cast<std::size_t>(length), ' ');
}

Value string(Arguments a) {
    if (anyNull(a))
        return {};
    const std::int64_t length = a[0].asInteger();
    if (length < 0 || length > longestText)
        invalidArgument();
    std::string unit;
    if (a[1].isText()) {
        const std::string text = a[1].asText();
        if (text.empty())
            invalidArgument();
        unit = characters(text, 0, 1);
    } else {
        unit = encoded(static_cast<char32_t>(a[1].asInteger() & 0xFF));
    }
    std::string result;
    for (std::int64_t i = 0; i < length; ++i)
        result += unit;
    return result;
}

Value strReverse(Arguments a) {
    if (a[0].isNull())
        return {};
    const std::string text = a[0].asText();
    std::string result;
    result.resize(text.size());
    std::string_view rest = text;
    std::size_t end = text.size();
    while (!rest.empty()) {
        const std::size_t bytes = characterBytes(rest);
        end -= bytes;
        std::copy_n(rest.begin(), bytes, result.begin() + static_cast<std::ptrdiff_t>(end));
        rest.remove_prefix(bytes);
    }
    return result;
}

Value strComp(Arguments a) {
    if (anyNull(a))
        return {};
    const std::string first = a[0].asText();
    const std::string second = a[1].asText();
    const bool exact = a.size() > 2 && a[2].asInteger() == 0;
    const int order = exact ? first.compare(second) : compareText(first, second);
    return std::int64_t{order < 0 ? -1 : (order > 0 ? 1 : 0)};
}

Value asc(Arguments a) {
    if (a[0].isNull())
        return {};
    const std::string text = a[0].asText();
    if (text.empty())
        invalidArgument();
    std::string_view rest = text;
    return static_cast<std::int64_t>(takeCharacter(rest));
}

Value chr(Arguments a) {
    if (a[0].isNull())
        return {};
    const std::int64_t code = a[0].asInteger();
    if (code < 1 || code > 255)
        invalidArgument();
    return encoded(static_cast<char32_t>(code));
}

Value format(Arguments a) {
    return formatValue(a[0], a.size() > 1 && !a[1].isNull() ? a[1].asText() : std::string());
}

} // namespace jet::functions
