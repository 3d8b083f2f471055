#include "tests/data/engine/ReliabilityScene.h"

#include "core/cPathControl.h"
#include "data/sqlite/Connection.h"
#include "data/types/DatabaseError.h"

#include <cstdlib>
#include <filesystem>

const std::vector<Change>& changes() {
    static const auto statement = [](const char* text) {
        return [text](Database& database) { database.execute(text); };
    };
    static const std::vector<Change> list{
        {"update", statement("UPDATE Calls SET Cost = Cost * 2, Note = Note & ' and more' WHERE Legs < 7")},
        {"update over a join", statement("UPDATE Calls INNER JOIN Areas ON Calls.Code = Areas.Code "
                                         "SET Calls.Note = Areas.Name & Calls.Note, Areas.Total = Areas.Total + 1")},
        {"select into", statement("SELECT Code, Sum(Cost) AS Total, Note INTO Copy FROM Calls GROUP BY Code, Note")},
        {"delete", statement("DELETE FROM Calls WHERE Legs > 2")},
        {"alter column", statement("ALTER TABLE Calls ALTER COLUMN Legs Text(10)")},
        {"drop table", statement("DROP TABLE Calls")},
        {"create index", statement("CREATE INDEX ByNote ON Calls (Note, Cost)")},
        {"insert from select", statement("INSERT INTO Calls SELECT * FROM Calls WHERE Legs < 5")},
        {"transaction",
         [](Database& database) {
             WorkspaceTransaction transaction(*database.workspace());
             database.execute("SELECT Code, Count(*) AS N INTO Counts FROM Calls GROUP BY Code");
             database.execute("UPDATE Calls SET Note = 'counted' WHERE Legs = 3");
             database.execute("DELETE FROM Calls WHERE Legs = 4");
             database.execute("INSERT INTO Areas SELECT Code, 'new' AS Name, 1 AS Total FROM Counts");
             transaction.commit();
         }},
    };
    return list;
}

const std::vector<FileKind>& fileKinds() {
    static const std::vector<FileKind> kinds{{"plain", {}}, {"encrypted", "MS Access;PWD=secret"}};
    return kinds;
}

void makeCallsFile(const std::string& path, const std::string& connect, int calls) {
    const auto workspace = Workspace::create();
    const auto database = workspace->createDatabase(path, connect);
    WorkspaceTransaction transaction(*workspace);
    database->execute("CREATE TABLE Calls (Code Text(10), Legs Long, Cost Currency, Note Memo)");
    database->execute("CREATE TABLE Areas (Code Text(10), Name Text(50), Total Long)");
    for (int i = 0; i < 40; ++i) {
        const std::string number = std::to_string(i);
        database->execute("INSERT INTO Areas VALUES ('0" + number + "', 'Area " + number + "', 0)");
    }
    for (int i = 0; i < calls; ++i)
        database->execute("INSERT INTO Calls VALUES ('0" + std::to_string(i * 7 % 40) + "', " + std::to_string(i % 9) +
                          ", " + std::to_string(i % 100) + ".25, 'a note of some length, number " + std::to_string(i) +
                          "')");
    database->execute("CREATE INDEX ByCode ON Calls (Code)");
    transaction.commit();
    TableDef link;
    link.name = "Linked";
    link.connect = "MS Access;DATABASE=" + path + ";PWD=secret";
    link.sourceTableName = "Areas";
    database->tableDefs().append(link);
}

std::shared_ptr<Database> openAlone(const std::string& path, const std::string& connect, int cachePages) {
    auto database = Workspace::create()->openDatabase(path, Workspace::Access::Shared, connect);
    if (cachePages > 0)
        database->connection().execute("PRAGMA " + database->schema() + ".cache_size = " + std::to_string(cachePages));
    return database;
}

bool allMomentsWanted() {
    return std::getenv("CALLSCOPE_ALL_MOMENTS") != nullptr;
}

namespace {

std::string sumOf(Database& database, const std::string& table) {
    const auto rows = database.openRecordset("SELECT * FROM [" + table + "]");
    std::size_t sum = 0;
    for (; !rows->EOF_(); rows->MoveNext()) {
        std::string row;
        for (int column = 0; column < rows->fieldCount(); ++column)
            row += rows->value(column).asText() + "|";
        sum = sum * 31 + std::hash<std::string>()(row);
    }
    return std::to_string(rows->RecordCount()) + " rows, " + std::to_string(sum);
}

} // namespace

std::string stateOf(Database& database) {
    std::string state;
    sqlite::Statement check(database.connection(), "PRAGMA " + database.schema() + ".integrity_check");
    while (check.step())
        state += check.text(0) == "ok" ? "" : "INTEGRITY: " + std::string(check.text(0)) + "\n";
    sqlite::Statement schema(database.connection(),
                             "SELECT name, sql FROM " + database.schema() + ".sqlite_schema ORDER BY name");
    while (schema.step())
        state += std::string(schema.text(0)) + ": " + std::string(schema.text(1)) + "\n";
    TableDefs& tables = database.tableDefs();
    for (std::size_t i = 0; i < tables.count(); ++i) {
        const std::string name = tables.at(i).name;
        state += name + ": " + (tables.at(i).isAttached() ? "link" : sumOf(database, name)) + "\n";
    }
    return state;
}

std::string stateOf(const std::string& path, const std::string& connect) {
    return stateOf(*openAlone(path, connect));
}

std::string faultAfterAccident(const std::string& path, const std::string& connect, const std::string& before,
                               const std::string& after) {
    try {
        const auto database = openAlone(path, connect);
        const std::string state = stateOf(*database);
        if (state != before && state != after)
            return "the file is neither as before nor as after:\n" + state;
        // A journal that was never complete may lie there still; the file must need none.
        const std::string copy = path + ".copy";
        std::filesystem::copy_file(toPath(path), toPath(copy), std::filesystem::copy_options::overwrite_existing);
        if (stateOf(copy, connect) != state)
            return "the file is not whole without its journal";
        database->execute("INSERT INTO Areas VALUES ('x', 'y', 1)");
        database->execute("DELETE FROM Areas WHERE Code = 'x'");
        if (stateOf(*database) != state)
            return "the file does not take another change";
        return std::filesystem::exists(toPath(path + "-journal")) ? "a journal stays behind" : "";
    } catch (const RuntimeError& error) {
        return error.description();
    }
}
