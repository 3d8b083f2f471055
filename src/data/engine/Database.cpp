#include "data/engine/Database.h"

#include "data/engine/DatabaseImpl.h"
#include "data/engine/RecordsetImpl.h"
#include "data/engine/WorkspaceImpl.h"
#include "data/jet/Emitter.h"
#include "data/types/DatabaseError.h"

#include <sqlite3.h>

#include <algorithm>

namespace {
/// The library's row number cannot be named where columns have all of its names.
bool hasRowNumbers(const jet::Table& table) {
    const std::string row = jet::rowidName(table.columns);
    return std::none_of(table.columns.begin(), table.columns.end(),
                        [&](const Field& field) { return equalText(field.name, row); });
}
} // namespace

Database::Database(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Database::~Database() = default;

std::string Database::name() const {
    impl_->file();
    return impl_->path;
}
bool Database::isOpen() const {
    return impl_->attached != nullptr;
}
bool Database::isReadOnly() const {
    const std::string name = schema();
    return impl_->readOnly || sqlite3_db_readonly(connection().handle(), name.c_str()) == 1;
}
void Database::close() {
    impl_->file();
    impl_->close();
}

jet::Program Database::translate(std::string_view statement) const {
    impl_->file();
    return impl_->file().named([&] { return jet::translate(statement, *impl_); });
}

void Database::execute(std::string_view statement) {
    const jet::Program program = translate(statement);
    if (program.isQuery)
        throw DatabaseError(3065, "A query that shows rows cannot be executed; open it as a recordset");
    impl_->file().named([&] { impl_->run(program); });
}

void Database::createView(const std::string& viewName, std::string_view query) {
    impl_->file();
    impl_->file().named([&] { impl_->createView(viewName, query); });
}

std::shared_ptr<void>& Database::companion() const {
    return impl_->file().companion();
}

long Database::recordsAffected() const {
    impl_->file();
    return impl_->recordsAffected;
}

std::shared_ptr<Recordset> Database::openRecordset(std::string_view statementOrTable) {
    jet::Program program = translate(statementOrTable);
    if (!program.isQuery)
        throw DatabaseError(3219, "A statement that changes data shows no rows; execute it");
    return open(std::move(program));
}

std::shared_ptr<Recordset> Database::run(std::string_view statement) {
    jet::Program program = translate(statement);
    if (program.isQuery)
        return open(std::move(program));
    impl_->file().named([&] { impl_->run(program); });
    return nullptr;
}

std::shared_ptr<Recordset> Database::open(jet::Program program) {
    if (impl_->readOnly || (program.updatable && !hasRowNumbers(*program.updatable)))
        program.updatable.reset();
    auto rows = std::make_unique<Recordset::Impl>(impl_->attached, std::move(program));
    if (rows->program.updatable)
        rows->edited = impl_->workspace->impl().attachedAs(rows->program.updatable->schema);
    impl_->attached->named([&] { rows->query(); });
    return std::make_shared<Recordset>(std::move(rows));
}

TableDefs& Database::tableDefs() {
    impl_->file();
    return impl_->tableDefs;
}

TableDef Database::createTableDef(std::string tableName) const {
    impl_->file();
    TableDef definition;
    definition.name = std::move(tableName);
    return definition;
}

std::shared_ptr<Workspace> Database::workspace() const {
    return impl_->workspace;
}
sqlite::Connection& Database::connection() const {
    return impl_->file().connection();
}
std::string Database::schema() const {
    return impl_->file().schema();
}
