// The main window of the program on a sample installation: projects open from its list, its buttons count.
#include "app/DesktopStart.h"
#include "app/ModUtilities_Main.h"
#include "core/ModDeclarations.h"
#include "data/engine/Database.h"
#include "data/project/Databases.h"
#include "groups/windows/frmGroups.h"
#include "map/windows/FrmMap.h"
#include "multimap/windows/FrmMultiMap.h"
#include "report/FrmMain.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDateTimeEdit>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

using Messages = std::vector<std::string>;

class MainWindowLinks : public testing::Test {
protected:
    MainWindowLinks() : start_(folder_.text(), {}) {
        sample::makeSampleInstallation({.folder = folder_.text(), .calls = 2'000, .seed = 5});
        project_ = folder_.file("projects/Sample.mdb");
        writeText(folder_.file("app/CallHistory.csv"),
                  "\"More files ..\"\n\"\"\n\"" + project_ + "\"\n\"" + folder_.file("gone.mdb") + "\"\n");
        EXPECT_EQ(ModUtilities_Main({folder_.text(), folder_.text(), folder_.file("system")}, start_),
                  StartResult::Running);
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* main = qobject_cast<FrmMain*>(window))
                window_ = main;
    }
    ~MainWindowLinks() override {
        resetGlobals();
        resetDefaultWorkspace();
    }

    void choose(int row) const {
        QListWidget* list = window_->LstHistory();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
        QApplication::processEvents();
    }
    void press(const char* name) const {
        QTest::mouseClick(window_->findChild<QAbstractButton*>(QString::fromLatin1(name)), Qt::LeftButton);
        QApplication::processEvents();
    }
    template<typename Window>
    static Window* topLevel() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* window = qobject_cast<Window*>(widget))
                return window;
        return nullptr;
    }
    std::string label3() const { return window_->findChild<QLabel*>("Label3")->text().toStdString(); }
    Messages takeMessages() { return std::exchange(prompts_.texts, {}); }

    TemporaryFolder folder_;
    ScriptedPrompts prompts_;
    std::string project_;
    DesktopStart start_;
    FrmMain* window_ = nullptr;
};

TEST_F(MainWindowLinks, AProjectOpensFromTheListAndItsReportsAreCounted) {
    ASSERT_TRUE(window_);
    press("cmdReport_0");
    EXPECT_TRUE(window_->LstHistory()->hasFocus() || window_->LstHistory()->currentRow() == 0);
    choose(3);
    EXPECT_EQ(takeMessages(), Messages{"Project not found"});
    EXPECT_EQ(label3(), "Please select a file");

    choose(2);
    EXPECT_EQ(takeMessages(), Messages{});
    EXPECT_EQ(label3(), "Sample");
    EXPECT_EQ(gsProjectPath, project_);
    EXPECT_EQ(window_->LstHistory()->item(1)->toolTip().toStdString(), project_) << "it has gone to the head";

    press("OptInbound_1");
    press("cmdReport_104");
    EXPECT_EQ(takeMessages(), Messages{});
    FrmMap* map = topLevel<FrmMap>();
    ASSERT_TRUE(map && map->isVisible());
    EXPECT_FALSE(window_->LstHistory()->isEnabled()) << "the parameters wait for the map";
    press("cmdReport_104");
    EXPECT_EQ(takeMessages(), Messages{});
    map->close();
    QApplication::processEvents();
    const auto counted = gdbSystem->openRecordset("SELECT Sum(TotalCalls1) FROM TblSelectedDataForTV");
    EXPECT_GT(counted->value(0).asDouble(), 0);
    EXPECT_TRUE(window_->LstHistory()->isEnabled() && window_->CmdClose()->isEnabled());
    EXPECT_TRUE(window_->findChild<QWidget*>("CmbInbound")->isEnabled()) << "the form is given back";
    EXPECT_FALSE(window_->Label8()->isVisible());

    press("cmdReport_8");
    EXPECT_EQ(takeMessages(), Messages{});
    auto* maps = topLevel<FrmMultiMap>();
    ASSERT_TRUE(maps && maps->isVisible());
    EXPECT_FALSE(window_->LstHistory()->isEnabled()) << "the parameters wait for the maps";
    EXPECT_EQ(maps->session().count(), 2);
    maps->close();
    QApplication::processEvents();
    EXPECT_TRUE(window_->LstHistory()->isEnabled());
    const auto remembered = gdbSystem->openRecordset("SELECT MultiMaps, BoundaryType2 FROM TblDataCapture");
    EXPECT_EQ(remembered->value(0).asText() + " " + remembered->value(1).asText(), "2 TVRegion");
    const auto figures =
        gdbSystem->openRecordset("SELECT Sum(TotalCalls2), Sum(TotalCalls3) FROM TblSelectedDataForTV");
    EXPECT_GT(figures->value(0).asDouble(), 0);
    EXPECT_EQ(figures->value(0).asDouble(), figures->value(1).asDouble()) << "both maps stand on the whole period";

    auto* last = window_->findChild<QDateTimeEdit*>("DTEnd");
    last->setCurrentSection(QDateTimeEdit::YearSection);
    QTest::keyClick(last, Qt::Key_Down);
    press("cmdReport_103");
    EXPECT_EQ(takeMessages(), Messages{"Invalid date selection, report abandoned"});
    EXPECT_TRUE(window_->LstHistory()->isEnabled() && last->isEnabled()) << "the way to other dates is open";
}

TEST_F(MainWindowLinks, AnAccountWithoutGroupsIsLedToTheGroupTools) {
    ASSERT_TRUE(window_);
    choose(2);
    for (const char* table : {"TblGroups", "TblName", "TblMappingGroupSetup"})
        customerGroupsDatabase().execute(std::string("DELETE FROM ") + table);
    projectDatabase().execute("DELETE FROM TblGroups");
    bool toolsSeen = false;
    QTimer leaving;
    leaving.setInterval(20);
    QObject::connect(&leaving, &QTimer::timeout, [&] {
        if (auto* tools = qobject_cast<frmGroups*>(QApplication::activeModalWidget())) {
            leaving.stop();
            toolsSeen = true;
            EXPECT_EQ(tools->editor().DataType, 2);
            tools->close();
        }
    });
    leaving.start();
    prompts_.options = {1}; // groups of TV regions
    takeMessages();
    press("cmdReport_106");
    EXPECT_TRUE(toolsSeen);
    ASSERT_EQ(prompts_.modes, std::vector{OptionsMode::GroupTypeOrCancel});
    const Messages told = takeMessages();
    ASSERT_EQ(told.size(), 1U) << "no group was made";
    EXPECT_TRUE(told[0].starts_with("No Customer Groups have been set up."));
    EXPECT_TRUE(window_->LstHistory()->isEnabled());

    prompts_.options = {3};
    press("cmdReport_106");
    EXPECT_EQ(takeMessages(), Messages{}) << "the user has cancelled";
    EXPECT_TRUE(window_->LstHistory()->isEnabled());
}

TEST_F(MainWindowLinks, ACapturedProjectStartsWithItsMap) {
    ASSERT_TRUE(window_);
    choose(2);
    start_.ModUtilities_OpenMap();
    QApplication::processEvents();
    FrmMap* map = topLevel<FrmMap>();
    ASSERT_TRUE(map && map->isVisible());
    EXPECT_EQ(gsBoundaryType, "TVRegion");
    map->close();
    QApplication::processEvents();
    EXPECT_TRUE(window_->LstHistory()->isEnabled());
}

} // namespace
