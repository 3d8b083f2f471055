#include "data/engine/RecordsetImpl.h"

#include "data/engine/DefinitionCheck.h"
#include "data/engine/RowValue.h"
#include "data/jet/Emitter.h"
#include "data/jet/Search.h"
#include "data/types/DatabaseError.h"

#include <algorithm>

Recordset::Impl::Impl(std::shared_ptr<AttachedFile> attachedFile, jet::Program translated)
    : file(std::move(attachedFile)), program(std::move(translated)) {
    if (program.updatable)
        findTableFields();
}

void Recordset::Impl::findTableFields() {
    const std::vector<Field>& fields = program.updatable->columns;
    for (const jet::ResultColumn& shown : program.columns) {
        const auto field = std::find_if(fields.begin(), fields.end(), [&](const Field& candidate) {
            return !shown.sourceColumn.empty() && equalText(candidate.name, shown.sourceColumn);
        });
        tableFields_.push_back(field == fields.end() ? -1 : static_cast<int>(field - fields.begin()));
    }
}

void Recordset::Impl::query() {
    const bool withRowid = program.updatable.has_value();
    sqlite::Statement statement(file->connection(), withRowid ? program.rowidQuery : program.query);
    const int first = withRowid ? 1 : 0;
    std::vector<Value> readCells;
    std::vector<std::int64_t> readRowids;
    long count = 0;
    while (statement.step()) {
        if (withRowid)
            readRowids.push_back(statement.integer(0));
        for (int column = 0; column < columns(); ++column)
            readCells.push_back(
                readValue(statement, first + column, program.columns[static_cast<std::size_t>(column)]));
        ++count;
    }
    cells = std::move(readCells);
    rowids = std::move(readRowids);
    rows = count;
    cursor = 0;
    noMatch = false;
    deleted = false;
    editing = Editing::None;
    keys_.clear();
}

void Recordset::Impl::requireOpen() const {
    if (!file)
        throw DatabaseError(3420, "Object invalid or no longer set");
}

void Recordset::Impl::requireRow() const {
    requireOpen();
    if (cursor < 0 || cursor >= rows || deleted)
        throw DatabaseError(3021, "No current record");
}

void Recordset::Impl::requireEditable() const {
    if (!program.updatable)
        throw DatabaseError(3027, "The rows belong to no single table and cannot be changed");
}

int Recordset::Impl::find(std::string_view field) const {
    if (field.size() > 2 && field.front() == '[' && field.back() == ']')
        field = field.substr(1, field.size() - 2);
    for (std::size_t i = 0; i < program.columns.size(); ++i) {
        if (equalText(program.columns[i].name, field))
            return static_cast<int>(i);
    }
    return -1;
}

int Recordset::Impl::position(std::string_view field) const {
    const int found = find(field);
    if (found < 0)
        throw DatabaseError(3265, "There is no field '" + std::string(field) + "' in the rows");
    return found;
}

const Value& Recordset::Impl::cell(long row, int column) const {
    return cells[static_cast<std::size_t>(row) * program.columns.size() + static_cast<std::size_t>(column)];
}

const Field& Recordset::Impl::tableField(int column) const {
    const auto at = static_cast<std::size_t>(column);
    if (tableFields_[at] < 0)
        throw DatabaseError(3164, "The field '" + program.columns[at].name + "' cannot be changed");
    return program.updatable->columns[static_cast<std::size_t>(tableFields_[at])];
}

void Recordset::Impl::search(std::string_view expression, long from, Direction direction) {
    const auto wanted = KeySearch::recognise(expression);
    const KeyIndex* keys = wanted ? keysOf(find(wanted->field), wanted->kind) : nullptr;
    const long found =
        keys ? searchByKey(*keys, *wanted, expression, from, direction) : searchByTest(expression, from, direction);
    editing = Editing::None;
    noMatch = found < 0;
    if (noMatch)
        return;
    cursor = found;
    deleted = false;
}

const KeyIndex* Recordset::Impl::keysOf(int column, KeySearch::Kind kind) {
    if (column < 0)
        return nullptr;
    const auto type = program.columns[static_cast<std::size_t>(column)].type;
    const bool isOfKind =
        kind == KeySearch::Kind::Text ? type && isText(*type) : type && isNumeric(*type) && *type != FieldType::Boolean;
    if (!isOfKind)
        return nullptr;
    auto entry = keys_.find(column);
    if (entry == keys_.end())
        entry = keys_.emplace(column, makeKeys(column, kind)).first;
    return entry->second ? &*entry->second : nullptr;
}

std::optional<KeyIndex> Recordset::Impl::makeKeys(int column, KeySearch::Kind kind) const {
    KeyIndex keys;
    for (long row = 0; row < rows; ++row) {
        const Value& value = cell(row, column);
        const bool isOfKind = kind == KeySearch::Kind::Text ? value.isText() : value.isNumber();
        if (!isOfKind && !value.isNull())
            return std::nullopt;
        keys.add(value, row);
    }
    return keys;
}

long Recordset::Impl::searchByKey(const KeyIndex& keys, const KeySearch& wanted, std::string_view expression, long from,
                                  Direction direction) {
    if (!wanted.alone)
        compileTest(expression);
    const bool forward = direction == Direction::Forward;
    for (;; from += forward ? 1 : -1) {
        from = forward ? keys.findForward(wanted.key, from) : keys.findBackward(wanted.key, from);
        if (from < 0 || wanted.alone || passesTest(from))
            return from;
    }
}

void Recordset::Impl::compileTest(std::string_view expression) {
    if (test_ && testText_ == expression)
        return;
    test_.reset();
    test_.emplace(expression, [this](std::string_view name) { return find(name); });
    testText_ = expression;
}

bool Recordset::Impl::passesTest(long row) const {
    return test_->matches([this, row](int column) -> const Value& { return cell(row, column); });
}

long Recordset::Impl::searchByTest(std::string_view expression, long from, Direction direction) {
    compileTest(expression);
    const long step = direction == Direction::Forward ? 1 : -1;
    for (long row = from; row >= 0 && row < rows; row += step) {
        if (passesTest(row))
            return row;
    }
    return -1;
}

void Recordset::Impl::requery() {
    try {
        query();
    } catch (const DatabaseError& error) {
        if (error.number() != sqlite::UnclassifiedFault)
            throw;
        throw DatabaseError(3078, "The rows can no longer be read: their table has been dropped or changed");
    }
}

std::string Recordset::Impl::tableName() const {
    return program.updatable->schema + "." + quoteIdentifier(program.updatable->name);
}

std::string Recordset::Impl::rowName() const {
    return jet::rowidName(program.updatable->columns);
}

std::string Recordset::Impl::touchedColumns(std::string_view behind) const {
    std::string list;
    for (int column = 0; column < columns(); ++column) {
        if (touched[static_cast<std::size_t>(column)])
            list += (list.empty() ? "" : ", ") + quoteIdentifier(tableField(column).name) + std::string(behind);
    }
    return list;
}

int Recordset::Impl::bindTouched(sqlite::Statement& statement) const {
    int parameter = 1;
    for (int column = 0; column < columns(); ++column) {
        if (touched[static_cast<std::size_t>(column)])
            bindValue(statement, parameter++, tableField(column), buffer[static_cast<std::size_t>(column)]);
    }
    return parameter;
}

void Recordset::Impl::beginNew() {
    buffer.assign(static_cast<std::size_t>(columns()), Value());
    touched.assign(buffer.size(), false);
    for (int column = 0; column < columns(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        if (!program.columns[at].sourceColumn.empty())
            buffer[at] = defaultOf(tableField(column));
    }
    editing = Editing::New;
}

sqlite::Statement& Recordset::Impl::changing(const std::string& sql) {
    if (change_ && changeText_ == sql) {
        file->connection().refuseWhereTransactionLost();
        return *change_;
    }
    change_.reset();
    change_.emplace(file->connection(), sql);
    changeText_ = sql;
    return *change_;
}

void Recordset::Impl::run(sqlite::Statement& statement) {
    try {
        statement.step();
    } catch (...) {
        statement.reset();
        throw;
    }
    statement.reset();
}

void Recordset::Impl::writeExisting() {
    const std::string assignments = touchedColumns(" = ?");
    if (assignments.empty())
        return;
    sqlite::Statement& update =
        changing("UPDATE " + tableName() + " SET " + assignments + " WHERE " + rowName() + " = ?");
    update.bind(bindTouched(update), rowids[static_cast<std::size_t>(cursor)]);
    run(update);
    if (file->connection().changes() == 0)
        throw DatabaseError(3167, "The record has been deleted");
    for (auto& [column, keys] : keys_) {
        const auto at = static_cast<std::size_t>(column);
        if (!keys || !touched[at])
            continue;
        keys->remove(cell(cursor, column), cursor);
        keys->add(buffer[at], cursor);
    }
    std::copy(buffer.begin(), buffer.end(), cells.begin() + cursor * columns());
}

void Recordset::Impl::writeNew() {
    const std::string names = touchedColumns("");
    std::string places;
    for (const bool isSet : touched)
        places += !isSet ? "" : places.empty() ? "?" : ", ?";
    sqlite::Statement& insert =
        changing("INSERT INTO " + tableName() +
                 (names.empty() ? std::string(" DEFAULT VALUES") : " (" + names + ") VALUES (" + places + ")"));
    bindTouched(insert);
    run(insert);
    const std::int64_t rowid = file->connection().lastInsertRowid();
    readDefaults(rowid);
    rowids.push_back(rowid);
    for (auto& [column, keys] : keys_) {
        if (keys)
            keys->add(buffer[static_cast<std::size_t>(column)], rows);
    }
    for (Value& value : buffer)
        cells.push_back(std::move(value));
    ++rows;
}

void Recordset::Impl::readDefaults(std::int64_t rowid) {
    std::string list;
    std::vector<int> read;
    for (int column = 0; column < columns(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        if (touched[at] || program.columns[at].sourceColumn.empty())
            continue;
        const Field& field = tableField(column);
        if (!field.defaultValue && !field.counter && field.type != FieldType::Boolean)
            continue;
        list += (list.empty() ? "" : ", ") + quoteIdentifier(field.name);
        read.push_back(column);
    }
    if (read.empty())
        return;
    sqlite::Statement row(file->connection(),
                          "SELECT " + list + " FROM " + tableName() + " WHERE " + rowName() + " = ?");
    row.bind(1, rowid);
    if (!row.step())
        return;
    for (std::size_t i = 0; i < read.size(); ++i) {
        const auto at = static_cast<std::size_t>(read[i]);
        buffer[at] = readValue(row, static_cast<int>(i), program.columns[at]);
    }
}

void Recordset::Impl::removeRow() {
    const auto row = static_cast<std::size_t>(cursor);
    sqlite::Statement remove(file->connection(), "DELETE FROM " + tableName() + " WHERE " + rowName() + " = ?");
    remove.bind(1, rowids[row]);
    remove.step();
    if (file->connection().changes() == 0)
        throw DatabaseError(3167, "The record has been deleted");
    const auto first = cells.begin() + static_cast<std::ptrdiff_t>(row * static_cast<std::size_t>(columns()));
    cells.erase(first, first + columns());
    rowids.erase(rowids.begin() + static_cast<std::ptrdiff_t>(row));
    --rows;
    keys_.clear();
    editing = Editing::None;
    deleted = true;
}
