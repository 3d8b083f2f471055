#include "core/cPathControl.h"
#include "groups/ModData_CopyGroupsFromProject.h"
#include "groups/ModData_SaveCustomerGroups.h"
#include "tests/groups/StoreInstallation.h"
#include "tests/support/ForkedTrial.h"
#include "tests/support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <random>

namespace {

namespace fs = std::filesystem;
using std::chrono::microseconds;

constexpr const char* fileNames[] = {"ukmap.mdb", "CustomerGroups.mdb", "project.mdb"};

void openIn(const std::string& folder) {
    resetGlobals();
    resetDefaultWorkspace();
    gPaths = std::make_shared<cPathControl>(folder, folder);
    gPaths->ApplicationDataPath = folder;
    gsSystemDBPath = joinPath(folder, "ukmap.mdb");
    gsProjectPath = joinPath(folder, "project.mdb");
    gsAccount = "ACC";
    reopenSystemDatabase();
    reopenProject();
    customerGroupsDatabase();
}

void letGo() {
    resetGlobals();
    resetDefaultWorkspace();
}

/// The regions of North as each file has them: those of the map by their right edge.
struct State {
    Rows map, labels, master, masterShapes, project;
    friend bool operator==(const State&, const State&) = default;
};

State stateIn(const std::string& folder) {
    openIn(folder);
    State state{StoreInstallation::shapesIn(*gdbSystem), StoreInstallation::labelsIn(*gdbSystem),
                StoreInstallation::masterMembers(), StoreInstallation::shapesIn(customerGroupsDatabase()),
                StoreInstallation::projectMembers()};
    letGo();
    return state;
}

int saveEdited(long dataType) {
    bool unsaved = true;
    return ModData_SaveCustomerGroups(dataType, {}, {}, &unsaved);
}

void enterTools() {
    long dataType = 2;
    ModData_CopyGroupsFromProject(dataType);
    ResetChangedGroups();
}

/// North is A and B, South is F, saved; makes the files of `folder`.
void makeOldState(const std::string& folder) {
    StoreInstallation installation;
    installation.setUpAs("2", false);
    const ScriptedPrompts cancelling; // an account without groups is asked what they are made of
    enterTools();
    installation.edit("A", "North");
    installation.edit("B", "North");
    installation.edit("F", "South");
    ASSERT_EQ(saveEdited(2), 0);
    letGo();
    for (const char* name : fileNames)
        fs::copy_file(installation.file(name), joinPath(folder, name));
}

/// North gets C and D, South gets E.
void saveNewGroups(const std::string& folder, const std::function<void()>& ready) {
    openIn(folder);
    FrmMain_TransferGroupsToMap(); // its link leads to this folder then
    enterTools();
    for (const auto& [region, group] : {std::pair{"C", "North"}, {"D", "North"}, {"E", "South"}}) {
        gdbSystem->execute("UPDATE tblTempGroups SET GroupName = '" + std::string(group) + "' WHERE Reference = '" +
                           region + "'");
        AddChangedGroup(group);
    }
    ready();
    if (saveEdited(2) != 0)
        throw std::runtime_error("not saved");
    letGo();
}

class Trials {
public:
    Trials() {
        makeOldState(base_.text());
        old_ = stateIn(base_.text());
        // The quickest of three: a busy machine would else let most kills come too late.
        for (int i = 0; i < 3; ++i)
            took_ = std::min(took_, attempt(std::nullopt).took);
        new_ = stateIn(folder_.text());
    }

    /// True where the kill came before the end.
    bool run(std::mt19937& random) {
        const microseconds moment(static_cast<long>(random() % static_cast<unsigned>(took_.count() + 1)));
        const bool finished = attempt(moment).finished;
        const State state = stateIn(folder_.text());
        const std::string when = " killed after " + std::to_string(moment.count()) + " of " +
                                 std::to_string(took_.count()) + " microseconds";
        EXPECT_TRUE(state.map == old_.map || state.map == new_.map) << when;
        EXPECT_EQ(state.labels == old_.labels, state.map == old_.map) << "shapes and labels lie in one file," << when;
        EXPECT_TRUE(state.master == old_.master || state.master == new_.master) << when;
        EXPECT_EQ(state.masterShapes == old_.masterShapes, state.master == old_.master) << when;
        EXPECT_TRUE(state.project == old_.project || state.project == new_.project) << when;
        EXPECT_TRUE(!finished || state == new_) << when;
        return !finished;
    }

    const State& oldState() const { return old_; }
    const State& newState() const { return new_; }

private:
    Trial attempt(std::optional<microseconds> killAfter) {
        fs::remove_all(folder_.path());
        fs::create_directory(folder_.path());
        for (const char* name : fileNames)
            fs::copy_file(base_.file(name), folder_.file(name));
        return runInChild([&](const std::function<void()>& ready) { saveNewGroups(folder_.text(), ready); }, killAfter);
    }

    TemporaryFolder base_, folder_;
    State old_, new_;
    microseconds took_{1'000'000'000};
};

/// Files in memory, where there is such a folder: a killed process loses nothing that it has handed to the system.
class FoldersInMemory {
public:
    FoldersInMemory() {
        if (fs::is_directory("/dev/shm"))
            setenv("TMPDIR", "/dev/shm", 1);
    }
    ~FoldersInMemory() { unsetenv("TMPDIR"); }
    FoldersInMemory(const FoldersInMemory&) = delete;
    FoldersInMemory& operator=(const FoldersInMemory&) = delete;
};

TEST(SaveKilled, EveryFileHoldsTheOldGroupsOrTheNew) {
    const FoldersInMemory inMemory;
    Trials trials;
    EXPECT_EQ(trials.oldState().map, (Rows{"North|0|200", "South|500|600"}));
    ASSERT_EQ(trials.newState().map, (Rows{"North|0|400", "South|400|600"}));
    std::mt19937 random(std::random_device{}());
    constexpr int count = 100;
    int inside = 0;
    for (int trial = 0; trial < count && !testing::Test::HasFailure(); ++trial)
        inside += trials.run(random);
    EXPECT_GT(inside, count / 5) << "kills that came too late";
}

} // namespace
