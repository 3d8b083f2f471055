#pragma once

#include "data/sqlite/Connection.h"
#include "data/types/FieldType.h"
#include "data/types/Value.h"

#include <string_view>
#include <vector>

class Database;

namespace sample {

/// Adds rows to one table, all columns in their order. The database must stay open as long as this lives.
class RowWriter {
public:
    RowWriter(Database& database, std::string_view table);

    /// Columns that are not given stay null. Throws DatabaseError where a value does not fit its column.
    void add(const std::vector<Value>& values);

private:
    std::vector<Field> fields_;
    sqlite::Statement insert_;
};

} // namespace sample
