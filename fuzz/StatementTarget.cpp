// A statement is translated, prepared and run on small tables, and undone. It gives rows, changes or one error.

#include "data/engine/Database.h"
#include "data/sqlite/Connection.h"
#include "data/types/DatabaseError.h"
#include "fuzz/StatementSeeds.h"
#include "fuzz/Target.h"
#include "tests/support/TemporaryFolder.h"

#include <sqlite3.h>

#include <stdexcept>

namespace {

constexpr int stepsBetweenLooks = 1000;
constexpr int mostLooks = 300; ///< then the statement is stopped
constexpr int mostRows = 500;

class Fixture {
public:
    Fixture() {
        for (const std::string& statement : fixtureStatements())
            database->execute(statement);
        workspace->createDatabase(folder.file("other.mdb"))->execute("CREATE TABLE Remote (Name Text(50), N Long)");
        TableDef link;
        link.name = "Areas_Link";
        link.connect = "MS Access;DATABASE=" + folder.file("other.mdb");
        link.sourceTableName = "Remote";
        database->tableDefs().append(link);
        sqlite3_progress_handler(
            database->connection().handle(), stepsBetweenLooks,
            [](void* self) { return static_cast<int>(++static_cast<Fixture*>(self)->looks > mostLooks); }, this);
    }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database = workspace->createDatabase(folder.file("fixture.mdb"));
    int looks = 0;
};

/// What the translator lets through the library must take, but for its limits.
void refuseLibraryErrors(const DatabaseError& error, const std::string& emitted) {
    if (error.number() != 3000 || error.position())
        return;
    const std::string words = error.description();
    for (const char* limit : {"interrupted", "too many", "at most", "too large", "too deep", "depth", "too big"}) {
        if (words.find(limit) != std::string::npos)
            return;
    }
    throw std::logic_error("the storage library refused what was emitted: " + words + "\n" + emitted);
}

void checkFault(const DatabaseError& error, std::string_view statement) {
    if (error.description().empty())
        throw std::logic_error("an error without words");
    if (error.position() && *error.position() > statement.size())
        throw std::logic_error("an error behind the end of the statement");
}

void runQuery(Database& database, const jet::Program& program) {
    sqlite::Statement rows(database.connection(), program.query);
    for (int row = 0; row < mostRows && rows.step(); ++row) {
        for (int column = 0; column < rows.columnCount(); ++column)
            rows.text(column);
    }
    if (program.updatable)
        sqlite::Statement numbered(database.connection(), program.rowidQuery);
}

bool run(Database& database, std::string_view statement) {
    jet::Program program;
    try {
        program = database.translate(statement);
    } catch (const DatabaseError& error) {
        checkFault(error, statement);
        return false;
    }
    if (program.isQuery ? program.query.empty() : program.steps.empty())
        throw std::logic_error("a program that does nothing");
    try {
        if (program.isQuery)
            runQuery(database, program);
        else
            database.execute(statement);
    } catch (const DatabaseError& error) {
        refuseLibraryErrors(error, program.isQuery ? program.query : program.steps.back().sql);
        checkFault(error, statement);
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Fixture fixture;
    fixture.looks = 0;
    const WorkspaceTransaction undone(*fixture.workspace);
    return run(*fixture.database, {reinterpret_cast<const char*>(data), size}) ? 0 : -1;
}

std::vector<std::string> fuzzSeeds() {
    return statementSeeds();
}
std::vector<std::string> fuzzTokens() {
    return dialectTokens();
}
