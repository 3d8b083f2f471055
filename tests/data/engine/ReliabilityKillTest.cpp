#include "tests/data/engine/ReliabilityScene.h"
#include "tests/support/ForkedTrial.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <random>

namespace {

using Microseconds = std::chrono::microseconds;

constexpr int calls = 4000;
constexpr int smallCache = 20; ///< pages; a change of thousands of rows then reaches the file before its end

int trialsWanted() {
    const char* text = std::getenv("CALLSCOPE_KILL_TRIALS");
    return text ? std::atoi(text) : 216;
}

Trial attempt(const std::string& path, const FileKind& kind, const Change& change, int cachePages,
              std::optional<Microseconds> killAfter) {
    const auto work = [&](const std::function<void()>& ready) {
        const auto database = openAlone(path, kind.connect, cachePages);
        database->tableDefs().count();
        ready();
        change.run(*database);
        database->close();
    };
    return runInChild(work, killAfter);
}

/// One change on one kind of file, with what it takes to disturb it.
class Scene {
public:
    Scene(const TemporaryFolder& folder, const FileKind& kind, const Change& change, int cachePages)
        : kind_(kind), change_(change), cachePages_(cachePages), base_(folder.file(std::string(kind.name) + ".mdb")),
          path_(folder.file("trial.mdb")) {
        if (!std::filesystem::exists(base_))
            makeCallsFile(base_, kind.connect, calls);
        before_ = stateOf(base_, kind.connect);
        // The quickest of three: a busy machine would else let most kills come too late.
        for (int i = 0; i < 3; ++i) {
            lay();
            const Microseconds took = attempt(path_, kind, change, cachePages, std::nullopt).took;
            took_ = i == 0 ? took : std::min(took, took_);
        }
        after_ = stateOf(path_, kind.connect);
    }

    bool changesSomething() const { return before_ != after_; }

    /// Kills at a moment of the change, sometimes a little behind it. True where it was not finished.
    bool trial(std::mt19937& random) {
        lay();
        const Microseconds moment(static_cast<long>(random() % static_cast<unsigned>(took_.count() * 11 / 10 + 1)));
        const bool finished = attempt(path_, kind_, change_, cachePages_, moment).finished;
        journals += std::filesystem::exists(path_ + "-journal");
        const std::string fault = faultAfterAccident(path_, kind_.connect, finished ? after_ : before_, after_);
        EXPECT_EQ(fault, "") << kind_.name << ", " << change_.name << ", cache " << cachePages_ << ", killed after "
                             << moment.count() << " of " << took_.count() << " microseconds";
        return !finished;
    }

    int journals = 0; ///< kills that left one to be undone

private:
    void lay() const {
        std::filesystem::remove(path_ + "-journal");
        std::filesystem::copy_file(base_, path_, std::filesystem::copy_options::overwrite_existing);
    }

    FileKind kind_;
    Change change_;
    int cachePages_;
    std::string base_, path_, before_, after_;
    Microseconds took_{};
};

} // namespace

TEST(KillTrials, AKilledChangeIsWholeOrUndone) {
    const TemporaryFolder folder;
    std::mt19937 random(std::random_device{}());
    const int scenes = static_cast<int>(changes().size() * fileKinds().size() * 2);
    const int each = (trialsWanted() + scenes - 1) / scenes;
    int inside = 0;
    int journals = 0;
    for (const FileKind& kind : fileKinds()) {
        for (const Change& change : changes()) {
            for (const int cachePages : {0, smallCache}) {
                Scene scene(folder, kind, change, cachePages);
                EXPECT_TRUE(scene.changesSomething()) << change.name;
                for (int i = 0; i < each; ++i)
                    inside += scene.trial(random);
                journals += scene.journals;
            }
        }
    }
    const int trials = scenes * each;
    RecordProperty("trials", trials);
    RecordProperty("inside", inside);
    RecordProperty("journals", journals);
    std::cout << trials << " kills, " << inside << " inside the change, " << journals << " left a journal\n";
    EXPECT_GT(inside, trials / 5);
    EXPECT_GT(journals, trials / 20);
}
