// The main window as a form: what long work fences, the panel of several maps, the keyboard.
#include "tests/report/MainWindowOnProject.h"

#include <QListWidget>
#include <QSignalSpy>

namespace {

class ParameterForm : public MainWindowOnProject {
protected:
    QStringList parameterControls() const {
        QStringList names{"CmdMainHelp",
                          "CmdHelp",
                          "CmdDefault",
                          "cmdImportCSV",
                          "cmdUserGuide",
                          "DTStart",
                          "DTEnd",
                          "DTStartTime_0",
                          "DTStartTime_1",
                          "ChkOverNight",
                          "OptInbound_0",
                          "OptInbound_1",
                          "OptInbound_2",
                          "OptAnswer_0",
                          "OptAnswer_1",
                          "OptAnswer_2",
                          "OptPeriods_0",
                          "OptPeriods_1",
                          "OptPeriods_2",
                          "OptBoundaries_0",
                          "OptBoundaries_1",
                          "optDestinationNo_0",
                          "optDestinationNo_1",
                          "ucwlSaveGuide"};
        for (const int report : {8, 101, 102, 103, 104, 106})
            names.append(QStringLiteral("cmdReport_%1").arg(report));
        return names;
    }
    int enabledPickers() const {
        int count = 0;
        for (int i = 0; i < 24; ++i)
            count += picker(i)->isEnabled();
        return count;
    }
    int visiblePickers() const {
        int count = 0;
        for (int i = 0; i < 24; ++i)
            count += picker(i)->isVisible();
        return count;
    }
};

TEST_F(ParameterForm, LongWorkFencesEveryControlAndGivesItBack) {
    click("OptInbound_1");
    click("OptPeriods_1");
    widget("DTEnd")->setFocus();
    window_->DisableForm();
    for (const QString& name :
         parameterControls() + QStringList{"CmbInbound", "cmbCG", "CmbAnswer", "CmbAnswerGroup", "cmbDestinationNo"})
        EXPECT_FALSE(widget(name)->isEnabled()) << name.toStdString();
    EXPECT_EQ(enabledPickers(), 0);
    for (const char* panel : {"Frame3", "Frame4", "Frame5", "Frame6", "Frame7", "Frame9"})
        EXPECT_FALSE(widget(panel)->isVisible()) << panel;

    window_->EnableForm();
    EXPECT_EQ(gsCurrentProc, "FrmMain_EnableForm");
    for (const QString& name : parameterControls())
        EXPECT_TRUE(widget(name)->isEnabled()) << name.toStdString();
    for (const char* panel : {"Frame3", "Frame4", "Frame5", "Frame6", "Frame7", "Frame9"})
        EXPECT_TRUE(widget(panel)->isVisible()) << panel;
    EXPECT_TRUE(box("CmbInbound")->isEnabled()) << "its option stands on it";
    EXPECT_EQ(textOf("CmbInbound"), "0800") << "the choice has lasted";
    for (const char* closed : {"cmbCG", "CmbAnswer", "CmbAnswerGroup", "cmbDestinationNo"})
        EXPECT_FALSE(box(closed)->isEnabled()) << closed;
    EXPECT_EQ(enabledPickers(), 16);
    EXPECT_TRUE(widget("DTEnd")->hasFocus()) << "the user is where he was";
}

TEST_F(ParameterForm, ReportsWaitForAProject) {
    EXPECT_EQ(widget("cmdReport_104")->toolTip(), "Show data within TV Regions");
    closeProject();
    window_->EnableForm();
    EXPECT_FALSE(widget("cmdReport_104")->isEnabled() || widget("cmdReport_8")->isEnabled());
    EXPECT_NE(widget("cmdReport_104")->toolTip(), "Show data within TV Regions") << "it says why";
    const QSignalSpy requested(window_.get(), &FrmMain::reportRequested);
    click("cmdReport_0");
    ASSERT_EQ(requested.count(), 1);
    EXPECT_EQ(requested.at(0).at(0).toInt(), 0);
}

TEST_F(ParameterForm, EachReportButtonTellsItsNumber) {
    const QSignalSpy requested(window_.get(), &FrmMain::reportRequested);
    int presses = 0;
    for (const int report : {8, 101, 102, 103, 104, 106}) {
        click(QStringLiteral("cmdReport_%1").arg(report));
        ASSERT_EQ(requested.count(), ++presses);
        EXPECT_EQ(requested.last().at(0).toInt(), report);
    }
}

TEST_F(ParameterForm, ShowsAsManyRangesAsMaps) {
    struct Case {
        const char* option;
        int pickers;
        std::vector<const char*> hidden;
    };
    const Case cases[] = {{"OptPeriods_1", 16, {"Label18", "Label22"}},
                          {"OptPeriods_2", 24, {}},
                          {"OptPeriods_0", 8, {"Label10", "Label14", "Label18", "Label22"}}};
    for (const Case& c : cases) {
        click(c.option);
        EXPECT_EQ(gsCurrentProc, "FrmMain_OptPeriods_Click");
        EXPECT_EQ(visiblePickers(), c.pickers) << c.option;
        EXPECT_EQ(enabledPickers(), c.pickers) << c.option;
        for (const char* label : {"Label1", "Label6", "Label10", "Label14", "Label18", "Label22"}) {
            const bool hidden = std::find_if(c.hidden.begin(), c.hidden.end(), [&](const char* name) {
                                    return std::string(name) == label;
                                }) != c.hidden.end();
            EXPECT_EQ(widget(label)->isHidden(), hidden) << c.option << ", " << label;
        }
    }
}

TEST_F(ParameterForm, SameDatesAreCopiedToAllMapsShownOrNot) {
    click("OptPeriods_2");
    click("OptPeriods_0");
    QTest::keyClick(picker(0), Qt::Key_Up);
    const MultiMapParameters before = window_->multiMapParameters();
    EXPECT_NE(before.DTPicker1[0], before.DTPicker1[4]) << "not while the box is empty";
    click("ChkSame_0");
    for (std::size_t map = 0; map < 6; ++map)
        EXPECT_EQ(window_->multiMapParameters().DTPicker1[4 * map], before.DTPicker1[0]) << map;
    EXPECT_EQ(window_->multiMapParameters().DTPicker1[6], before.DTPicker1[6]) << "end dates stay";

    click("ChkSame_3");
    picker(3)->setCurrentSection(QDateTimeEdit::HourSection);
    QTest::keyClick(picker(3), Qt::Key_Down);
    QTest::keyClick(picker(0), Qt::Key_Up);
    const MultiMapParameters after = window_->multiMapParameters();
    for (std::size_t map = 0; map < 6; ++map) {
        EXPECT_EQ(after.DTPicker1[4 * map + 3], (Date{(22 * 3600 + 59 * 60 + 59) / 86400.0})) << map;
        EXPECT_EQ(after.DTPicker1[4 * map], (Date{before.DTPicker1[0].days + 1})) << map;
        EXPECT_EQ(after.DTPicker1[4 * map + 1], (Date{0.0})) << map;
    }
    EXPECT_EQ(gsCurrentProc, "FrmMain_DTPicker1_KeyPress");
    QTest::mouseClick(picker(4), Qt::LeftButton);
    EXPECT_EQ(gsCurrentProc, "FrmMain_DTPicker1_Click");
}

TEST_F(ParameterForm, BringsTheLastRangesBack) {
    MultiMapSettings settings;
    settings.boundaryType = "PostcodeDistrict";
    settings.ranges.OptPeriods = 2;
    for (std::size_t i = 0; i < 24; ++i)
        settings.ranges.DTPicker1[i] =
            i % 2 == 0 ? Date{45000.0 + static_cast<double>(i)} : Date{static_cast<double>(i) * 3600 / 86400.0};
    window_->restoreMultiMaps(settings);
    EXPECT_TRUE(window_->multiMapPostCodeDistricts());
    EXPECT_EQ(window_->multiMapParameters().OptPeriods, 2);
    EXPECT_EQ(window_->multiMapParameters().DTPicker1, settings.ranges.DTPicker1);
    EXPECT_EQ(visiblePickers(), 24);
}

TEST_F(ParameterForm, TellsOfTheProjectsPeriod) {
    EXPECT_EQ(find<QLabel>("lblProjectPeriod")->text(), "The project holds calls from 01/03/2025 to 31/05/2025");
    gdbProject->execute("DELETE FROM TblCallSummary1");
    window_->Setup_Dates();
    EXPECT_EQ(find<QLabel>("lblProjectPeriod")->text(), "The period of the project's calls is not known");
    gdbProject->execute("DROP TABLE TblCallSummary1");
    window_->Setup_Dates();
    EXPECT_EQ(installation_.logLinesWith("\"FrmMain_setup_dates\",3078,"), 1);
}

TEST_F(ParameterForm, TabLeadsThroughAllParametersInReadingOrder) {
    widget("DTStart")->setFocus();
    QStringList reached{"DTStart"};
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_TRUE(QApplication::focusWidget());
        reached.append(QApplication::focusWidget()->objectName());
    }
    const QStringList order{"DTStart",       "DTStartTime_0",   "DTEnd",         "DTStartTime_1",      "ChkOverNight",
                            "CmdHelp",       "OptInbound_0",    "OptAnswer_0",   "optDestinationNo_0", "CmdDefault",
                            "cmdReport_104", "cmdReport_103",   "cmdReport_106", "cmdReport_101",      "cmdReport_102",
                            "OptPeriods_0",  "OptBoundaries_0", "cmdReport_8",   "ChkSame_0"};
    qsizetype last = -1;
    for (const QString& name : order) {
        const qsizetype at = reached.indexOf(name);
        EXPECT_GT(at, last) << name.toStdString() << " in " << reached.join(' ').toStdString();
        last = at;
    }
    for (const char* elsewhere : {"LstHistory", "CmdClose", "lblHelp", "DTPicker1_7"})
        EXPECT_TRUE(reached.contains(elsewhere)) << elsewhere;
}

TEST_F(ParameterForm, MnemonicsAreEachOnesOwn) {
    QMap<QChar, QString> taken;
    for (const QWidget* control : window_->findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const auto* label = qobject_cast<const QLabel*>(control);
        const QString text = button ? button->text() : label && label->buddy() ? label->text() : QString();
        const qsizetype at = text.indexOf('&');
        if (at < 0 || !control->isVisible())
            continue;
        const QChar letter = text[at + 1].toLower();
        EXPECT_FALSE(taken.contains(letter)) << text.toStdString() << " and " << taken[letter].toStdString();
        taken[letter] = text;
    }
    EXPECT_GE(taken.size(), 20);
}

TEST_F(ParameterForm, EscapeLeadsBackToTheProjectsFirst) {
    widget("DTEnd")->setFocus();
    QTest::keyClick(widget("DTEnd"), Qt::Key_Escape);
    EXPECT_TRUE(window_->LstHistory()->hasFocus());
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(ParameterForm, StaysWhileAReportRuns) {
    window_->LstHistory()->setEnabled(false);
    EXPECT_FALSE(window_->close());
    EXPECT_TRUE(gdbSystem);
}

TEST_F(ParameterForm, ScreenReadersHearWhatEachControlIs) {
    for (const QWidget* control : window_->findChildren<QWidget*>()) {
        if (!(control->focusPolicy() & Qt::TabFocus) || control->inherits("QLineEdit") ||
            control->window() != window_.get())
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        EXPECT_FALSE(control->accessibleName().isEmpty() && !(button && !button->text().isEmpty()))
            << control->objectName().toStdString() << " " << control->metaObject()->className();
    }
}

TEST_F(ParameterForm, FitsASmallScreen) {
    EXPECT_LE(window_->minimumSizeHint().width(), 640);
    window_->resize(1280, 760);
    click("OptPeriods_2");
    QApplication::processEvents();
    EXPECT_LE(widget("Frame9")->mapTo(window_.get(), QPoint(0, widget("Frame9")->height())).y(),
              widget("uctFooter1")->y())
        << "all six maps are seen without scrolling";
}

} // namespace
