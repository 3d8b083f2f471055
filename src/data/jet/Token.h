#pragma once

#include "data/types/Value.h"

#include <cstddef>
#include <string>

namespace jet {

/// One word of a statement.
struct Token {
    enum class Kind {
        Word,     ///< a bare word: keyword, name or function; `text` as written
        Name,     ///< a name in square brackets; `text` without them
        Text,     ///< text in single or double quotes; `value`
        Number,   ///< `value` holds an integer, or a double where there is a point or exponent
        DateTime, ///< between # signs, month first; `value`
        Symbol,   ///< operator or punctuation; `text`
        Bad,      ///< not lexable; `text` says why
        End,
    };
    Kind kind = Kind::End;
    std::size_t position = 0; ///< byte offset in the statement
    std::size_t length = 0;   ///< bytes of the statement that it covers
    std::string text;
    Value value;
};

} // namespace jet
