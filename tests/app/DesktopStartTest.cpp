#include "app/DesktopStart.h"
#include "app/ModUtilities_Main.h"
#include "core/ModDeclarations.h"
#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <sys/wait.h>
#include <unistd.h>

namespace {

TEST(SingleInstance, KeepsTheSecondOut) {
    const TemporaryFolder folder;
    auto first = std::make_unique<SingleInstance>(folder.text());
    EXPECT_FALSE(first->anotherIsRunning());
    EXPECT_FALSE(first->anotherIsRunning()) << "asked again";
    EXPECT_TRUE(SingleInstance(folder.text()).anotherIsRunning());
    EXPECT_TRUE(SingleInstance(folder.text() + "/./").anotherIsRunning()) << "the same folder written otherwise";
    EXPECT_FALSE(SingleInstance(folder.makeFolder("other")).anotherIsRunning()) << "another installation";
    first.reset();
    EXPECT_FALSE(SingleInstance(folder.text()).anotherIsRunning());
}

TEST(SingleInstance, TakesOverWhatADeadProcessLeftBehind) {
    const TemporaryFolder folder;
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        auto* leaked = new SingleInstance(folder.text());
        _exit(leaked->anotherIsRunning() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(WEXITSTATUS(status), 0);
    EXPECT_FALSE(SingleInstance(folder.text()).anotherIsRunning());
}

/// A program folder with a working map database, started as a user would.
class Desktop : public testing::Test {
protected:
    void SetUp() override {
        writeText(folder_.file("Paths.txt"), "AppFolder=" + folder_.text() + "\nSystemFolder=" + folder_.text() + "\n");
        Workspace::create()->createDatabase(folder_.file("ukmap.mdb"), SystemMapConnect)->close();
    }
    void TearDown() override {
        resetGlobals();
        resetDefaultWorkspace();
    }

    TemporaryFolder folder_;
    ScriptedPrompts prompts_;
};

TEST_F(Desktop, ShowsTheMainWindowAndEndsWithIt) {
    DesktopStart actions(folder_.text(), {"/data/March 1.mdb"});
    ASSERT_EQ(ModUtilities_Main({folder_.text(), folder_.text(), {}}, actions), StartResult::Running);
    EXPECT_TRUE(prompts_.texts.empty());
    EXPECT_EQ(gsProjectPath, "/data/March 1.mdb");
    ASSERT_TRUE(actions.mainWindowIsOpen());
    EXPECT_TRUE(SingleInstance(folder_.text()).anotherIsRunning());

    QTimer::singleShot(0, qApp, [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "FrmMain")
                window->close();
    });
    QTimer noSuchWindow; // it must not end the loops of later tests
    QObject::connect(&noSuchWindow, &QTimer::timeout, [] { QApplication::exit(99); });
    noSuchWindow.start(5000);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(actions.mainWindowIsOpen());
    EXPECT_FALSE(gdbSystem);
}

TEST_F(Desktop, SaysThatAnotherInstanceRuns) {
    DesktopStart running(folder_.text(), {});
    ASSERT_FALSE(running.anotherInstanceRunning());
    DesktopStart second(folder_.text(), {});
    EXPECT_EQ(ModUtilities_Main({folder_.text(), folder_.text(), {}}, second), StartResult::Ended);
    EXPECT_EQ(prompts_.texts, std::vector<std::string>{"Another instance of this application is already running."});
    EXPECT_FALSE(second.mainWindowIsOpen());
}

TEST_F(Desktop, StaysOpenWhereTheLatestProjectIsGone) {
    writeText(folder_.file("CallHistory.csv"), "\"More files ..\"\n\"" + folder_.file("gone.mdb") + "\"\n");
    DesktopStart actions(folder_.text(), {});
    EXPECT_EQ(ModUtilities_Main({folder_.text(), folder_.text(), {}}, actions), StartResult::Running);
    EXPECT_EQ(prompts_.texts, std::vector<std::string>{"Unable to open Project Database"});
    EXPECT_TRUE(actions.mainWindowIsOpen());
    EXPECT_FALSE(std::filesystem::exists(folder_.file("gone.mdb")));
}

} // namespace
