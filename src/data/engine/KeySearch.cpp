#include "data/engine/KeySearch.h"

#include "data/types/Value.h"

#include <algorithm>

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

/// The field of `name` or `UCase(name)`.
std::string_view takeField(std::string_view& text) {
    const std::string_view name = takeName(text);
    if (!accept(text, '('))
        return name;
    if (!equalText(name, "UCASE"))
        return {};
    const std::string_view field = takeName(text);
    return accept(text, ')') ? field : std::string_view();
}

} // namespace

std::optional<KeySearch> KeySearch::recognise(std::string_view expression) {
    const std::string_view field = takeField(expression);
    if (field.empty() || !accept(expression, '='))
        return std::nullopt;
    skipBlanks(expression);
    while (!expression.empty() && isBlank(expression.back()))
        expression.remove_suffix(1);
    const std::size_t length = expression.size();
    const bool quoted = length >= 2 && (expression.front() == '\'' || expression.front() == '"') &&
                        expression.back() == expression.front();
    if (!quoted || expression.find(expression.front(), 1) != length - 1)
        return std::nullopt;
    return KeySearch{field, foldText(expression.substr(1, length - 2))};
}

void KeyIndex::add(std::string_view text, long row) {
    rows_[foldText(text)].push_back(row);
}

long KeyIndex::find(const std::string& key, long from) const {
    const auto found = rows_.find(key);
    if (found == rows_.end())
        return -1;
    const auto row = std::lower_bound(found->second.begin(), found->second.end(), from);
    return row == found->second.end() ? -1 : *row;
}
