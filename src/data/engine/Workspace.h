#pragma once

#include <memory>
#include <string>
#include <string_view>

class Database;

/// A session with the storage engine: one connection to which each database file is attached once, so that statements
/// reach across files and no two handles of this process lock each other out. Used on one thread.
///
/// Connect strings are those of the engine: "MS Access;PWD=secret"; only PWD and DATABASE are read, keys in any case.
class Workspace : public std::enable_shared_from_this<Workspace> {
public:
    static std::shared_ptr<Workspace> create();
    ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    enum class Access { Shared, Exclusive, ReadOnly };

    /// Opens a file. Throws DatabaseError, each text naming the path: 3024 where there is none, 3031 for a wrong or
    /// missing password, 3356 where another process has it locked, 3343 where it is no database of this kind, 3049
    /// where it is damaged. A file without a password opens with any connect string. Nothing on disk is changed.
    std::shared_ptr<Database> openDatabase(const std::string& path, Access access = Access::Shared,
                                           std::string_view connect = {});

    /// Makes a new, empty file and opens it; encrypted where the connect string carries a password.
    /// Throws 3204 where the file already exists, 3044 where it cannot be made. Inside a transaction the file itself
    /// stays when its tables are undone.
    std::shared_ptr<Database> createDatabase(const std::string& path, std::string_view connect = {});

    /// One transaction over all files of the workspace. They nest. A fault of the disk may undo the whole of it at
    /// once; every change then throws 3034 until rollback(), which also follows a commit that fails.
    void beginTrans();
    void commitTrans();
    void rollback();

    class Impl;
    Impl& impl() { return *impl_; }

private:
    Workspace();
    std::unique_ptr<Impl> impl_;
};

/// The workspace in which the program opens its databases. Made at first use.
std::shared_ptr<Workspace> defaultWorkspace();
/// Drops it (files still held by handles stay open until those go). For tests.
void resetDefaultWorkspace();

/// A transaction that is rolled back unless committed. Does not throw from its destructor.
class WorkspaceTransaction {
public:
    explicit WorkspaceTransaction(Workspace& workspace);
    ~WorkspaceTransaction();
    WorkspaceTransaction(const WorkspaceTransaction&) = delete;
    WorkspaceTransaction& operator=(const WorkspaceTransaction&) = delete;
    void commit();

private:
    Workspace* workspace_;
};

/// Parts of a connect string; empty where the key is missing.
struct ConnectString {
    std::string password; ///< PWD=
    std::string database; ///< DATABASE=
    static ConnectString parse(std::string_view text);
};
