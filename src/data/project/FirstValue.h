#pragma once

#include "data/engine/Database.h"
#include "data/types/Value.h"

#include <optional>
#include <string>
#include <string_view>

/// The first column of a query's first row; nothing where it has no row. Throws as Database::openRecordset does.
std::optional<Value> firstValue(Database& database, std::string_view query);

/// The rows that a statement "SELECT COUNT(*) …" counts.
long countOf(Database& database, std::string_view query);

/// `text` between single quotes, as it stands: an apostrophe inside ends the literal early and breaks the statement.
std::string quoted(std::string_view text);
