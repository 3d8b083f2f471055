#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <set>

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

/// All rows of the areas, as one text. Throws where they cannot be read.
std::string rowsOf(const std::string& path, const std::string& connect) {
    const auto database = Workspace::create()->openDatabase(path, Access::Shared, connect);
    const auto rows = database->openRecordset("SELECT * FROM Areas");
    std::string text;
    for (; !rows->EOF_(); rows->MoveNext())
        text += rows->value(0).asText() + "|" + rows->value(1).asText() + "\n";
    return text;
}

/// The bytes with one or a few places flipped, zeroed or cut off. Every third damage lies in the first page.
std::string damaged(std::string bytes, int number, std::mt19937& random) {
    const std::size_t within = number % 3 == 0 ? 4096 : bytes.size();
    const std::size_t at = random() % within;
    switch (number % 4) {
    case 0:
        bytes[at] = static_cast<char>(bytes[at] ^ (1 << (random() % 8)));
        break;
    case 1: {
        const std::size_t length = std::min<std::size_t>(1 + random() % 600, bytes.size() - at);
        bytes.replace(at, length, length, '\0');
        break;
    }
    case 2:
        for (int i = 0; i < 5; ++i)
            bytes[random() % within] = static_cast<char>(random());
        break;
    default:
        bytes.resize(random() % 2 == 0 ? at : at / 4096 * 4096);
    }
    return bytes;
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

/// Flips, zeroes and cuts at random places. What comes is an error of damage or rows; of an encrypted file only right
/// rows, as every page carries its check.
TEST_F(FileFaults, RandomDamageIsNoticedOrHarmless) {
    std::mt19937 random(300);
    for (const auto& [sound, connect] : {std::pair{plain, std::string()}, std::pair{encrypted, password}}) {
        const std::string bytes = contents(sound);
        const std::string rows = rowsOf(sound, connect);
        const std::string path = folder.file("damaged.mdb");
        std::map<long, int> seen;
        for (int i = 0; i < 300; ++i) {
            const std::string changed = damaged(bytes, i, random);
            write(path, changed);
            const std::string words = "damage " + std::to_string(i) + " to " + sound;
            try {
                const std::string found = rowsOf(path, connect);
                EXPECT_TRUE(connect.empty() || found == rows) << words << " gives other rows";
                ++seen[0];
            } catch (const DatabaseError& error) {
                ++seen[error.number()];
                // The first page of an encrypted file tells a wrong password from damage by its open bytes alone.
                const bool inFirstPage = !std::equal(bytes.begin(), bytes.begin() + 4096, changed.begin());
                const std::set<long> allowed = inFirstPage ? std::set<long>{3049, 3343, 3031} : std::set<long>{3049};
                EXPECT_TRUE(allowed.contains(error.number())) << words << ": " << error.description();
                EXPECT_FALSE(connect.empty() && error.number() == 3031) << words;
                EXPECT_NE(error.description().find(path), std::string::npos) << error.description();
            }
            EXPECT_EQ(contents(path), changed) << words << ": reading changed the file";
        }
        EXPECT_GT(seen[3049], 100) << sound;
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
