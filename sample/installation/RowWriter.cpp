#include "sample/installation/RowWriter.h"

#include "data/engine/Database.h"
#include "data/engine/RowValue.h"
#include "data/types/DatabaseError.h"

namespace sample {

namespace {

std::vector<Field> fieldsOf(Database& database, std::string_view table) {
    const TableDef* definition = database.tableDefs().find(table);
    if (!definition)
        throw DatabaseError(3078, "There is no table '" + std::string(table) + "' in '" + database.name() + "'");
    return definition->fields;
}

std::string insertInto(const Database& database, std::string_view table, std::size_t columns) {
    std::string sql = "INSERT INTO " + quoteIdentifier(database.schema()) + "." + quoteIdentifier(table) + " VALUES(";
    for (std::size_t i = 0; i < columns; ++i)
        sql += i == 0 ? "?" : ", ?";
    return sql + ")";
}

} // namespace

RowWriter::RowWriter(Database& database, std::string_view table)
    : fields_(fieldsOf(database, table)), insert_(database.connection(), insertInto(database, table, fields_.size())) {}

void RowWriter::add(const std::vector<Value>& values) {
    for (std::size_t i = 0; i < fields_.size(); ++i)
        bindValue(insert_, static_cast<int>(i) + 1, fields_[i], i < values.size() ? values[i] : Value());
    insert_.step();
    insert_.reset();
}

} // namespace sample
