#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Access = Workspace::Access;

const std::string password = "MS Access;PWD=secret";

std::string contents(const std::string& path) {
    if (!std::filesystem::is_regular_file(path))
        return {};
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void write(const std::string& path, const std::string& bytes) {
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream << bytes;
}

/// Number of the error with which a file refuses to open; 0 where it opens. The text must name the file.
long openingFault(const std::string& path, const std::string& connect = {}) {
    try {
        Workspace::create()->openDatabase(path, Access::Shared, connect);
        return 0;
    } catch (const DatabaseError& error) {
        EXPECT_NE(error.description().find(path), std::string::npos) << error.description();
        return error.number();
    }
}

class FileFaults : public testing::Test {
protected:
    void SetUp() override {
        for (const auto& [path, connect] : {std::pair{plain, std::string()}, std::pair{encrypted, password}}) {
            const auto workspace = Workspace::create();
            const auto database = workspace->createDatabase(path, connect);
            WorkspaceTransaction transaction(*workspace);
            database->execute("CREATE TABLE Areas (Name Text(50), Calls Long)");
            for (int i = 0; i < 2000; ++i)
                database->execute("INSERT INTO Areas VALUES ('An area with a long name', " + std::to_string(i) + ")");
            transaction.commit();
        }
    }

    TemporaryFolder folder;
    std::string plain = folder.file("plain.mdb");
    std::string encrypted = folder.file("encrypted.mdb");
};

TEST_F(FileFaults, EachFaultHasItsOwnNumberAndLeavesTheFileAsItWas) {
    struct Case {
        const char* name;
        long number;
        std::string connect;
        std::function<std::string()> make; ///< path of the file
    };
    const auto changed = [&](const std::string& from, const std::function<void(std::string&)>& change) {
        std::string bytes = contents(from);
        change(bytes);
        const std::string path = folder.file("changed.mdb");
        write(path, bytes);
        return path;
    };
    const Case cases[] = {
        {"missing", 3024, "", [&] { return folder.file("nowhere.mdb"); }},
        {"a folder", 3343, "", [&] { return folder.path().string(); }},
        {"empty", 3343, "", [&] { return changed(plain, [](std::string& b) { b.clear(); }); }},
        {"a picture", 3343, password, [&] { return changed(plain, [](std::string& b) { b.assign(5000, '\x89'); }); }},
        {"text", 3343, "", [&] { return changed(plain, [](std::string& b) { b = "Name,Calls\nLondon,3\n"; }); }},
        {"a database of another program", 3343, "",
         [&] { return changed(plain, [](std::string& b) { b[68] = 'Z'; }); }},
        {"wrong password", 3031, "MS Access;PWD=Secret", [&] { return encrypted; }},
        {"no password", 3031, "MS Access", [&] { return encrypted; }},
        {"cut in a page", 3049, "", [&] { return changed(plain, [](std::string& b) { b.resize(b.size() - 100); }); }},
        {"cut after a page", 3049, "", [&] { return changed(plain, [](std::string& b) { b.resize(8192); }); }},
        {"encrypted, cut in a page", 3049, password,
         [&] { return changed(encrypted, [](std::string& b) { b.resize(5000); }); }},
        {"encrypted, cut after a page", 3049, password,
         [&] { return changed(encrypted, [](std::string& b) { b.resize(8192); }); }},
        {"cut in the header", 3049, "", [&] { return changed(plain, [](std::string& b) { b.resize(60); }); }},
        {"scribbled schema", 3049, "",
         [&] { return changed(plain, [](std::string& b) { b.replace(100, 3000, 3000, '\x5A'); }); }},
    };
    for (const Case& fault : cases) {
        SCOPED_TRACE(fault.name);
        const std::string path = fault.make();
        const std::string before = contents(path);
        EXPECT_EQ(openingFault(path, fault.connect), fault.number);
        EXPECT_EQ(contents(path), before);
    }
    EXPECT_FALSE(std::filesystem::exists(folder.file("nowhere.mdb")));
}

TEST_F(FileFaults, AFileWithoutPasswordOpensWithAnyConnectString) {
    EXPECT_EQ(openingFault(plain, "MS Access;PWD=anything"), 0);
    EXPECT_EQ(openingFault(encrypted, "ms access;pwd=secret;"), 0);
}

TEST_F(FileFaults, AnEncryptedFileShowsNothingOfItsText) {
    EXPECT_NE(contents(plain).find("An area with a long name"), std::string::npos);
    EXPECT_EQ(contents(encrypted).find("An area with a long name"), std::string::npos);
}

TEST_F(FileFaults, TheSecondHandleOfAWorkspaceStillNeedsThePassword) {
    const auto workspace = Workspace::create();
    const auto first = workspace->openDatabase(encrypted, Access::Shared, password);
    EXPECT_THROW(workspace->openDatabase(encrypted, Access::Shared, "MS Access;PWD=wrong"), DatabaseError);
    EXPECT_NO_THROW(workspace->openDatabase(encrypted, Access::Shared, password));
}

TEST_F(FileFaults, DamageInsideIsAnErrorOfTheStatementThatMeetsIt) {
    for (const auto& [path, connect] : {std::pair{plain, std::string()}, std::pair{encrypted, password}}) {
        std::string bytes = contents(path);
        bytes.replace(4096 * 4, 4096 * 6, 4096 * 6, '\x5A');
        write(path, bytes);
        const auto database = Workspace::create()->openDatabase(path, Access::Shared, connect);
        try {
            database->openRecordset("SELECT * FROM Areas");
            ADD_FAILURE() << path << " was read";
        } catch (const DatabaseError& error) {
            EXPECT_EQ(error.number(), 3049) << error.description();
        }
    }
}

TEST_F(FileFaults, AFileHeldByAnotherProcessIsInUse) {
    int ready[2];
    int done[2];
    ASSERT_EQ(pipe(ready), 0);
    ASSERT_EQ(pipe(done), 0);
    const pid_t other = fork();
    if (other == 0) {
        char byte = 'x';
        {
            const auto database = Workspace::create()->openDatabase(encrypted, Access::Exclusive, password);
            (void)!::write(ready[1], &byte, 1);
            (void)!read(done[0], &byte, 1);
        }
        _exit(0);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    EXPECT_EQ(openingFault(encrypted, password), 3356);
    ASSERT_EQ(::write(done[1], &byte, 1), 1);
    waitpid(other, nullptr, 0);
    EXPECT_EQ(openingFault(encrypted, password), 0);
}

} // namespace
