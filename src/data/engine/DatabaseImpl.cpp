#include "data/engine/DatabaseImpl.h"

#include "core/cPathControl.h"
#include "data/engine/DefinitionCheck.h"
#include "data/engine/WorkspaceImpl.h"
#include "data/types/DatabaseError.h"
#include "data/types/Value.h"

#include <algorithm>
#include <filesystem>

namespace {
/// A link may lead to a link; a ring of links must end.
constexpr int deepestLink = 8;
} // namespace

Database::Impl::Impl(std::shared_ptr<Workspace> owner, std::shared_ptr<AttachedFile> file, std::string openedPath,
                     bool only)
    : workspace(std::move(owner)), attached(std::move(file)), path(std::move(openedPath)), readOnly(only),
      tableDefs(*this) {}

Database::Impl::~Impl() {
    close();
}

void Database::Impl::close() {
    attached.reset();
    workspace->impl().detachUnused();
}

AttachedFile& Database::Impl::file() const {
    if (!attached)
        throw DatabaseError(3420, "Object invalid or no longer set");
    return *attached;
}

void Database::Impl::refuseWhereReadOnly() const {
    if (readOnly)
        throw DatabaseError(3027, "The database '" + path + "' is open for reading only");
}

std::string Database::Impl::defaultSchema() const {
    return file().schema();
}

std::optional<jet::Table> Database::Impl::findTable(std::string_view name) {
    return findIn(file(), name, 0);
}

std::optional<jet::Table> Database::Impl::findIn(AttachedFile& from, std::string_view name, int depth) {
    const std::string key = foldText(name);
    const auto& tables = from.tables();
    if (const auto table = tables.find(key); table != tables.end())
        return table->second;
    const auto& links = from.links();
    if (const auto link = links.find(key); link != links.end())
        return followLink(from, AttachedFile::Link(link->second), depth);
    return std::nullopt;
}

std::optional<jet::Table> Database::Impl::followLink(AttachedFile& from, const AttachedFile::Link& link, int depth) {
    const ConnectString connect = ConnectString::parse(link.connect);
    if (depth >= deepestLink)
        throw DatabaseError(3078, "The attached table '" + link.name + "' leads to itself");
    std::shared_ptr<AttachedFile> target;
    try {
        target = workspace->impl().attach(connect.database, connect.password);
    } catch (const DatabaseError& error) {
        from.letGo(canonicalPath(connect.database));
        throw DatabaseError(error.number(),
                            "The attached table '" + link.name + "' cannot be reached: " + error.description());
    }
    from.hold(target);
    auto table = findIn(*target, link.sourceTable, depth + 1);
    if (!table)
        throw DatabaseError(3078, "The attached table '" + link.name + "' has lost its source '" + link.sourceTable +
                                      "' in '" + connect.database + "'");
    table->link = link.name;
    return table;
}

AttachedFile& Database::Impl::otherFile(std::string_view otherPath) {
    const std::string text(otherPath);
    if (canonicalPath(text) == file().path())
        return file();
    // A path inside a statement carries no password: the file must have none or be open already.
    auto other = workspace->impl().attached(text);
    if (!other || !std::filesystem::exists(toPath(text)))
        other = workspace->impl().attach(text, {});
    file().hold(other);
    return *other;
}

std::optional<jet::Table> Database::Impl::findTableIn(std::string_view otherPath, std::string_view name) {
    return findIn(otherFile(otherPath), name, 0);
}

std::string Database::Impl::schemaOf(std::string_view otherPath) {
    return otherFile(otherPath).schema();
}

bool Database::Impl::isLink(std::string_view name) {
    return file().links().contains(foldText(name));
}

std::vector<jet::Index> Database::Impl::indexesOf(const jet::Table& table) {
    sqlite::Connection& connection = file().connection();
    std::vector<jet::Index> indexes;
    // Only indexes made by a statement of their own; those of a key belong to the table's definition.
    sqlite::Statement list(connection,
                           "SELECT name, \"unique\" FROM pragma_index_list(?, ?) WHERE origin = 'c' ORDER BY name");
    list.bind(1, table.name);
    list.bind(2, table.schema);
    while (list.step()) {
        jet::Index index{std::string(list.text(0)), list.integer(1) != 0, {}};
        sqlite::Statement columns(connection,
                                  "SELECT name, \"desc\" FROM pragma_index_xinfo(?, ?) WHERE key ORDER BY seqno");
        columns.bind(1, index.name);
        columns.bind(2, table.schema);
        while (columns.step())
            index.columns.push_back({std::string(columns.text(0)), columns.integer(1) != 0});
        indexes.push_back(std::move(index));
    }
    return indexes;
}

std::vector<TableDef> Database::Impl::readDefinitions() {
    std::vector<TableDef> definitions;
    for (const auto& [key, table] : file().tables()) {
        TableDef definition;
        definition.name = table.name;
        definition.fields = table.columns;
        definitions.push_back(std::move(definition));
    }
    for (const auto& [key, link] : file().links()) {
        TableDef definition;
        definition.name = link.name;
        definition.connect = link.connect;
        definition.sourceTableName = link.sourceTable;
        definitions.push_back(std::move(definition));
    }
    return definitions;
}

std::vector<Field> Database::Impl::fieldsOfLink(const TableDef& link) {
    try {
        const auto table = findTable(link.name);
        return table ? table->columns : std::vector<Field>();
    } catch (const DatabaseError&) {
        return {};
    }
}

void Database::Impl::create(const TableDef& definition) {
    refuseWhereReadOnly();
    const std::string key = foldText(definition.name);
    if (file().tables().contains(key) || file().links().contains(key))
        throw DatabaseError(3010, "Table '" + definition.name + "' already exists");
    if (definition.isAttached()) {
        checkTableName(definition.name);
        const AttachedFile::Link link{definition.name, definition.sourceTableName, definition.connect};
        followLink(file(), link, 0); // a link that leads nowhere is refused
        file().named([&] { file().addLink(link); });
        return;
    }
    const TableDef checked = checkedDefinition(definition);
    std::string sql = "CREATE TABLE " + file().schema() + "." + quoteIdentifier(checked.name) + " (";
    for (std::size_t i = 0; i < checked.fields.size(); ++i)
        sql += (i == 0 ? "" : ", ") + columnDefinition(checked.fields[i]);
    file().named([&] { file().connection().execute(sql + ")"); });
    file().invalidate();
}

void Database::Impl::remove(const TableDef& definition) {
    refuseWhereReadOnly();
    if (definition.isAttached()) {
        file().named([&] { file().removeLink(definition.name); });
        return;
    }
    const auto table = findTable(definition.name);
    if (!table)
        throw DatabaseError(3265, "There is no table '" + definition.name + "'");
    const std::string sql =
        (table->isView ? "DROP VIEW " : "DROP TABLE ") + file().schema() + "." + quoteIdentifier(table->name);
    file().named([&] { file().connection().execute(sql); });
    file().invalidate();
}

void Database::Impl::changeLink(const TableDef& definition) {
    refuseWhereReadOnly();
    const auto found = file().links().find(foldText(definition.name));
    if (found == file().links().end())
        throw DatabaseError(3265, "There is no attached table '" + definition.name + "'");
    const AttachedFile::Link link{found->second.name, definition.sourceTableName, definition.connect};
    followLink(file(), link, 0); // a link that leads nowhere is refused
    file().named([&] { file().changeLink(link); });
}

jet::Table Database::Impl::existingTable(const std::string& name) {
    auto table = findTable(name);
    if (!table)
        throw DatabaseError(3078, "Could not find the table or query '" + name + "'");
    return std::move(*table);
}

void Database::Impl::addField(const std::string& name, const Field& field) {
    refuseWhereReadOnly();
    const jet::Table table = existingTable(name);
    for (const Field& other : table.columns) {
        if (equalText(other.name, field.name))
            throw DatabaseError(3191, "Field '" + field.name + "' already exists in table '" + name + "'");
    }
    const Field checked = checkedField(field);
    if (checked.counter)
        throw DatabaseError(3259, "The counter '" + field.name + "' can be made with its table only");
    if (checked.required && !checked.defaultValue && checked.type != FieldType::Boolean)
        throw DatabaseError(3314, "The field '" + field.name + "' is required and has no default for the rows of '" +
                                      name + "'");
    const std::string sql =
        "ALTER TABLE " + table.schema + "." + quoteIdentifier(table.name) + " ADD COLUMN " + columnDefinition(checked);
    file().named([&] { file().connection().execute(sql); });
    file().invalidate();
}

void Database::Impl::removeField(const std::string& name, const std::string& field) {
    const jet::Table table = existingTable(name);
    const bool exists = std::any_of(table.columns.begin(), table.columns.end(),
                                    [&](const Field& other) { return equalText(other.name, field); });
    if (!exists)
        throw DatabaseError(3265, "There is no field '" + field + "' in table '" + name + "'");
    file().named([&] { run(jet::translate("ALTER TABLE [" + name + "] DROP COLUMN [" + field + "]", *this)); });
}

std::int64_t Database::Impl::changeStamp() {
    file().tables(); // looks whether the file has changed
    return file().generation();
}

void Database::Impl::run(const jet::Program& program) {
    refuseWhereReadOnly();
    try {
        sqlite::Savepoint savepoint(file().connection());
        recordsAffected = runSteps(program);
        savepoint.release();
    } catch (...) {
        workspace->impl().invalidateSchemas();
        throw;
    }
    if (program.changesSchema)
        workspace->impl().invalidateSchemas();
}

long Database::Impl::runSteps(const jet::Program& program) {
    sqlite::Connection& connection = file().connection();
    long affected = 0;
    for (const jet::Step& step : program.steps) {
        if (step.kind == jet::Step::Kind::DropLink) {
            file().removeLink(step.sql);
            continue;
        }
        connection.execute(step.sql);
        if (step.kind == jet::Step::Kind::Count)
            affected += static_cast<long>(connection.changes());
    }
    return affected;
}
