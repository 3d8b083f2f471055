#pragma once

#include "data/engine/Recordset.h"
#include "data/engine/TableDefs.h"
#include "data/engine/Workspace.h"

#include <memory>
#include <string>
#include <string_view>

namespace sqlite {
class Connection;
}

/// A handle on one database file of a workspace. Handles on the same file are counted; the file is let go with the last
/// of them. After close() every member but isOpen() and workspace() throws DatabaseError 3420 (object invalid or no
/// longer set), those of its table list too; its recordsets live on, as do the other handles. A change waits for at
/// most two seconds for another process to let go of the file and then throws 3356. Used on the workspace's thread.
class Database {
public:
    class Impl;
    explicit Database(std::unique_ptr<Impl> impl); ///< through Workspace::openDatabase
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Full path of the file.
    std::string name() const;
    bool isOpen() const;
    bool isReadOnly() const; ///< the handle or the file itself refuses changes
    void close();

    /// Runs one statement that is no query, whole or not at all. Throws DatabaseError with number, words and position.
    void execute(std::string_view statement);
    /// Rows changed by the last execute().
    long recordsAffected() const;

    /// Opens a statement or a bare table name. All rows are read at once; no statement stays open on the file.
    std::shared_ptr<Recordset> openRecordset(std::string_view statementOrTable);

    /// Runs a statement of either kind: the rows of a query, or null after one that changes data.
    std::shared_ptr<Recordset> run(std::string_view statement);

    /// Makes a view of this file: a table that shows, whenever it is read, the rows of a query over other tables of the
    /// file. It can be dropped as any table, its rows cannot be changed. Throws as execute(), and 3078 for a query over
    /// an attached table or another file.
    void createView(const std::string& name, std::string_view query);

    /// What a statement becomes for the storage library; runs nothing. Throws as execute().
    jet::Program translate(std::string_view statement) const;

    /// The tables and links of the file. Valid as long as the handle.
    TableDefs& tableDefs();
    /// A new table definition, to be filled and appended to tableDefs().
    TableDef createTableDef(std::string name) const;

    std::shared_ptr<Workspace> workspace() const;

    /// For code that reads in bulk beside the dialect: the connection and the name under which the file is attached to
    /// it.
    sqlite::Connection& connection() const;
    std::string schema() const;

    /// One thing that belongs to the open file whoever has a handle on it, such as its rows in another form. Null until
    /// somebody sets it; goes when the file is let go.
    std::shared_ptr<void>& companion() const;

private:
    std::shared_ptr<Recordset> open(jet::Program program);

    std::unique_ptr<Impl> impl_;
};
