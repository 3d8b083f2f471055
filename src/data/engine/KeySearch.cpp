#include "data/engine/KeySearch.h"

#include "data/types/Value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

void skipBlanks(std::string_view& text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
}

bool accept(std::string_view& text, char c) {
    skipBlanks(text);
    if (text.empty() || text.front() != c)
        return false;
    text.remove_prefix(1);
    return true;
}

std::string_view take(std::string_view& text, std::size_t length) {
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(length);
    return taken;
}

/// `name` or `[name]`; empty for anything else.
std::string_view takeName(std::string_view& text) {
    skipBlanks(text);
    if (text.starts_with('[')) {
        const std::size_t end = text.find(']');
        if (end == std::string_view::npos)
            return {};
        const std::string_view name = text.substr(1, end - 1);
        text.remove_prefix(end + 1);
        return name;
    }
    const auto end = std::find_if_not(text.begin(), text.end(), isNameCharacter);
    const auto length = static_cast<std::size_t>(end - text.begin());
    const bool isName = length > 0 && !(text.front() >= '0' && text.front() <= '9');
    return isName ? take(text, length) : std::string_view();
}

/// The field of `name` or `UCase(name)`; `isText` where it can be a text only.
std::string_view takeField(std::string_view& text, bool& isText) {
    const std::string_view name = takeName(text);
    isText = accept(text, '(');
    if (!isText)
        return name;
    if (!equalText(name, "UCASE"))
        return {};
    const std::string_view field = takeName(text);
    return accept(text, ')') ? field : std::string_view();
}

/// The text between quotation marks; nothing where it holds them itself.
std::optional<std::string_view> takeText(std::string_view& text) {
    const std::size_t end = text.find(text.front(), 1);
    if (end == std::string_view::npos || text.substr(end + 1).starts_with(text.front()))
        return std::nullopt;
    const std::string_view inside = text.substr(1, end - 1);
    text.remove_prefix(end + 1);
    return inside;
}

/// A number of digits with at most a sign and a point, which every reader of numbers reads alike.
std::optional<double> takeNumber(std::string_view& text) {
    constexpr std::size_t safeDigits = 15;
    const std::size_t length = std::min(text.find_first_not_of("0123456789.", 1), text.size());
    double number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + length, number, std::chars_format::fixed);
    const bool isPlain = text[length - 1] >= '0' && text[length - 1] <= '9' && length <= safeDigits;
    if (fault != std::errc{} || end != text.data() + length || !isPlain)
        return std::nullopt;
    text.remove_prefix(length);
    return number;
}

/// The next word, blanks skipped; empty where something else stands there.
std::string_view takeWord(std::string_view& text) {
    skipBlanks(text);
    const auto end = std::find_if_not(text.begin(), text.end(), isNameCharacter);
    return take(text, static_cast<std::size_t>(end - text.begin()));
}

/// Whether the words behind the literal only narrow what the comparison has found: And, and no operator below it.
/// A word inside a text or a name counts as well, which only makes the search a slow one.
bool narrows(std::string_view text) {
    static constexpr std::array<std::string_view, 4> weaker{"OR", "XOR", "EQV", "IMP"};
    if (!equalText(takeWord(text), "AND"))
        return false;
    while (!text.empty()) {
        const std::string_view word = takeWord(text);
        if (std::any_of(weaker.begin(), weaker.end(), [&](std::string_view other) { return equalText(word, other); }))
            return false;
        if (word.empty() && !text.empty())
            text.remove_prefix(1);
    }
    return true;
}

} // namespace

std::optional<KeySearch> KeySearch::recognise(std::string_view expression) {
    KeySearch search;
    bool isText = false;
    search.field = takeField(expression, isText);
    if (search.field.empty() || !accept(expression, '='))
        return std::nullopt;
    skipBlanks(expression);
    if (expression.empty())
        return std::nullopt;
    if (expression.front() == '\'' || expression.front() == '"') {
        const auto text = takeText(expression);
        if (!text)
            return std::nullopt;
        search.key = KeyIndex::keyOf(*text);
    } else {
        const auto number = takeNumber(expression);
        if (!number || isText)
            return std::nullopt;
        search.kind = Kind::Number;
        search.key = KeyIndex::keyOf(*number);
    }
    search.alone = expression.find_first_not_of(" \t\r\n") == std::string_view::npos;
    if (!search.alone && !narrows(expression))
        return std::nullopt;
    return search;
}

std::string KeyIndex::keyOf(std::string_view text) {
    return foldText(text);
}

std::string KeyIndex::keyOf(double number) {
    std::string key(sizeof number, '\0');
    number += 0.0; // no minus before zero
    std::memcpy(key.data(), &number, sizeof number);
    return key;
}

std::optional<std::string> KeyIndex::keyOf(const Value& value) {
    if (value.isNull())
        return std::nullopt;
    if (const auto* text = std::get_if<std::string>(&value.storage()))
        return keyOf(std::string_view(*text));
    return keyOf(value.asDouble());
}

void KeyIndex::add(const Value& value, long row) {
    if (const auto key = keyOf(value)) {
        std::vector<long>& rows = rows_[*key];
        rows.insert(std::upper_bound(rows.begin(), rows.end(), row), row);
    }
}

void KeyIndex::remove(const Value& value, long row) {
    if (const auto key = keyOf(value))
        std::erase(rows_[*key], row);
}

long KeyIndex::findForward(const std::string& key, long from) const {
    const auto found = rows_.find(key);
    if (found == rows_.end())
        return -1;
    const auto row = std::lower_bound(found->second.begin(), found->second.end(), from);
    return row == found->second.end() ? -1 : *row;
}

long KeyIndex::findBackward(const std::string& key, long from) const {
    const auto found = rows_.find(key);
    if (found == rows_.end())
        return -1;
    const auto behind = std::upper_bound(found->second.begin(), found->second.end(), from);
    return behind == found->second.begin() ? -1 : *(behind - 1);
}
