#pragma once

#include "core/RuntimeError.h"

#include <cstddef>
#include <optional>
#include <string>

/// An error of the database engine. Numbers in use:
/// 3010 table already exists, 3021 no current record, 3024 could not find file, 3031 not a valid password,
/// 3049 damaged database file, 3061 too few parameters (an unknown name in a statement), 3075 syntax error in an
/// expression, 3078 could not find the input table or query, 3134/3144/3000 syntax error in INSERT/UPDATE/other
/// statement, 3265 item not found in this collection, 3343 unrecognized database format, 3356 file in use by another
/// process, 3420 object invalid or no longer set, 3027 read-only, 3022 duplicate key, 3163 text too long for its field,
/// 3314 a required field is null, 3315 a field cannot be a zero-length string.
class DatabaseError : public RuntimeError {
public:
    DatabaseError(long number, const std::string& description, std::optional<std::size_t> position = {})
        : RuntimeError(number, description), position_(position) {}

    /// Byte offset (from 0) in the statement where the fault lies, where the error belongs to a statement.
    std::optional<std::size_t> position() const { return position_; }

private:
    std::optional<std::size_t> position_;
};
