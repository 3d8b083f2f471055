#pragma once

#include "data/types/Value.h"

#include <string>
#include <vector>

/// A value as cases of statements write it: null is null; a text that is empty or has blanks at an end is quoted.
inline std::string shownValue(const Value& value) {
    if (value.isNull())
        return "null";
    const std::string text = value.asText();
    const bool quoted = value.isText() && (text.empty() || text.front() == ' ' || text.back() == ' ');
    return quoted ? '"' + text + '"' : text;
}

/// A row as cases write it: its values, separated by " | ".
inline std::string shownRow(const std::vector<Value>& row) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i)
        line += (i == 0 ? "" : " | ") + shownValue(row[i]);
    return line;
}
