#pragma once

#include "data/jet/Catalog.h"
#include "data/sqlite/Connection.h"
#include "data/types/DatabaseError.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// One database file, attached to the connection of its workspace under a schema name of its own. Shared by all handles
/// and links on the file; detached when the last of them goes.
class AttachedFile {
public:
    enum class Create { No, Yes };

    /// Attaches; see Workspace::openDatabase for the errors.
    AttachedFile(std::shared_ptr<sqlite::Connection> connection, std::string path, std::string schema,
                 std::string password, Create create);
    ~AttachedFile();
    AttachedFile(const AttachedFile&) = delete;
    AttachedFile& operator=(const AttachedFile&) = delete;

    const std::string& path() const { return path_; }
    const std::string& schema() const { return schema_; }
    sqlite::Connection& connection() const { return *connection_; }
    /// Whether a password opens the file: any does where it has none.
    bool admits(std::string_view password) const { return password_.empty() || password == password_; }
    /// See Database::companion.
    std::shared_ptr<void>& companion() { return companion_; }

    /// The tables and views as they stand in the file now, by folded name. Read anew when the file's schema has
    /// changed.
    const std::map<std::string, jet::Table>& tables();
    /// A link of this file, as its catalogue holds it.
    struct Link {
        std::string name;
        std::string sourceTable;
        std::string connect;
    };
    const std::map<std::string, Link>& links();
    void addLink(const Link& link);
    /// Gives the link of this name its new source.
    void changeLink(const Link& link);
    void removeLink(std::string_view name);
    /// Counts how often the schema was read anew.
    std::int64_t generation() const { return generation_; }
    /// Forgets what was read of the schema.
    void invalidate() { schemaVersion_ = -1; }

    /// Takes the file for this process alone; throws 3356 where another process has it open for use.
    void lockExclusively();

    /// Keeps a file open that a link or a path in a statement has led to, until this one goes or has led to many
    /// others since: a connection takes a limited number of files.
    void hold(const std::shared_ptr<AttachedFile>& other);
    void letGo(std::string_view path);
    std::vector<std::shared_ptr<AttachedFile>> held() const;

    /// Runs `work`. An error of the disk that comes out of it, such as a full one, gets the paths of this file and of
    /// those that its links have opened.
    template<class Work>
    decltype(auto) named(Work work) const {
        try {
            return work();
        } catch (const DatabaseError& error) {
            throw withPaths(error);
        }
    }

private:
    void attach(Create create);
    DatabaseError withPaths(const DatabaseError& error) const;
    void readSchema();
    jet::Table readTable(const std::string& name, bool isView) const;
    std::vector<Field> readColumns(const std::string& name) const;

    std::shared_ptr<sqlite::Connection> connection_;
    std::string path_;
    std::string schema_;
    std::string password_; ///< empty for a file without one
    std::int64_t schemaVersion_ = -1;
    std::int64_t generation_ = 0;
    std::map<std::string, jet::Table> tables_;
    std::map<std::string, Link> links_;
    std::vector<std::weak_ptr<AttachedFile>> held_; ///< the one used last at the end; the workspace owns them
    std::shared_ptr<void> companion_;
};

/// Tables of the engine itself, which the dialect does not show.
bool isSystemTable(std::string_view name);
