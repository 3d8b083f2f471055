#include "groups/windows/frmGroups.h"

#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/editor/OpenGroupTools.h"
#include "groups/windows/frmGroupSaveQuery.h"
#include "groups/windows/frmGroupSelection.h"
#include "map/surface/windows/MapSurfaceWidget.h"
#include "tests/support/CapturedSample.h"
#include "tests/support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>

namespace {

/// Does something to the next window or menu that comes up over the group tools.
template<typename Window>
class OnNext {
public:
    explicit OnNext(std::function<void(Window&)> act) {
        timer_.setInterval(10);
        QObject::connect(&timer_, &QTimer::timeout, [this, act] {
            QWidget* popup = QApplication::activePopupWidget();
            auto* window = qobject_cast<Window*>(popup ? popup : QApplication::activeModalWidget());
            if (!window)
                return;
            timer_.stop();
            seen = true;
            act(*window);
        });
        timer_.start();
    }
    bool seen = false;

private:
    QTimer timer_;
};

OnNext<QMenu> choosing(const QString& action) {
    return OnNext<QMenu>([action](QMenu& menu) {
        menu.setActiveAction(menu.findChild<QAction*>(action));
        QTest::keyClick(&menu, Qt::Key_Return);
    });
}

/// The group tools on a captured sample whose groups of postcode districts have been brought in.
class GroupTools : public testing::Test {
protected:
    static void SetUpTestSuite() { sample_ = new CapturedSample(2'000, 3); }
    static void TearDownTestSuite() { delete sample_; }

    GroupTools() {
        prompts_.answers = {PromptAnswer::Yes, PromptAnswer::Yes};
        EXPECT_EQ(OpenGroupTools({}, {}, {}, kind_), 0);
        prompts_.answers.clear();
        prompts_.texts.clear();
        window_ = std::make_unique<frmGroups>(kind_);
        window_->show();
        settle();
    }

    static void settle() {
        for (int turn = 0; turn < 5; ++turn)
            QApplication::processEvents();
    }
    QTreeWidget& list() { return *window_->findChild<QTreeWidget*>("tvGroups"); }
    QAbstractButton& button(const char* name) {
        return *window_->findChild<QAbstractButton*>(QString::fromLatin1(name));
    }
    void select(int group) {
        list().setCurrentItem(list().topLevelItem(group));
        settle();
    }
    void click(const std::string& district) {
        emit window_->MapSurface1()->MapEntityInfo(0, numberOf(district));
        QTest::qWait(60);
    }
    static long numberOf(const std::string& district) {
        return static_cast<long>(
            firstValue(systemDatabase(),
                       "SELECT POLYGONID FROM PGN_POSTCODEDISTRICT WHERE NAME = " + ::quoted(district))
                ->asInteger());
    }
    static std::string groupOf(const std::string& district) {
        const auto group =
            firstValue(systemDatabase(), "SELECT GroupName FROM tblTempGroups WHERE Reference = " + ::quoted(district));
        return group && !group->isNull() ? group->asText() : "";
    }
    /// Districts that no group has, and one that a group has.
    static std::vector<std::string> freeDistricts(int count) {
        std::vector<std::string> names;
        const auto rows =
            systemDatabase().openRecordset("SELECT NAME FROM PGN_POSTCODEDISTRICT WHERE NAME <> 'Republic Of "
                                           "Ireland' ORDER BY NAME");
        for (; !rows->EOF_() && static_cast<int>(names.size()) < count; rows->MoveNext())
            if (groupOf(rows->value(0).asText()).empty())
                names.push_back(rows->value(0).asText());
        return names;
    }
    static std::string memberOf(const std::string& group) {
        return firstValue(systemDatabase(), "SELECT Reference FROM tblTempGroups WHERE GroupName = " + ::quoted(group))
            ->asText();
    }
    std::string name(int group) { return list().topLevelItem(group)->text(0).toStdString(); }

    inline static CapturedSample* sample_ = nullptr;
    ScriptedPrompts prompts_;
    long kind_ = 0;
    std::unique_ptr<frmGroups> window_;
};

TEST_F(GroupTools, ListTheGroupsAndSaveNothingAtFirst) {
    EXPECT_EQ(kind_, 3);
    EXPECT_EQ(list().topLevelItemCount(), static_cast<int>(window_->editor().groups().size()));
    EXPECT_GT(list().topLevelItemCount(), 3);
    EXPECT_FALSE(button("lblSave").isEnabled() || button("lblCancel").isEnabled());
    EXPECT_TRUE(button("cmdDeleteGroup").isEnabled() && button("cmdDeleteAll").isEnabled());
    EXPECT_GE(window_->MapSurface1()->surface().NumberOfLayers(), 4);
}

TEST_F(GroupTools, AClickAndTheMenuPutAnAreaIntoTheSelectedGroupAndOut) {
    const std::string district = freeDistricts(1).at(0);
    click(district); // no group is selected
    ASSERT_EQ(prompts_.texts.size(), 1U);
    EXPECT_TRUE(prompts_.texts[0].starts_with("Please select a group from, or add a new group to, the Group box"));
    select(1);
    {
        const auto menu = choosing("mnuCancel");
        click(district);
        EXPECT_TRUE(menu.seen);
        EXPECT_EQ(groupOf(district), "");
        EXPECT_FALSE(button("lblSave").isEnabled());
    }
    {
        const auto menu = choosing("mnuGroupAddArea");
        click(district);
    }
    EXPECT_EQ(groupOf(district), name(1));
    EXPECT_TRUE(button("lblSave").isEnabled() && button("lblCancel").isEnabled());
    {
        const auto menu = choosing("mnuGroupDeleteArea");
        click(district);
    }
    EXPECT_EQ(groupOf(district), "");
    EXPECT_EQ(list().currentItem(), list().topLevelItem(1)) << "the selection stays";
}

TEST_F(GroupTools, AnAreaOfAnotherGroupIsAskedAbout) {
    select(0);
    const std::string own = name(0), other = name(1), district = memberOf(other);
    for (const bool agreed : {false, true}) {
        bool asked = false;
        auto menu = choosing("mnuGroupAddArea");
        // Once the menu has gone.
        QTimer::singleShot(30, window_.get(), [&] {
            static std::unique_ptr<OnNext<frmGroupSaveQuery>> query;
            query = std::make_unique<OnNext<frmGroupSaveQuery>>([&](frmGroupSaveQuery& question) {
                asked = true;
                question.findChild<QAbstractButton*>(agreed ? "cmdYes" : "cmdNo")->click();
            });
        });
        click(district);
        QTest::qWait(50);
        EXPECT_TRUE(asked);
        EXPECT_EQ(groupOf(district), agreed ? own : other);
    }
}

TEST_F(GroupTools, OfADrawingOnlyCheckedAreasAreTaken) {
    select(2);
    const auto districts = freeDistricts(3);
    std::vector<long> numbers;
    for (const std::string& district : districts)
        numbers.push_back(numberOf(district));
    auto menu = choosing("mnuGroupAddArea");
    std::unique_ptr<OnNext<frmGroupSelection>> selection;
    QTimer::singleShot(30, window_.get(), [&] {
        selection = std::make_unique<OnNext<frmGroupSelection>>([&](frmGroupSelection& window) {
            auto* rows = window.findChild<QTreeWidget*>("lvSelected");
            ASSERT_EQ(rows->topLevelItemCount(), 3);
            rows->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
            window.findChild<QAbstractButton*>("cmdOK")->click();
        });
    });
    emit window_->MapSurface1()->MapGeoQuery(3, {0, 0, 0}, numbers);
    QTest::qWait(150);
    ASSERT_TRUE(selection && selection->seen);
    EXPECT_EQ(groupOf(districts[0]), name(2));
    EXPECT_EQ(groupOf(districts[1]), "");
    EXPECT_EQ(groupOf(districts[2]), name(2));
    EXPECT_EQ(prompts_.texts.back(), "Group boundary calculation completed");
}

TEST_F(GroupTools, ANewGroupIsSelectedSavedAndKept) {
    const int before = list().topLevelItemCount();
    prompts_.entries = {"test branches"};
    button("cmdAddGroup").click();
    settle();
    ASSERT_EQ(list().topLevelItemCount(), before + 1);
    EXPECT_EQ(name(before), "TEST BRANCHES");
    EXPECT_EQ(list().currentItem(), list().topLevelItem(before));
    const std::string district = freeDistricts(1).at(0);
    {
        const auto menu = choosing("mnuGroupAddArea");
        click(district);
    }
    prompts_.answers = {PromptAnswer::Yes};
    button("lblSave").click();
    settle();
    EXPECT_EQ(prompts_.texts.back(), "Save completed successfully");
    EXPECT_FALSE(button("lblSave").isEnabled());
    EXPECT_EQ(countOf(customerGroupsDatabase(), "SELECT COUNT(*) FROM TblGroups WHERE GroupName = 'TEST BRANCHES'"), 1);
    EXPECT_TRUE(button("CmdExit").isEnabled());

    prompts_.answers = {PromptAnswer::Yes};
    button("cmdDeleteGroup").click();
    settle();
    EXPECT_TRUE(button("lblCancel").isEnabled());
    button("lblCancel").click();
    settle();
    EXPECT_EQ(list().topLevelItemCount(), before + 1) << "what was saved last";
    EXPECT_FALSE(button("lblSave").isEnabled());
}

TEST_F(GroupTools, LeavingAsksWhereChangesWouldBeLost) {
    select(0);
    const std::string district = freeDistricts(1).at(0);
    {
        const auto menu = choosing("mnuGroupAddArea");
        click(district);
    }
    button("CmdExit").click(); // answered with No
    settle();
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(prompts_.texts.back().starts_with("You have made unsaved changes to Customer Groups"));
    prompts_.answers = {PromptAnswer::Yes};
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(GroupTools, CallsWithoutAPlaceJoinAGroupByTheirBars) {
    select(1);
    {
        const auto menu = choosing("mnuGroupAddArea");
        button("ucwlMobileText").click();
        QTest::qWait(60);
        EXPECT_TRUE(menu.seen);
    }
    EXPECT_EQ(groupOf("Mobile"), name(1));
    EXPECT_EQ(window_->editor().callAreas()[0].colour, window_->editor().groups()[1].colour);
    {
        const auto menu = choosing("mnuGroupDeleteArea");
        button("ucwlMobileBar").click();
        QTest::qWait(60);
    }
    EXPECT_EQ(groupOf("Mobile"), "");
}

TEST_F(GroupTools, ADrawingNeedsASelectedGroupAndAreas) {
    window_->MapSurface1()->surface().setUIMode(MapTool::PolygonQuery);
    emit window_->MapSurface1()->MapMouseDown(1, 0, 10, 10);
    QTest::qWait(30);
    ASSERT_EQ(prompts_.texts.size(), 1U);
    EXPECT_TRUE(prompts_.texts[0].starts_with("Please select a group from"));
    select(0);
    const auto menu = choosing("mnuGroupAddArea");
    emit window_->MapSurface1()->MapMouseDown(1, 0, 10, 10);
    emit window_->MapSurface1()->MapMouseUp(1, 0, 12, 10);
    QTest::qWait(80);
    EXPECT_EQ(prompts_.texts.back(), "No areas have been selected to add to the group");
    EXPECT_FALSE(button("lblSave").isEnabled());
}

/// The last of these tests: the groups are gone for good.
TEST_F(GroupTools, RemovingAllGroupsLeavesAnEmptyListOfTheKindThatIsChosenNext) {
    button("cmdDeleteAll").click(); // answered with No
    settle();
    EXPECT_GT(list().topLevelItemCount(), 0);
    prompts_.answers = {PromptAnswer::Yes};
    prompts_.options = {1}; // TV regions
    button("cmdDeleteAll").click();
    settle();
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(list().topLevelItemCount(), 0);
    EXPECT_EQ(window_->editor().DataType, 2);
    EXPECT_FALSE(button("cmdDeleteAll").isEnabled() || button("cmdDeleteGroup").isEnabled());
    EXPECT_FALSE(button("lblSave").isEnabled());
    EXPECT_EQ(countOf(customerGroupsDatabase(), "SELECT COUNT(*) FROM TblGroups WHERE GroupName <> ''"), 0);
}

} // namespace
