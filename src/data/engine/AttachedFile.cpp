#include "data/engine/AttachedFile.h"

#include "data/engine/FileProbe.h"
#include "data/types/DatabaseError.h"
#include "data/types/Value.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view linkTable = "MSysLinks";

/// At most this much of a file's pages is kept in memory.
constexpr int cacheKibibytes = 262144;

/// More files than a statement names.
constexpr std::size_t mostHeld = 32;

/// Puts the path in front of an error of the storage library and tells a wrong password from a foreign file.
[[noreturn]] void refuse(const DatabaseError& error, const std::string& path, FileProbe::Kind kind) {
    switch (error.number()) {
    case 3343:
        if (kind == FileProbe::Kind::Encrypted)
            throw DatabaseError(3031, "Not a valid password for '" + path + "'");
        throw DatabaseError(3049, "The database file '" + path + "' is damaged");
    case 3049:
        throw DatabaseError(3049, "The database file '" + path + "' is damaged");
    case 3356:
        throw DatabaseError(3356, "The file '" + path + "' is in use by another process");
    default:
        throw DatabaseError(error.number(), "The file '" + path + "' cannot be opened: " + error.description());
    }
}

} // namespace

bool isSystemTable(std::string_view name) {
    const std::string folded = foldText(name);
    return folded.starts_with("SQLITE_") || folded.starts_with("MSYS");
}

AttachedFile::AttachedFile(std::shared_ptr<sqlite::Connection> connection, std::string path, std::string schema,
                           std::string password, Create create)
    : connection_(std::move(connection)), path_(std::move(path)), schema_(std::move(schema)),
      password_(std::move(password)) {
    attach(create);
}

AttachedFile::~AttachedFile() {
    try {
        connection_->execute("DETACH DATABASE " + schema_);
    } catch (const RuntimeError&) {
        // The connection is going, and the file with it.
    }
}

void AttachedFile::attach(Create create) {
    FileProbe::Kind kind = password_.empty() ? FileProbe::Kind::Plain : FileProbe::Kind::Encrypted;
    if (create == Create::No) {
        kind = probeFile(path_).kind;
        if (kind == FileProbe::Kind::Plain)
            password_.clear();
        else if (password_.empty())
            throw DatabaseError(3031, "Not a valid password for '" + path_ + "': the file needs one");
    }
    bool attached = false;
    try {
        connection_->execute("ATTACH DATABASE " + quoteLiteral(path_) + " AS " + schema_ + " KEY " +
                             quoteLiteral(password_));
        attached = true;
        connection_->execute("PRAGMA " + schema_ + ".cache_size = -" + std::to_string(cacheKibibytes));
        if (create == Create::Yes)
            connection_->execute("PRAGMA " + schema_ + ".application_id = " + std::to_string(ApplicationId));
        readSchema();
    } catch (const DatabaseError& error) {
        if (attached)
            connection_->execute("DETACH DATABASE " + schema_);
        refuse(error, path_, kind);
    }
}

DatabaseError AttachedFile::withPaths(const DatabaseError& error) const {
    constexpr std::array<long, 6> faultsOfDisk{3027, 3043, 3049, 3051, 3183, 3356};
    std::string words = error.description();
    if (std::find(faultsOfDisk.begin(), faultsOfDisk.end(), error.number()) == faultsOfDisk.end() ||
        words.find('\'') != std::string::npos)
        return error;
    words += ": '" + path_ + "'";
    for (const auto& other : held())
        words += " or '" + other->path() + "'";
    return {error.number(), words, error.position()};
}

void AttachedFile::lockExclusively() {
    connection_->execute("PRAGMA " + schema_ + ".locking_mode = EXCLUSIVE");
    try {
        // A write that changes nothing takes the lock, which the locking mode then keeps.
        connection_->execute("PRAGMA " + schema_ + ".application_id = " + std::to_string(ApplicationId));
    } catch (const DatabaseError& error) {
        refuse(error, path_, FileProbe::Kind::Plain);
    }
}

const std::map<std::string, jet::Table>& AttachedFile::tables() {
    readSchema();
    return tables_;
}

const std::map<std::string, AttachedFile::Link>& AttachedFile::links() {
    readSchema();
    return links_;
}

void AttachedFile::readSchema() {
    sqlite::Statement version(*connection_, "PRAGMA " + schema_ + ".schema_version");
    version.step();
    const std::int64_t found = version.integer(0);
    if (found == schemaVersion_)
        return;
    std::map<std::string, jet::Table> tables;
    std::map<std::string, Link> links;
    sqlite::Statement names(*connection_, "SELECT name, type = 'view' FROM " + schema_ +
                                              ".sqlite_schema WHERE type IN ('table', 'view') ORDER BY rowid");
    bool hasLinks = false;
    while (names.step()) {
        const std::string name(names.text(0));
        hasLinks = hasLinks || name == linkTable;
        if (!isSystemTable(name))
            tables.emplace(foldText(name), readTable(name, names.integer(1) != 0));
    }
    if (hasLinks) {
        sqlite::Statement rows(*connection_,
                               "SELECT Name, SourceTable, Connect FROM " + schema_ + ".MSysLinks ORDER BY rowid");
        while (rows.step()) {
            Link link{std::string(rows.text(0)), std::string(rows.text(1)), std::string(rows.text(2))};
            std::string key = foldText(link.name);
            links.emplace(std::move(key), std::move(link));
        }
    }
    tables_ = std::move(tables);
    links_ = std::move(links);
    schemaVersion_ = found;
    ++generation_;
}

jet::Table AttachedFile::readTable(const std::string& name, bool isView) const {
    jet::Table table;
    table.schema = schema_;
    table.name = name;
    table.isView = isView;
    try {
        table.columns = readColumns(name);
    } catch (const DatabaseError&) {
        if (!isView)
            throw;
        // One over a table that has gone: it can still be dropped, and reading it says what is missing.
    }
    return table;
}

std::vector<Field> AttachedFile::readColumns(const std::string& name) const {
    std::vector<Field> fields;
    sqlite::Statement columns(*connection_, "PRAGMA " + schema_ + ".table_xinfo(" + quoteIdentifier(name) + ")");
    while (columns.step()) {
        // A column of a type that is none of ours (a file made by other means, an expression of a view) counts as a
        // memo, numbers in it as they are.
        Field memo;
        memo.type = FieldType::Memo;
        Field field = fieldOfDeclaredType(columns.text(2)).value_or(memo);
        field.name = columns.text(1);
        field.required = columns.integer(3) != 0;
        const bool givenByType = field.type == FieldType::Boolean && columns.text(4) == "0";
        if (!columns.isNull(4) && !givenByType)
            field.defaultValue = std::string(columns.text(4));
        fields.push_back(std::move(field));
    }
    return fields;
}

void AttachedFile::hold(const std::shared_ptr<AttachedFile>& other) {
    if (other.get() == this)
        return;
    letGo(other->path());
    held_.push_back(other);
    if (held_.size() > mostHeld)
        held_.erase(held_.begin());
}

void AttachedFile::letGo(std::string_view path) {
    std::erase_if(held_, [&](const auto& held) {
        const auto other = held.lock();
        return !other || other->path() == path;
    });
}

std::vector<std::shared_ptr<AttachedFile>> AttachedFile::held() const {
    std::vector<std::shared_ptr<AttachedFile>> files;
    for (const auto& held : held_) {
        if (auto file = held.lock())
            files.push_back(std::move(file));
    }
    return files;
}

void AttachedFile::addLink(const Link& link) {
    sqlite::Savepoint savepoint(*connection_);
    connection_->execute("CREATE TABLE IF NOT EXISTS " + schema_ +
                         ".MSysLinks(Name TEXT(64) COLLATE JET PRIMARY KEY, SourceTable TEXT(64), Connect MEMO TEXT)");
    sqlite::Statement insert(*connection_, "INSERT INTO " + schema_ + ".MSysLinks VALUES(?, ?, ?)");
    insert.bind(1, link.name);
    insert.bind(2, link.sourceTable);
    insert.bind(3, link.connect);
    insert.step();
    savepoint.release();
    invalidate();
}

void AttachedFile::changeLink(const Link& link) {
    sqlite::Statement change(*connection_,
                             "UPDATE " + schema_ + ".MSysLinks SET SourceTable = ?, Connect = ? WHERE Name = ?");
    change.bind(1, link.sourceTable);
    change.bind(2, link.connect);
    change.bind(3, link.name);
    change.step();
    held_.clear(); // other links open theirs again when they are used
    invalidate();
}

void AttachedFile::removeLink(std::string_view name) {
    sqlite::Statement remove(*connection_, "DELETE FROM " + schema_ + ".MSysLinks WHERE Name = ?");
    remove.bind(1, name);
    remove.step();
    held_.clear(); // other links open theirs again when they are used
    invalidate();
}
