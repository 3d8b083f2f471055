#pragma once

#include "data/types/Value.h"

#include <ostream>
#include <string>

class Recordset;

/// How rows are written: csv quotes where needed and leaves a null empty (an empty text is ""); tsv escapes tabs, line
/// ends and backslashes and writes a null as \N. Dates are ISO 8601, booleans -1 and 0, bytes hexadecimal.
enum class RowFormat { Csv, Tsv };

/// One value as its cell is written.
std::string cellText(const Value& value, RowFormat format);

/// A header line and one line for each row; leaves the cursor behind the last row.
void writeRows(std::ostream& out, Recordset& rows, RowFormat format);
