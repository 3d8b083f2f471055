#include "data/types/DatabaseError.h"
#include "tests/data/engine/FaultyStorage.h"
#include "tests/data/engine/ReliabilityScene.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <iostream>
#include <optional>

#ifdef __linux__
#include <sys/mount.h>
#endif

namespace {

constexpr int calls = 150;
constexpr int smallCache = 5;

struct Accident {
    long number = 0; ///< of the error; 0 where none came
    std::string words;
};

/// Runs a change and gives the error that comes out. Anything but an error of the engine goes on up.
Accident accidentOf(const std::function<void()>& change) {
    try {
        change();
        return {};
    } catch (const DatabaseError& error) {
        return {error.number(), error.description()};
    }
}

class StorageFaults : public testing::Test {
protected:
    void TearDown() override { storage.mend(); }

    /// Makes the changes with a fault at every operation in turn until none is met; `set` asks for it. `step` apart
    /// where not all moments are wanted, as opening encrypted files takes its time.
    void disturb(const std::function<void(long)>& set, long number, long step) {
        for (const FileKind& kind : fileKinds()) {
            const std::string base = folder.file(std::string(kind.name) + ".mdb");
            makeCallsFile(base, kind.connect, calls);
            for (const Change& change : changes()) {
                for (const int cachePages : {0, smallCache}) {
                    SCOPED_TRACE(std::string(kind.name) + ", " + change.name + ", cache " + std::to_string(cachePages));
                    const long apart = allMomentsWanted() ? 1 : (kind.connect.empty() ? step : step * 12);
                    disturbOne(kind, change, cachePages, set, number, apart);
                    if (HasFatalFailure())
                        return;
                }
            }
        }
        std::cout << accidents << " accidents\n";
        EXPECT_GT(accidents, 100);
    }

    TemporaryFolder folder;
    FaultyStorage& storage = FaultyStorage::install();
    int accidents = 0;

private:
    void disturbOne(const FileKind& kind, const Change& change, int cachePages, const std::function<void(long)>& set,
                    long number, long step) {
        const std::string base = folder.file(std::string(kind.name) + ".mdb");
        const std::string path = folder.file("disturbed.mdb");
        const std::string before = stateOf(base, kind.connect);
        std::optional<std::string> after;
        for (long at = 0; !after; at += step) {
            std::filesystem::remove(path + "-journal");
            std::filesystem::copy_file(base, path, std::filesystem::copy_options::overwrite_existing);
            const auto database = openAlone(path, kind.connect, cachePages);
            database->tableDefs().count();
            set(at);
            const Accident accident = accidentOf([&] { change.run(*database); });
            const bool met = storage.failed();
            storage.mend();
            const std::string state = stateOf(*database);
            if (!met) {
                ASSERT_EQ(accident.number, 0) << accident.words;
                after = state;
                ASSERT_NE(state, before);
                break;
            }
            ++accidents;
            // A fault behind the last sync, as in clearing the journal away, may leave the change done.
            ASSERT_TRUE(accident.number == 0 || state == before) << "at " << at << ": " << accident.words << "\n"
                                                                 << state;
            if (accident.number != 0) {
                ASSERT_EQ(accident.number, number) << "at " << at << ": " << accident.words;
                ASSERT_NE(accident.words.find(path), std::string::npos) << accident.words;
                // The same handle works on.
                const Accident again = accidentOf([&] { change.run(*database); });
                ASSERT_EQ(again.number, 0) << "at " << at << " again: " << again.words;
                ASSERT_NE(stateOf(*database), before);
            }
            database->close();
            ASSERT_EQ(accidentOf([&] { stateOf(path, kind.connect); }).words, "") << "at " << at;
        }
    }
};

} // namespace

TEST_F(StorageFaults, AFullDiskLosesNothing) {
    disturb([&](long at) { storage.fillDisk(at); }, 3183, 1);
}

TEST_F(StorageFaults, AFailingDiskLosesNothing) {
    disturb([&](long at) { storage.failOperation(at, false); }, 3043, 2);
}

TEST_F(StorageFaults, ADiskThatStaysAwayLosesNothing) {
    disturb([&](long at) { storage.failOperation(at, true); }, 3043, 5);
}

TEST_F(StorageFaults, AFileThatFindsNoSpaceIsNotMade) {
    for (const FileKind& kind : fileKinds()) {
        const std::string path = folder.file(std::string("new-") + kind.name + ".mdb");
        bool made = false;
        for (long at = 0; !made && at < 20; ++at) {
            SCOPED_TRACE(std::string(kind.name) + " " + std::to_string(at));
            storage.fillDisk(at);
            const Accident accident = accidentOf([&] { Workspace::create()->createDatabase(path, kind.connect); });
            const bool met = storage.failed();
            storage.mend();
            if (met) {
                EXPECT_EQ(accident.number, 3183) << accident.words;
                EXPECT_NE(accident.words.find(path), std::string::npos) << accident.words;
                EXPECT_FALSE(std::filesystem::exists(path)) << "a piece of a file stays behind";
            }
            made = !met;
        }
        ASSERT_TRUE(made);
        EXPECT_NO_THROW(openAlone(path, kind.connect));
    }
}

#ifdef __linux__
TEST(FullDisk, ARealOneGivesTheSameError) {
    const TemporaryFolder folder;
    if (mount("tmpfs", folder.text().c_str(), "tmpfs", 0, "size=1m") != 0)
        GTEST_SKIP() << "a small disk of its own can be mounted by root only";
    {
        const std::string path = folder.file("calls.mdb");
        makeCallsFile(path, {}, 4000);
        const std::string before = stateOf(path, {});
        const auto database = openAlone(path, {});
        const Accident accident = accidentOf([&] {
            for (int i = 0; i < 10; ++i)
                database->execute("SELECT * INTO Copy" + std::to_string(i) + " FROM Calls");
        });
        EXPECT_EQ(accident.number, 3183) << accident.words;
        EXPECT_NE(accident.words.find(path), std::string::npos) << accident.words;
        for (const char* copy : {"Copy0", "Copy1", "Copy2"}) {
            if (database->tableDefs().find(copy))
                database->execute(std::string("DROP TABLE ") + copy);
        }
        EXPECT_EQ(stateOf(*database), before);
    }
    umount(folder.text().c_str());
}
#endif
