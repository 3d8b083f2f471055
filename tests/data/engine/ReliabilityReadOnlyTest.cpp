#include "data/types/DatabaseError.h"
#include "tests/data/engine/FaultyStorage.h"
#include "tests/data/engine/ReliabilityScene.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

std::string contents(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Runs in a process of a user who is not root, for whom the rights of files count. Empty where all is well, else what
/// is wrong.
std::string asPlainUser(const std::function<std::string()>& look) {
    int report[2];
    if (pipe(report) != 0)
        return "no pipe";
    const pid_t child = fork();
    if (child == 0) {
        std::string words;
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0))
            words = "root cannot become another user";
        try {
            words += look();
        } catch (const std::exception& error) {
            words += error.what();
        }
        (void)!::write(report[1], words.data(), words.size());
        _exit(0);
    }
    ::close(report[1]);
    std::string words;
    char buffer[4096];
    for (ssize_t got = 0; (got = ::read(report[0], buffer, sizeof buffer)) > 0;)
        words.append(buffer, static_cast<std::size_t>(got));
    ::close(report[0]);
    waitpid(child, nullptr, 0);
    return words;
}

/// What is wrong where an error of this number, naming the file, should come.
std::string expectFault(long number, const std::string& path, const std::function<void()>& change) {
    try {
        change();
        return "no error came; ";
    } catch (const DatabaseError& error) {
        const bool right = error.number() == number && error.description().find(path) != std::string::npos;
        return right ? "" : std::to_string(error.number()) + " " + error.description() + "; ";
    }
}

class ReadOnly : public testing::TestWithParam<FileKind> {
protected:
    void SetUp() override {
        makeCallsFile(path, GetParam().connect, 50);
        fs::permissions(folder.path(), fs::perms(0755));
        fs::permissions(path, fs::perms(0666));
    }
    void TearDown() override { fs::permissions(folder.path(), fs::perms::owner_all); }

    /// Reading works, no change does, and the file stays as it is.
    std::string readsOnly() const {
        const std::string bytes = contents(path);
        std::string wrong;
        {
            const auto database = openAlone(path, GetParam().connect);
            if (database->openRecordset("SELECT * FROM Calls")->RecordCount() != 50)
                wrong += "rows are missing; ";
            for (const Change& change : changes()) {
                const std::string fault = expectFault(3027, path, [&] { change.run(*database); });
                wrong += fault.empty() ? "" : std::string(change.name) + ": " + fault;
            }
            const auto rows = database->openRecordset("SELECT * FROM Areas");
            wrong += expectFault(3027, path, [&] {
                rows->Edit();
                rows->set("Total", 7);
                rows->Update();
            });
            wrong += expectFault(3027, path, [&] { rows->Delete(); });
            wrong += expectFault(3027, path, [&] {
                TableDef table = database->createTableDef("New");
                Field field;
                field.name = "N";
                field.type = FieldType::Long;
                table.fields.push_back(field);
                database->tableDefs().append(table);
            });
            wrong += expectFault(3027, path, [&] { database->tableDefs().remove("Areas"); });
        }
        if (contents(path) != bytes)
            wrong += "the file has changed; ";
        return wrong;
    }

    /// The journal of a change that was interrupted, and the file in the midst of it.
    void interruptChange() {
        FaultyStorage& storage = FaultyStorage::install();
        storage.startRecording();
        {
            const auto database = openAlone(path, GetParam().connect, 5);
            changes().front().run(*database);
        }
        for (const DiskImage& image : storage.stopRecording()) {
            const auto journal = image.find("calls.mdb-journal");
            const auto file = image.find("calls.mdb");
            if (journal == image.end() || file == image.end() || file->second == contents(path))
                continue;
            std::ofstream(path, std::ios::binary) << file->second;
            std::ofstream(path + "-journal", std::ios::binary) << journal->second;
            interruptedJournal = journal->second;
        }
        fs::permissions(path + "-journal", fs::perms(0666));
    }

    TemporaryFolder folder;
    std::string path = folder.file("calls.mdb");
    std::string interruptedJournal;
};

std::string kindName(const testing::TestParamInfo<FileKind>& info) {
    return info.param.name;
}

} // namespace

TEST_P(ReadOnly, AFileIsReadAndNotChanged) {
    fs::permissions(path, fs::perms(0444));
    EXPECT_EQ(asPlainUser([&] { return readsOnly(); }), "");
}

TEST_P(ReadOnly, AFileInAReadOnlyFolderIsReadAndNotChanged) {
    fs::permissions(folder.path(), fs::perms(0555));
    EXPECT_EQ(asPlainUser([&] { return readsOnly(); }), "");
}

TEST_P(ReadOnly, AFileOnAReadOnlyFolderIsReadAndNotChanged) {
    fs::permissions(path, fs::perms(0444));
    fs::permissions(folder.path(), fs::perms(0555));
    EXPECT_EQ(asPlainUser([&] { return readsOnly(); }), "");
}

TEST_P(ReadOnly, AnInterruptedChangeThatCannotBeUndoneIsSaid) {
    interruptChange();
    ASSERT_FALSE(interruptedJournal.empty());
    const std::string bytes = contents(path);
    fs::permissions(path, fs::perms(0444));
    fs::permissions(folder.path(), fs::perms(0555));
    EXPECT_EQ(asPlainUser([&] { return expectFault(3027, path, [&] { openAlone(path, GetParam().connect); }); }), "");
    EXPECT_EQ(contents(path), bytes);
    EXPECT_EQ(contents(path + "-journal"), interruptedJournal);
    // With the rights back the file is as before the change.
    fs::permissions(folder.path(), fs::perms(0777));
    fs::permissions(path, fs::perms(0666));
    EXPECT_EQ(asPlainUser([&] {
                  const auto database = openAlone(path, GetParam().connect);
                  const auto changed = database->openRecordset("SELECT * FROM Calls WHERE Note Like '*and more'");
                  return std::string(changed->RecordCount() == 0 ? "" : "half a change stays");
              }),
              "");
}

TEST_P(ReadOnly, AFolderWithoutRightsTakesNoNewFile) {
    fs::permissions(folder.path(), fs::perms(0555));
    const std::string fresh = folder.file("new.mdb");
    EXPECT_EQ(asPlainUser([&] {
                  return expectFault(3051, fresh,
                                     [&] { Workspace::create()->createDatabase(fresh, GetParam().connect); });
              }),
              "");
    EXPECT_FALSE(fs::exists(fresh));
}

INSTANTIATE_TEST_SUITE_P(Files, ReadOnly, testing::ValuesIn(fileKinds()), kindName);
