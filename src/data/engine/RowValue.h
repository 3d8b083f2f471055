#pragma once

#include "data/jet/Program.h"
#include "data/sqlite/Connection.h"
#include "data/types/Value.h"

/// A column of the current row of a statement, as the kind of value that its type says. A value that the file holds in
/// another form than its column promises is given as it lies there.
Value readValue(const sqlite::Statement& row, int column, const jet::ResultColumn& type);

/// Binds a value as the column `field` stores it: text to a date or number converted, money rounded to four decimals,
/// booleans -1/0. Throws RuntimeError/DatabaseError: 3421 where it cannot be converted, 3163 where a text is wider than
/// the column, 6 on overflow.
void bindValue(sqlite::Statement& statement, int parameter, const Field& field, const Value& value);

/// Value as it reads back after bindValue().
Value storedValue(const Field& field, const Value& value);
