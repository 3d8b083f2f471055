#pragma once

#include "data/jet/Catalog.h"
#include "data/jet/Program.h"
#include "data/types/Value.h"

#include <map>
#include <string>
#include <vector>

struct sqlite3;

/// A database in memory on which translated statements run without the engine: the connection, a catalogue read from
/// it, one more file attached under the path `C:\Other.mdb`, and links.
class JetFixture : public jet::Catalog {
public:
    JetFixture();
    ~JetFixture() override;
    JetFixture(const JetFixture&) = delete;
    JetFixture& operator=(const JetFixture&) = delete;

    struct Result {
        std::vector<jet::ResultColumn> columns;
        std::vector<std::vector<Value>> rows;
        long affected = 0;
        jet::Program program;
    };
    /// Translates and runs one statement. Throws DatabaseError, also for errors of the storage library.
    Result run(const std::string& statement);
    /// Runs every line of a file as one statement; empty lines and lines that begin with -- are passed over.
    void runFile(const std::string& path);
    /// Plain statements of the storage library.
    void executePlain(const std::string& sql);
    std::vector<std::vector<Value>> queryPlain(const std::string& sql, const std::vector<jet::ResultColumn>& columns);
    /// A link of the catalogue; an empty target stands for a file that has moved.
    void addLink(const std::string& name, const std::string& target);

    std::string defaultSchema() const override { return "main"; }
    std::optional<jet::Table> findTable(std::string_view name) override;
    std::optional<jet::Table> findTableIn(std::string_view path, std::string_view name) override;
    std::string schemaOf(std::string_view path) override;
    bool isLink(std::string_view name) override;
    std::vector<jet::Index> indexesOf(const jet::Table& table) override;

private:
    std::optional<jet::Table> find(const std::string& schema, std::string_view name);

    sqlite3* connection_ = nullptr;
    std::map<std::string, std::string> links_; ///< folded name → table
};
