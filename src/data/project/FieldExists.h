#pragma once

#include "data/engine/Database.h"

#include <string_view>

/// Whether `SELECT TOP 1 column FROM [table]` can be opened. `column` stands in the statement as given: "*" asks for
/// the table alone, a name in brackets for one column.
bool FieldExists(std::string_view column, std::string_view table, Database& database);

/// Makes a table in `project` with the fields of `definition`: name, type, size, default value, required and
/// zero-length flag. A failure is logged and shown to the user.
void CopyTableDefinition(const TableDef& definition, Database& project);
