// The options of the main window and their lists, with real clicks and keys.
#include "tests/report/MainWindowOnProject.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QCompleter>
#include <QSignalSpy>

namespace {

class ParameterChoice : public MainWindowOnProject {};

TEST_F(ParameterChoice, StandsOnTheWholeProjectAtFirst) {
    const ReportParameters parameters = window_->parameters();
    EXPECT_EQ(parameters.DTStart, dateOf({.year = 2025, .month = 3, .day = 1}));
    EXPECT_EQ(parameters.DTEnd, dateOf({.year = 2025, .month = 5, .day = 31}));
    EXPECT_EQ(parameters.DTStartTime, ReportParameters().DTStartTime);
    EXPECT_FALSE(parameters.ChkOverNight);
    EXPECT_EQ(parameters.OptInbound + parameters.OptAnswer + parameters.optDestinationNo, 0);
    EXPECT_EQ(parameters.CmbInbound + parameters.cmbCG + parameters.CmbAnswer + parameters.CmbAnswerGroup +
                  parameters.cmbDestinationNo,
              "");
    EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(ParameterChoice, OptionsOpenTheirListAndBringItsChoiceBack) {
    struct Group {
        const char* option;
        const char* list;
        const char* first;  ///< the choice when the option is picked for the first time
        const char* second; ///< another row
    };
    const Group groups[] = {{"OptInbound_1", "CmbInbound", "0800", "0845"},
                            {"OptInbound_2", "cmbCG", "Not Allocated", "Sales"},
                            {"OptAnswer_1", "CmbAnswer", "Leeds", "York"},
                            {"OptAnswer_2", "CmbAnswerGroup", "North", "Not Allocated"},
                            {"optDestinationNo_1", "cmbDestinationNo", "D10", "D12"}};
    for (const Group& group : groups) {
        SCOPED_TRACE(group.option);
        const QString all = QString::fromLatin1(group.option).chopped(1) + '0';
        EXPECT_FALSE(box(group.list)->isEnabled());
        click(group.option);
        EXPECT_TRUE(checked(group.option));
        EXPECT_TRUE(box(group.list)->isEnabled());
        EXPECT_EQ(textOf(group.list), group.first);

        box(group.list)->setCurrentText(group.second);
        click(all);
        EXPECT_TRUE(checked(all));
        EXPECT_FALSE(box(group.list)->isEnabled());
        EXPECT_EQ(textOf(group.list), "");
        click(group.option);
        EXPECT_EQ(textOf(group.list), group.second);
        click(all);
    }
    EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(ParameterChoice, OneListOfAGroupIsOpenAtATime) {
    click("OptInbound_1");
    click("OptInbound_2");
    EXPECT_FALSE(box("CmbInbound")->isEnabled());
    EXPECT_TRUE(box("cmbCG")->isEnabled());
    const ReportParameters parameters = window_->parameters();
    EXPECT_EQ(parameters.OptInbound, 2);
    EXPECT_EQ(parameters.cmbCG, "Not Allocated");
    click("OptInbound_1");
    EXPECT_EQ(textOf("CmbInbound"), "0800");
}

TEST_F(ParameterChoice, WithoutAProjectEveryParameterSaysSoAndStays) {
    closeProject();
    const QDateTime start = picker("DTStart")->dateTime();
    struct Use {
        const char* name;
        std::function<void()> use;
    };
    const Use uses[] = {
        {"inbound", [&] { click("OptInbound_1"); }},
        {"answer", [&] { click("OptAnswer_2"); }},
        {"destination", [&] { click("optDestinationNo_1"); }},
        {"same dates", [&] { click("ChkSame_0"); }},
        {"a key in the first date", [&] { QTest::keyClick(picker("DTStart"), Qt::Key_Up); }},
        {"a click on the last date", [&] { QTest::mouseClick(picker("DTEnd"), Qt::LeftButton); }},
        {"a key in the hours", [&] { QTest::keyClick(picker("DTStartTime_1"), Qt::Key_Down); }},
        {"a click on the text of the hours",
         [&] { QTest::mouseClick(picker("DTStartTime_0")->findChild<QLineEdit*>(), Qt::LeftButton); }},
    };
    for (const Use& use : uses) {
        use.use();
        EXPECT_EQ(takeMessages(), Messages{"Pleases select a project"}) << use.name;
    }
    EXPECT_TRUE(checked("OptInbound_0") && checked("OptAnswer_0") && checked("optDestinationNo_0"));
    EXPECT_FALSE(checked("ChkSame_0"));
    EXPECT_EQ(picker("DTStart")->dateTime(), start);
    click("CmdDefault");
    EXPECT_EQ(takeMessages(), Messages{}) << "it does nothing and says nothing";
}

TEST_F(ParameterChoice, InboundNumbersRefuseOtherSigns) {
    click("OptInbound_1");
    QComboBox* number = box("CmbInbound");
    number->clearEditText();
    QTest::keyClicks(number, "0845a");
    EXPECT_EQ(textOf("CmbInbound"), "0845a");
    QTest::keyClick(number, Qt::Key_Backspace);
    EXPECT_EQ(takeMessages(), Messages{});
    QTest::keyClicks(number, "+");
    QTest::keyClick(number, Qt::Key_Space);
    const std::string refused = "Invalid character entered - only numeric values may be entered. Use the Delete key to "
                                "remove unwanted entries";
    EXPECT_EQ(takeMessages(), (Messages{refused, refused}));
    EXPECT_EQ(textOf("CmbInbound"), "0845");
    for (const int key : {Qt::Key_Delete, Qt::Key_Home, Qt::Key_Left, Qt::Key_Return})
        QTest::keyClick(number, static_cast<Qt::Key>(key));
    EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(ParameterChoice, InboundNumbersAreFoundByAnyOfTheirDigits) {
    click("OptInbound_1");
    QComboBox* number = box("CmbInbound");
    number->setFocus();
    number->clearEditText();
    QTest::keyClicks(number, "45");
    QAbstractItemView* matches = number->completer()->popup();
    ASSERT_TRUE(matches->isVisible());
    EXPECT_EQ(matches->model()->rowCount(), 1);
    QTest::keyClick(matches, Qt::Key_Down);
    QTest::keyClick(matches, Qt::Key_Return);
    EXPECT_EQ(textOf("CmbInbound"), "0845");
    EXPECT_FALSE(matches->isVisible());
    EXPECT_EQ(window_->parameters().CmbInbound, "0845");
    EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(ParameterChoice, TheCalendarOpensByKey) {
    for (const auto& [key, modifiers] :
         {std::pair{Qt::Key_F4, Qt::NoModifier}, std::pair{Qt::Key_Down, Qt::AltModifier}}) {
        QDateTimeEdit* start = picker("DTStart");
        QTest::keyClick(start, key, modifiers);
        ASSERT_TRUE(start->calendarWidget()->isVisible());
        EXPECT_EQ(start->calendarWidget()->selectedDate(), QDate(2025, 3, 1));
        EXPECT_EQ(start->calendarWidget()->firstDayOfWeek(), Qt::Monday);
        start->calendarWidget()->window()->close();
    }
    EXPECT_EQ(picker("DTStart")->date(), QDate(2025, 3, 1));
}

TEST_F(ParameterChoice, AnInboundNumberThatIsNoRowIsTakenBack) {
    click("OptInbound_1");
    QComboBox* number = box("CmbInbound");
    number->setFocus();
    number->setEditText("999");
    widget("DTStart")->setFocus();
    EXPECT_EQ(takeMessages(), Messages{}) << "not in the midst of the change of focus";
    QApplication::processEvents();
    EXPECT_EQ(takeMessages(), Messages{"Please select a valid number from the list displayed.."});
    EXPECT_EQ(textOf("CmbInbound"), "");
    EXPECT_TRUE(number->hasFocus());

    number->setEditText("999");
    click("OptInbound_0");
    EXPECT_EQ(takeMessages(), Messages{}) << "the way back to all numbers is open";
    click("OptInbound_1");
    EXPECT_EQ(textOf("CmbInbound"), "0800") << "999 was no choice";
}

TEST_F(ParameterChoice, DestinationsAreCompletedWhileTheyAreTyped) {
    click("optDestinationNo_1");
    QComboBox* destination = box("cmbDestinationNo");
    destination->clearEditText();
    struct Step {
        const char* name;
        std::function<void()> press;
        const char* text;
        const char* notTyped;
    };
    const auto type = [&](const char* keys) { return [=] { QTest::keyClicks(destination, keys); }; };
    const auto backspace = [&] { QTest::keyClick(destination, Qt::Key_Backspace); };
    const Step steps[] = {
        {"the first row that begins so, in its own case", type("d"), "D10", "10"},
        {"one letter more, the same row", type("1"), "D10", "0"},
        {"another row", type("2"), "D12", ""},
        {"the longer one", type("3"), "D123", ""},
        {"no row", type("4"), "D1234", ""},
        {"backspace takes the last letter typed", backspace, "D123", ""},
        {"and completes", backspace, "D12", ""},
        {"and again", backspace, "D10", "0"},
        {"the completion and a letter", backspace, "D10", "10"},
        {"down to nothing", backspace, "", ""},
        {"another letter", type("e"), "E1", "1"},
        {"Delete takes the completion alone", [&] { QTest::keyClick(destination, Qt::Key_Delete); }, "e", ""},
    };
    for (const Step& step : steps) {
        step.press();
        EXPECT_EQ(destination->lineEdit()->selectedText(), step.notTyped) << step.name;
        EXPECT_EQ(QString::compare(destination->currentText(), step.text, Qt::CaseInsensitive), 0)
            << step.name << ": " << textOf("cmbDestinationNo");
    }
}

TEST_F(ParameterChoice, ADestinationThatIsNoRowIsAskedForAgain) {
    click("optDestinationNo_1");
    QComboBox* destination = box("cmbDestinationNo");
    destination->setFocus();
    destination->setEditText("nowhere");
    widget("DTStart")->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(takeMessages(), Messages{"Please enter a valid Destination ID"});
    EXPECT_TRUE(destination->hasFocus());
    EXPECT_EQ(textOf("cmbDestinationNo"), "nowhere");

    const QSignalSpy requested(window_.get(), &FrmMain::reportRequested);
    QTest::keyClick(find<QAbstractButton>("cmdReport_104"), Qt::Key_Space);
    EXPECT_EQ(requested.count(), 0) << "no report of a destination that is none";
    EXPECT_EQ(takeMessages(), Messages{"Please enter a valid Destination ID"});
}

TEST_F(ParameterChoice, AProjectWithoutGroupsOrNumbersLeavesTheRestToChoose) {
    click("OptInbound_2");
    gdbProject->execute("DELETE FROM TblKeyNumbers");
    customerGroupsDatabase().execute("DELETE FROM TblCommunityGroupsName");
    bringIn();
    EXPECT_EQ(takeMessages(), Messages{"No Inbound Numbers found"});
    EXPECT_TRUE(checked("OptInbound_0"));
    EXPECT_FALSE(widget("OptInbound_1")->isEnabled() || widget("OptInbound_2")->isEnabled());
    EXPECT_FALSE(widget("OptInbound_2")->toolTip().isEmpty()) << "and it says why";
    EXPECT_TRUE(widget("OptAnswer_1")->isEnabled() && widget("optDestinationNo_1")->isEnabled());
    EXPECT_EQ(box("cmbCG")->itemText(0), "Not Allocated");

    gdbProject->execute("INSERT INTO TblKeyNumbers (Number1) VALUES ('0900')");
    bringIn();
    EXPECT_TRUE(widget("OptInbound_1")->isEnabled()) << "the next project has numbers";
    click("OptInbound_1");
    EXPECT_EQ(textOf("CmbInbound"), "0900");
}

TEST_F(ParameterChoice, DefaultsBringTheWholeProjectBack) {
    click("OptInbound_1");
    click("OptAnswer_2");
    click("optDestinationNo_1");
    click("ChkOverNight");
    QTest::keyClick(picker("DTStart"), Qt::Key_Up);
    QTest::keyClick(picker("DTStartTime_0"), Qt::Key_Up);
    QTest::keyClick(picker(0), Qt::Key_Up);
    const Date ofMap = window_->multiMapParameters().DTPicker1[0];
    ASSERT_NE(window_->parameters().DTStart, dateOf({.year = 2025, .month = 3, .day = 1}));
    ASSERT_TRUE(window_->parameters().ChkOverNight);
    click("CmdDefault");
    const ReportParameters parameters = window_->parameters();
    EXPECT_EQ(parameters.DTStart, dateOf({.year = 2025, .month = 3, .day = 1}));
    EXPECT_EQ(parameters.DTStartTime, ReportParameters().DTStartTime);
    EXPECT_FALSE(parameters.ChkOverNight);
    EXPECT_EQ(parameters.OptInbound + parameters.OptAnswer + parameters.optDestinationNo, 0);
    EXPECT_EQ(parameters.CmbInbound + parameters.CmbAnswerGroup + parameters.cmbDestinationNo, "");
    for (const char* list : {"CmbInbound", "cmbCG", "CmbAnswer", "CmbAnswerGroup", "cmbDestinationNo"})
        EXPECT_FALSE(box(list)->isEnabled()) << list;
    EXPECT_EQ(window_->multiMapParameters().DTPicker1[0], ofMap) << "the maps side by side keep theirs";
    EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(ParameterChoice, TheOvernightOptionIsExplained) {
    click("CmdHelp");
    ASSERT_EQ(prompts_.texts.size(), 1U);
    EXPECT_EQ(
        prompts_.texts[0],
        "If 'Overnight' is checked and the 'hours after' is set to a value greater than the 'hours before' value "
        "then reports will show calls for the continuous period extending into the next day provided the period "
        "covered by the selected start and end dates include both days. For example if parameters are set to show "
        "just calls on Monday with the 'hours after' set to 1800 and the 'hours before' set to 0800 then the "
        "reports will show calls from Monday at 1800 until Tuesday at 0800. If the overnight option is unchecked "
        "the reports will show calls on Monday before 0800 and after 1800. The selected call hours apply to the "
        "start time for the calls.");
}

} // namespace
