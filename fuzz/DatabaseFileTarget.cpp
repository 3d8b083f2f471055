// The bytes of a database file. Everything in it is read and a few statements run; only errors of the engine come out.
//
// The first byte of the input says what follows: 'F' the whole file; 'P' and 'E' a list of edits to a sound plain or
// encrypted file, six bytes each: what to do, where (three bytes), how far, with which byte.

#include "data/engine/Database.h"
#include "data/sqlite/Connection.h"
#include "data/types/DatabaseError.h"
#include "fuzz/Target.h"
#include "tests/support/TemporaryFolder.h"

#include <sqlite3.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

namespace {

const std::string password = "MS Access;PWD=secret";

constexpr int mostLooks = 2000; ///< of a thousand steps each; damaged trees may lead in circles

std::string contents(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Sound files, plain and encrypted: two tables with columns of every kind, an index, and a link.
class SoundFiles {
public:
    SoundFiles() {
        plain = make("plain.mdb", {});
        encrypted = make("encrypted.mdb", password);
    }

    TemporaryFolder folder;
    std::string plain, encrypted;

private:
    std::string make(const std::string& name, const std::string& connect) {
        const std::string path = folder.file(name);
        const auto workspace = Workspace::create();
        const auto database = workspace->createDatabase(path, connect);
        WorkspaceTransaction transaction(*workspace);
        database->execute("CREATE TABLE Areas (Name Text(20), Calls Long, Cost Currency, Started DateTime, "
                          "Active YesNo, Note Memo, Shape LongBinary, Share Double)");
        for (int i = 0; i < 60; ++i) {
            const std::string note(static_cast<std::size_t>(i) * (i == 59 ? 100 : 1), 'n');
            database->execute("INSERT INTO Areas (Name, Calls, Cost, Started, Active, Note, Share) VALUES ('Area " +
                              std::to_string(i * 37 % 60) + "', " + std::to_string(i) +
                              ", 1.25, #01/31/2025 08:30:00#, True, '" + note + "', 0.1)");
        }
        database->execute("CREATE UNIQUE INDEX ByName ON Areas (Name)");
        database->execute("CREATE TABLE Codes ([1141] Text(20), Area Text(20))");
        database->execute("INSERT INTO Codes SELECT Left(Name, 6) AS [1141], Name AS Area FROM Areas");
        transaction.commit();
        TableDef link;
        link.name = "Other";
        link.connect = "MS Access;DATABASE=" + path + ";PWD=secret";
        link.sourceTableName = "Areas";
        database->tableDefs().append(link);
        database->close();
        return contents(path);
    }
};

std::string edited(std::string file, std::string_view edits) {
    for (; edits.size() >= 6 && !file.empty(); edits.remove_prefix(6)) {
        const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(edits[i]); };
        const std::size_t at = ((std::size_t{byte(1)} << 16) | (std::size_t{byte(2)} << 8) | byte(3)) % file.size();
        const std::size_t length = std::min<std::size_t>(std::size_t{byte(4)} + 1, file.size() - at);
        switch (byte(0) % 6) {
        case 0:
            file[at] = edits[5];
            break;
        case 1:
            file.replace(at, length, length, edits[5]);
            break;
        case 2:
            file[at] = static_cast<char>(file[at] ^ (1 << (byte(5) % 8)));
            break;
        case 3: // the bytes of another place
            file.replace(at, length, file, (at + 4096 * (1 + byte(5))) % file.size(), length);
            break;
        case 4:
            file[at % std::min<std::size_t>(file.size(), 200)] = edits[5];
            break;
        default:
            file.resize(byte(5) < 128 ? at : at / 4096 * 4096);
        }
    }
    return file;
}

void readAll(Database& database) {
    TableDefs& tables = database.tableDefs();
    std::vector<std::string> names;
    for (std::size_t i = 0; i < tables.count(); ++i)
        names.push_back(tables.at(i).name);
    for (const std::string& name : names) {
        try {
            const auto rows = database.openRecordset("SELECT * FROM [" + name + "]");
            for (; !rows->EOF_(); rows->MoveNext()) {
                for (int column = 0; column < rows->fieldCount(); ++column)
                    rows->value(column).asText();
            }
        } catch (const DatabaseError&) { // the other tables may still be sound
        }
    }
}

void useIt(Database& database) {
    for (const char* statement :
         {"SELECT Name, Sum(Cost) AS Total FROM Areas GROUP BY Name ORDER BY Name",
          "SELECT * FROM Areas INNER JOIN Codes ON Areas.Name = Codes.Area WHERE Areas.Name Like 'Area 1*'",
          "UPDATE Areas SET Calls = Calls + 1, Name = Name & 'x' WHERE Calls > 10",
          "INSERT INTO Codes VALUES ('x', 'y')", "DELETE FROM Areas WHERE Calls < 30", "SELECT * INTO Copy FROM Areas",
          "ALTER TABLE Areas ALTER COLUMN Calls Double", "DROP TABLE Codes"}) {
        try {
            database.run(statement);
        } catch (const DatabaseError&) { // the next one may still run
        }
    }
}

bool opens(const std::string& path, const std::string& connect) {
    try {
        const auto database = Workspace::create()->openDatabase(path, Workspace::Access::Shared, connect);
        int looks = 0;
        sqlite3_progress_handler(
            database->connection().handle(), 1000,
            [](void* count) { return static_cast<int>(++*static_cast<int*>(count) > mostLooks); }, &looks);
        readAll(*database);
        useIt(*database);
        sqlite3_progress_handler(database->connection().handle(), 0, nullptr, nullptr);
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const SoundFiles sound;
    if (size == 0)
        return -1;
    const std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
    const bool whole = data[0] == 'F';
    const std::string bytes = whole            ? std::string(rest)
                              : data[0] == 'P' ? edited(sound.plain, rest)
                                               : edited(sound.encrypted, rest);
    const std::string path = sound.folder.file("input.mdb");
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    const bool opened = opens(path, password);
    std::filesystem::remove(path + "-journal");
    return opened ? 0 : -1;
}

std::vector<std::string> fuzzSeeds() {
    std::vector<std::string> seeds{"F" + SoundFiles().plain};
    std::mt19937 random(4711);
    for (const char kind : {'P', 'P', 'P', 'E'}) {
        for (int i = 0; i < 10; ++i) {
            std::string edits(1, kind);
            for (int byte = 0; byte < 6 * (1 + i % 4); ++byte)
                edits += static_cast<char>(random() & 0xFF);
            seeds.push_back(std::move(edits));
        }
    }
    return seeds;
}
std::vector<std::string> fuzzTokens() {
    return {};
}
