#pragma once

#include "data/jet/Binder.h"
#include "data/jet/Emitter.h"
#include "data/jet/Program.h"

namespace jet {

/// The programs of the statements by kind; each binds, then emits.
Program translateQuery(Query& query, Catalog& catalog);
Program translateInsert(Insert& insert, Catalog& catalog);
Program translateUpdate(Update& update, Catalog& catalog);
Program translateDelete(Delete& deletion, Catalog& catalog);
Program translateCreateTable(const CreateTable& create, Catalog& catalog);
Program translateCreateIndex(const CreateIndex& create, Catalog& catalog);
Program translateDropTable(const DropTable& drop, Catalog& catalog);
Program translateDropIndex(const DropIndex& drop, Catalog& catalog);
Program translateAlterTable(const AlterTable& alter, Catalog& catalog);

/// Position of the column in the table. Throws `error` where there is none.
std::size_t columnIndex(const Table& table, std::string_view name, std::size_t position, long error);
/// Throws 3073 where the table's rows cannot be changed.
void checkChangeable(const Table& table, std::size_t position);
/// Throws 3190 where a table would have more fields than it can.
void checkFieldCount(std::size_t fields, const TableName& name);
/// The schema and name for a table that is to be made. Throws 3010 where it exists already.
Table newTable(const TableName& name, Catalog& catalog);

} // namespace jet
