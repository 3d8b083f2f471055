#include "report/FrmMain.h"
#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

class MainWindow : public testing::Test {
protected:
    void SetUp() override {
        gPaths = std::make_shared<cPathControl>(folder_.makeFolder("program"), folder_.text());
        gPaths->ApplicationDataPath = folder_.text();
        gsVersion = "1.00.0001";
        gdbSystem = defaultWorkspace()->createDatabase(folder_.file("ukmap.mdb"), SystemMapConnect);
        gdbSystem->execute("CREATE TABLE TblTV (Name TEXT(40))");
        writeText(folder_.file("CallHistory.csv"),
                  "\"More files ..\"\n\"/home/analyst/projects/2025/Customer/March.mdb\"\n\"/data/Feb.mdb\"\n");
    }
    void TearDown() override {
        resetGlobals();
        resetDefaultWorkspace();
    }

    static QString textOf(const FrmMain& window, const char* name) {
        const auto* label = window.findChild<QLabel*>(QString::fromLatin1(name));
        return label ? label->text() : QStringLiteral("no such label");
    }

    TemporaryFolder folder_;
};

TEST_F(MainWindow, ShowsTitleHistoryAndWhatToDoFirst) {
    FrmMain window;
    window.show();
    EXPECT_EQ(window.windowTitle(), "Callscope Mapping v1.00.0001");
    EXPECT_EQ(textOf(window, "lblSlogan"), "Every Call In Its Place");
    EXPECT_EQ(textOf(window, "Label3"), "Please select a file");
    ASSERT_EQ(window.LstHistory()->count(), 3);
    EXPECT_EQ(window.LstHistory()->item(0)->text(), "More files ..");
    EXPECT_EQ(window.LstHistory()->item(1)->text(), "/ho..Customer/March.mdb");
    EXPECT_EQ(window.LstHistory()->item(1)->toolTip(), "/home/analyst/projects/2025/Customer/March.mdb");
    EXPECT_FALSE(window.findChild<QLabel*>("Label8")->isVisible()) << "nothing runs";
    EXPECT_LE(window.sizeHint().width(), 1280);
    EXPECT_LE(window.minimumSizeHint().height(), 400) << "fits a small screen at 200 %";
}

TEST_F(MainWindow, TurnsFromWhatToDoFirstToTheParametersAndBack) {
    FrmMain window;
    window.show();
    EXPECT_TRUE(window.findChild<QLabel*>("lblNoProject")->isVisible());
    EXPECT_TRUE(window.findChild<QWidget*>("cmdReport_0")->isVisible());
    EXPECT_FALSE(window.findChild<QWidget*>("Frame3")->isVisible());

    gdbProject = defaultWorkspace()->createDatabase(folder_.file("March.mdb"));
    gsProjectPath = "/data/March.mdb";
    window.showProjectName("March");
    EXPECT_EQ(textOf(window, "Label3"), "March");
    EXPECT_FALSE(window.findChild<QLabel*>("lblNoProject")->isVisible());
    EXPECT_TRUE(window.findChild<QWidget*>("Frame3")->isVisible());

    gdbProject.reset();
    gsProjectPath.clear();
    window.showProjectName("Please select a file");
    EXPECT_EQ(textOf(window, "Label3"), "Please select a file");
    EXPECT_TRUE(window.findChild<QLabel*>("lblNoProject")->isVisible());
}

TEST_F(MainWindow, OffersTheUserGuideWhereThereIsOne) {
    for (const char* guide : {"CallscopeMapping.pdf", "callscopemapping.TXT"}) {
        EXPECT_TRUE(FrmMain().findChild<QWidget*>("cmdUserGuide")->isHidden());
        writeText(folder_.file(guide), "a guide");
        EXPECT_FALSE(FrmMain().findChild<QWidget*>("cmdUserGuide")->isHidden()) << guide;
        std::filesystem::remove(folder_.file(guide));
    }
}

TEST_F(MainWindow, OffersProjectsToMouseAndKeyboard) {
    FrmMain window;
    window.show();
    const QSignalSpy chosen(&window, &FrmMain::historyRowChosen);
    QListWidget* list = window.LstHistory();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toInt(), 2);

    list->setFocus();
    QTest::keyClick(list, Qt::Key_Up);
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 2);
    EXPECT_EQ(chosen.at(1).at(0).toInt(), 1);
}

TEST_F(MainWindow, EndsTheProgramAndLetsGoOfItsFiles) {
    struct Way {
        const char* name;
        std::function<void(FrmMain&)> close;
    };
    const Way ways[] = {
        {"Close", [](FrmMain& window) { QTest::mouseClick(window.CmdClose(), Qt::LeftButton); }},
        {"Escape", [](FrmMain& window) { QTest::keyClick(&window, Qt::Key_Escape); }},
        {"the window's own button", [](FrmMain& window) { window.close(); }},
        {"recordsets already closed",
         [](FrmMain& window) {
             grsData2->Close();
             window.close();
         }},
    };
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        grsData1 = gdbSystem->openRecordset("TblTV");
        grsData2 = gdbSystem->openRecordset("TblTV");
        grsData3.reset();
        const auto held = gdbSystem;
        FrmMain window;
        window.show();
        QTimer::singleShot(0, &window, [&] { way.close(window); });
        QTimer::singleShot(5000, &window, [] { QApplication::exit(99); }); // where it does not close
        EXPECT_EQ(QApplication::exec(), 0);
        EXPECT_FALSE(window.isVisible());
        EXPECT_FALSE(gdbSystem || grsData1 || grsData2 || grsData3);
        EXPECT_FALSE(held->isOpen());
        gdbSystem =
            defaultWorkspace()->openDatabase(folder_.file("ukmap.mdb"), Workspace::Access::Exclusive, SystemMapConnect);
    }
}

TEST_F(MainWindow, StaysWhileLongWorkRuns) {
    FrmMain window;
    window.show();
    window.setEnabled(false);
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(gdbSystem->isOpen());
}

} // namespace
