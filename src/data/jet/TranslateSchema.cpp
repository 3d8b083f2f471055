#include "data/jet/Translate.h"

#include "data/jet/StaticTypes.h"
#include "data/types/DatabaseError.h"

#include <algorithm>

namespace jet {

namespace {

/// Index names are the table's own in the dialect and the file's in the storage library.
std::string indexName(const Table& table, std::string_view name) {
    return table.name + "." + std::string(name);
}

std::string createIndexText(const Table& table, const Index& index) {
    std::string columns;
    for (const Index::Column& column : index.columns)
        columns += (columns.empty() ? "" : ", ") + quoteIdentifier(column.name) + (column.descending ? " DESC" : "");
    return std::string(index.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") + quoteIdentifier(table.schema) + "." +
           quoteIdentifier(index.name) + " ON " + quoteIdentifier(table.name) + " (" + columns + ")";
}

Index indexOf(const Table& table, const IndexDefinition& definition) {
    Index index;
    index.unique = definition.unique;
    index.name = indexName(table, definition.name);
    for (const IndexDefinition::Column& column : definition.columns) {
        const std::size_t at = columnIndex(table, column.name, column.position, 3409);
        index.columns.push_back({table.columns[at].name, column.descending});
    }
    return index;
}

std::string createTableText(const Table& table) {
    std::string columns;
    for (const Field& field : table.columns)
        columns += (columns.empty() ? "" : ", ") + columnDefinition(field);
    return "CREATE TABLE " + qualifiedName(table) + " (" + columns + ")";
}

/// `table` is without the column. Its counter is its key, so that it can have one only.
void checkOneCounter(const Table& table, const ColumnDefinition& column) {
    const bool another = std::any_of(table.columns.begin(), table.columns.end(), [&](const Field& field) {
        return field.counter && !equalText(field.name, column.field.name);
    });
    if (column.field.counter && another)
        throw DatabaseError(3292, "Table '" + table.name + "' has a counter already", column.position);
}

void checkNewColumn(const Table& table, const ColumnDefinition& column) {
    const bool exists = std::any_of(table.columns.begin(), table.columns.end(),
                                    [&](const Field& field) { return equalText(field.name, column.field.name); });
    if (exists)
        throw DatabaseError(3380, "Field '" + column.field.name + "' already exists in table '" + table.name + "'",
                            column.position);
    checkOneCounter(table, column);
}

/// The keys that stand behind single columns, as indexes of their own.
std::vector<IndexDefinition> columnKeys(const std::vector<ColumnDefinition>& columns) {
    std::vector<IndexDefinition> keys;
    for (const ColumnDefinition& column : columns) {
        if (column.field.counter || (!column.primaryKey && !column.unique))
            continue;
        IndexDefinition key;
        key.name = column.primaryKey ? "PrimaryKey" : column.field.name;
        key.columns.push_back({column.field.name, false, column.position});
        key.unique = true;
        key.primary = column.primaryKey;
        keys.push_back(std::move(key));
    }
    return keys;
}

/// A primary key allows no nulls.
void requireKeyColumns(Table& table, const IndexDefinition& key) {
    for (const IndexDefinition::Column& column : key.columns)
        table.columns[columnIndex(table, column.name, column.position, 3409)].required = true;
}

bool isCounterAlone(const Table& table, const IndexDefinition& key) {
    return key.columns.size() == 1 &&
           table.columns[columnIndex(table, key.columns.front().name, key.columns.front().position, 3409)].counter;
}

/// Makes the table anew under its own name as `altered`, with its rows and indexes. `values` gives what goes into each
/// of `columns`, over the old columns.
void rebuild(Program& program, const Table& old, const Table& altered, const std::string& columns,
             const std::string& values, Catalog& catalog) {
    Table copy = old;
    copy.name = "%copy of " + old.name;
    const auto run = [&](std::string sql) { program.steps.push_back({Step::Kind::Execute, std::move(sql)}); };
    const std::vector<Index> indexes = catalog.indexesOf(old);
    run("CREATE TABLE " + qualifiedName(copy) + " AS SELECT * FROM " + qualifiedName(old));
    run("DROP TABLE " + qualifiedName(old));
    run(createTableText(altered));
    run("INSERT INTO " + qualifiedName(altered) + " (" + columns + ") SELECT " + values + " FROM " +
        qualifiedName(copy) + " ORDER BY rowid");
    run("DROP TABLE " + qualifiedName(copy));
    for (const Index& index : indexes)
        run(createIndexText(altered, index));
}

std::string quotedColumns(const Table& table) {
    std::string list;
    for (const Field& field : table.columns)
        list += (list.empty() ? "" : ", ") + quoteIdentifier(field.name);
    return list;
}

void addColumns(Program& program, const Table& table, const AlterTable& alter, Catalog& catalog) {
    Table altered = table;
    bool simple = true;
    for (const ColumnDefinition& column : alter.columns) {
        checkNewColumn(altered, column);
        altered.columns.push_back(column.field);
        simple = simple && !column.field.counter && (!column.field.required || column.field.defaultValue);
    }
    const std::vector<IndexDefinition> keys = columnKeys(alter.columns);
    for (const IndexDefinition& key : keys) {
        if (key.primary) {
            requireKeyColumns(altered, key);
            simple = false;
        }
    }
    if (simple) {
        for (std::size_t i = table.columns.size(); i < altered.columns.size(); ++i)
            program.steps.push_back({Step::Kind::Execute, "ALTER TABLE " + qualifiedName(table) + " ADD COLUMN " +
                                                              columnDefinition(altered.columns[i])});
    } else {
        rebuild(program, table, altered, quotedColumns(table), quotedColumns(table), catalog);
    }
    for (const IndexDefinition& key : keys)
        program.steps.push_back({Step::Kind::Execute, createIndexText(altered, indexOf(altered, key))});
}

/// The column as its new definition says; what the definition does not name stays, where the new type can have it.
Field alteredField(const Field& old, const Field& definition) {
    Field field = definition;
    field.name = old.name;
    if (field.counter)
        return field;
    field.required = field.required || old.required;
    if (isText(old.type) && isText(field.type))
        field.allowZeroLength = field.allowZeroLength && old.allowZeroLength;
    const bool keepsDefault = isText(field.type) || (isNumeric(old.type) && isNumeric(field.type));
    if (!field.defaultValue && keepsDefault)
        field.defaultValue = old.defaultValue;
    return field;
}

void alterColumns(Program& program, const Table& table, const AlterTable& alter, Catalog& catalog) {
    Table altered = table;
    std::vector<std::string> values;
    for (const Field& field : table.columns)
        values.push_back(quoteIdentifier(field.name));
    for (const ColumnDefinition& column : alter.columns) {
        const std::size_t at = columnIndex(table, column.field.name, column.position, 3381);
        checkOneCounter(altered, column);
        const Field& old = table.columns[at];
        StaticType type;
        type.type = old.type;
        type.size = old.size;
        altered.columns[at] = alteredField(old, column.field);
        // A narrower text column keeps the texts that it has; only new ones must fit.
        if (!isText(old.type) || !isText(column.field.type))
            values[at] = convertedText(values[at], type, altered.columns[at], column.position);
    }
    std::string list;
    for (const std::string& value : values)
        list += (list.empty() ? "" : ", ") + value;
    rebuild(program, table, altered, quotedColumns(altered), list, catalog);
}

void dropColumns(Program& program, const Table& table, const AlterTable& alter, Catalog& catalog) {
    if (alter.columns.size() >= table.columns.size())
        throw DatabaseError(3293, "A table must keep one field", alter.columns.front().position);
    for (const ColumnDefinition& column : alter.columns) {
        const Field& field = table.columns[columnIndex(table, column.field.name, column.position, 3381)];
        for (const Index& index : catalog.indexesOf(table)) {
            const bool indexed = std::any_of(index.columns.begin(), index.columns.end(),
                                             [&](const auto& key) { return equalText(key.name, field.name); });
            if (indexed || field.counter)
                throw DatabaseError(3280, "Field '" + field.name + "' is part of an index and cannot be dropped",
                                    column.position);
        }
        program.steps.push_back({Step::Kind::Execute, "ALTER TABLE " + qualifiedName(table) + " DROP COLUMN " +
                                                          quoteIdentifier(field.name)});
    }
}

} // namespace

Program translateCreateTable(const CreateTable& create, Catalog& catalog) {
    Table table = newTable(create.table, catalog);
    checkFieldCount(create.columns.size(), create.table);
    for (const ColumnDefinition& column : create.columns) {
        checkNewColumn(table, column);
        table.columns.push_back(column.field);
    }
    if (table.columns.empty())
        throw DatabaseError(3290, "A table needs a field", create.table.position);
    std::vector<IndexDefinition> keys = columnKeys(create.columns);
    keys.insert(keys.end(), create.keys.begin(), create.keys.end());
    std::erase_if(keys, [&](const IndexDefinition& key) { return isCounterAlone(table, key); });
    Program program;
    program.changesSchema = true;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i].primary)
            requireKeyColumns(table, keys[i]);
        if (keys[i].name.empty())
            keys[i].name = keys[i].primary ? "PrimaryKey" : "Unique" + std::to_string(i + 1);
    }
    program.steps.push_back({Step::Kind::Execute, createTableText(table)});
    for (const IndexDefinition& key : keys)
        program.steps.push_back({Step::Kind::Execute, createIndexText(table, indexOf(table, key))});
    return program;
}

Program translateCreateIndex(const CreateIndex& create, Catalog& catalog) {
    const Table table = Binder(catalog).table(create.table);
    checkChangeable(table, create.table.position);
    const Index index = indexOf(table, create.index);
    for (const Index& other : catalog.indexesOf(table)) {
        if (equalText(other.name, index.name))
            throw DatabaseError(3375, "Table '" + table.name + "' has an index '" + create.index.name + "' already",
                                create.index.position);
    }
    Program program;
    program.changesSchema = true;
    program.steps.push_back({Step::Kind::Execute, createIndexText(table, index)});
    return program;
}

Program translateDropTable(const DropTable& drop, Catalog& catalog) {
    Program program;
    program.changesSchema = true;
    if (drop.table.path.empty() && catalog.isLink(drop.table.name)) {
        program.steps.push_back({Step::Kind::DropLink, drop.table.name});
        return program;
    }
    const auto table = drop.table.path.empty() ? catalog.findTable(drop.table.name)
                                               : catalog.findTableIn(drop.table.path, drop.table.name);
    if (!table)
        throw DatabaseError(3376, "Table '" + drop.table.name + "' does not exist", drop.table.position);
    program.steps.push_back(
        {Step::Kind::Execute, (table->isView ? "DROP VIEW " : "DROP TABLE ") + qualifiedName(*table)});
    return program;
}

Program translateDropIndex(const DropIndex& drop, Catalog& catalog) {
    const Table table = Binder(catalog).table(drop.table);
    for (const Index& index : catalog.indexesOf(table)) {
        if (!equalText(index.name, indexName(table, drop.name)) && !equalText(index.name, drop.name))
            continue;
        Program program;
        program.changesSchema = true;
        program.steps.push_back(
            {Step::Kind::Execute, "DROP INDEX " + quoteIdentifier(table.schema) + "." + quoteIdentifier(index.name)});
        return program;
    }
    throw DatabaseError(3372, "Table '" + table.name + "' has no index '" + drop.name + "'", drop.position);
}

Program translateAlterTable(const AlterTable& alter, Catalog& catalog) {
    const Table table = Binder(catalog).table(alter.table);
    checkChangeable(table, alter.table.position);
    Program program;
    program.changesSchema = true;
    switch (alter.action) {
    case AlterTable::Action::Add:
        addColumns(program, table, alter, catalog);
        break;
    case AlterTable::Action::Alter:
        alterColumns(program, table, alter, catalog);
        break;
    case AlterTable::Action::Drop:
        dropColumns(program, table, alter, catalog);
        break;
    }
    return program;
}

} // namespace jet
