#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <utility>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Access = Workspace::Access;

long faultOf(const std::function<void()>& action) {
    try {
        action();
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

std::string contents(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class Handles : public testing::Test {
protected:
    void make(const std::string& path, const std::string& connect = {}) {
        const auto database = Workspace::create()->createDatabase(path, connect);
        database->execute("CREATE TABLE TblTeleItem ([1141] Text(20), Calls Long)");
        database->execute("INSERT INTO TblTeleItem VALUES ('01708', 3)");
    }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
};

TEST_F(Handles, PathsMayHoldWhatFileNamesHold) {
    const std::string names[] = {"O'Brien & Sons.mdb", "März [2026].mdb", "a;b \"c\".mdb", "100%.mdb", "-x.mdb"};
    for (const std::string& name : names) {
        const std::string path = folder.file(name);
        make(path);
        const auto database = workspace->openDatabase(path);
        EXPECT_EQ(database->openRecordset("TblTeleItem")->RecordCount(), 1) << name;
        EXPECT_EQ(database->name(), path);
    }
    std::filesystem::create_directory(folder.file("sub"));
    const auto first = workspace->openDatabase(folder.file(names[0]));
    const auto same = workspace->openDatabase(folder.file("sub") + "/../" + names[0]);
    EXPECT_EQ(first->schema(), same->schema());
    EXPECT_EQ(workspace->openDatabase(folder.file("sub\\..\\") + names[0])->schema(), first->schema());
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.file("sub"));
    EXPECT_EQ(workspace->openDatabase("../" + names[0])->schema(), first->schema());
    workspace->createDatabase("made here.mdb");
    std::filesystem::current_path(before);
    EXPECT_TRUE(std::filesystem::exists(folder.file("sub") + "/made here.mdb"));
}

TEST_F(Handles, ReadOnlyRefusesEveryChangeAndLeavesTheFileAsItWas) {
    const std::string path = folder.file("a.mdb");
    make(path, "MS Access;PWD=p");
    const std::string before = contents(path);
    {
        const auto database = workspace->openDatabase(path, Access::ReadOnly, "MS Access;PWD=p");
        for (const char* change :
             {"UPDATE TblTeleItem SET Calls = 1", "DELETE * FROM TblTeleItem",
              "INSERT INTO TblTeleItem VALUES ('x', 1)", "SELECT * INTO Copy FROM TblTeleItem",
              "DROP TABLE TblTeleItem", "CREATE TABLE T (N Long)", "ALTER TABLE TblTeleItem ADD COLUMN X Long",
              "CREATE INDEX I ON TblTeleItem (Calls)"})
            EXPECT_EQ(faultOf([&] { database->execute(change); }), 3027) << change;
        const auto rows = database->openRecordset("TblTeleItem");
        EXPECT_EQ(faultOf([&] { rows->Edit(); }), 3027);
        EXPECT_EQ(faultOf([&] { rows->AddNew(); }), 3027);
        EXPECT_EQ(faultOf([&] { rows->Delete(); }), 3027);
        TableDefs& tables = database->tableDefs();
        TableDef copy = *tables.find("TblTeleItem");
        copy.name = "Copy";
        Field more;
        more.name = "More";
        for (const std::function<void()>& change : {std::function<void()>([&] { tables.append(copy); }),
                                                    {[&] { tables.remove("TblTeleItem"); }},
                                                    {[&] { tables.refreshLink(copy); }},
                                                    {[&] { tables.appendField("TblTeleItem", more); }},
                                                    {[&] { tables.removeField("TblTeleItem", "Calls"); }}})
            EXPECT_EQ(faultOf(change), 3027);
    }
    EXPECT_EQ(contents(path), before);
}

TEST_F(Handles, MayBeDroppedInAnyOrder) {
    const std::string path = folder.file("a.mdb");
    make(path);
    auto first = workspace->openDatabase(path);
    const auto second = workspace->openDatabase(path);
    const auto rows = first->openRecordset("TblTeleItem");
    workspace.reset();
    first.reset();
    second->execute("UPDATE TblTeleItem SET Calls = 4");
    rows->Requery();
    EXPECT_EQ(rows->value("Calls"), Value(4));
    second->close();
    EXPECT_EQ(faultOf([&] { second->close(); }), 3420);
    EXPECT_FALSE(second->isOpen());
    rows->Close();
}

TEST_F(Handles, FilesWithLinksToEachOtherAreLetGoTogether) {
    const std::string paths[] = {folder.file("a.mdb"), folder.file("b.mdb")};
    for (const std::string& path : paths)
        make(path);
    auto a = workspace->openDatabase(paths[0]);
    {
        const auto b = workspace->openDatabase(paths[1]);
        for (const auto& [from, to] : {std::pair{a, paths[1]}, std::pair{b, paths[0]}}) {
            TableDef link = from->createTableDef("Other_Link");
            link.connect = "MS Access;DATABASE=" + to;
            link.sourceTableName = "TblTeleItem";
            from->tableDefs().append(link);
            EXPECT_EQ(from->openRecordset("Other_Link")->RecordCount(), 1);
        }
    }
    EXPECT_EQ(a->openRecordset("Other_Link")->RecordCount(), 1); // still held through the link
    a->close();
    for (const std::string& path : paths)
        EXPECT_NO_THROW(workspace->openDatabase(path, Access::Exclusive)) << path;
}

/// The library attaches at most 125 files to a connection; a day's work opens more.
TEST_F(Handles, HundredsOfFilesOneAfterTheOtherLeaveNothingOpen) {
    const std::string system = folder.file("ukmap.mdb");
    make(system);
    make(folder.file("0.mdb"));
    const auto map = workspace->openDatabase(system);
    for (int i = 0; i < 130; ++i) {
        const std::string path = folder.file(std::to_string(i) + ".mdb");
        if (i > 0)
            std::filesystem::copy_file(folder.file("0.mdb"), path);
        TableDef link = map->createTableDef("Calls_Link");
        link.connect = "MS Access;DATABASE=" + path;
        link.sourceTableName = "TblTeleItem";
        map->tableDefs().append(link);
        const auto project = workspace->openDatabase(path);
        ASSERT_EQ(project->openRecordset("SELECT * FROM [" + system + "].[TblTeleItem]")->RecordCount(), 1);
        ASSERT_EQ(map->openRecordset("Calls_Link")->RecordCount(), 1);
        map->tableDefs().remove("Calls_Link");
    }
    std::size_t open = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        const auto target = std::filesystem::read_symlink(entry.path(), gone);
        open += !gone && target.string().starts_with(folder.path().string());
    }
    EXPECT_LE(open, 4u);
}

TEST_F(Handles, AFileThatAnotherProcessWritesIsInUseAndKeepsItsRows) {
    const std::string path = folder.file("a.mdb");
    make(path);
    int ready[2];
    int done[2];
    ASSERT_EQ(pipe(ready), 0);
    ASSERT_EQ(pipe(done), 0);
    const pid_t other = fork();
    if (other == 0) {
        char byte = 'x';
        const auto mine = Workspace::create();
        const auto database = mine->openDatabase(path);
        mine->beginTrans();
        database->execute("UPDATE TblTeleItem SET Calls = 10");
        (void)!::write(ready[1], &byte, 1);
        (void)!read(done[0], &byte, 1);
        mine->commitTrans();
        _exit(0);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    const auto database = workspace->openDatabase(path);
    EXPECT_EQ(database->openRecordset("TblTeleItem")->value("Calls"), Value(3));
    EXPECT_EQ(faultOf([&] { database->execute("UPDATE TblTeleItem SET Calls = 20"); }), 3356);
    ASSERT_EQ(::write(done[1], &byte, 1), 1);
    waitpid(other, nullptr, 0);
    EXPECT_EQ(database->openRecordset("TblTeleItem")->value("Calls"), Value(10));
    database->execute("UPDATE TblTeleItem SET Calls = 20");
}

} // namespace
