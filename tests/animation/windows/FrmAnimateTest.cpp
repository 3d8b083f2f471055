#include "animation/windows/FrmAnimate.h"

#include "animation/windows/NumberBox.h"
#include "report/panels/DTPicker.h"
#include "tests/animation/AnimatedProject.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>

namespace {

constexpr const char* notDigits = "Invalid character entered - only numeric values may be entered. Use the Delete key "
                                  "to remove unwanted entries";

class SetUpWindow : public AnimatedProject {
protected:
    SetUpWindow() {
        project.addAllCalls();
        open();
    }
    void open() {
        window = std::make_unique<FrmAnimate>(report, periods);
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
    }

    template<typename Control>
    Control* find(const char* name) const {
        auto* control = window->findChild<Control*>(name);
        if (!control)
            throw std::runtime_error(std::string("there is no control ") + name);
        return control;
    }
    QString textOf(const char* name) const { return find<QComboBox>(name)->currentText(); }
    QLineEdit* line(const char* name) const { return find<QComboBox>(name)->lineEdit(); }
    bool visible(const char* name) const { return find<QWidget>(name)->isVisible(); }
    void choose(const char* name, const char* text) const { find<QComboBox>(name)->setCurrentText(text); }
    void setStart(const char* day, const char* time) const {
        find<DTPicker>("DTPicker1_0")->setDate(QDate::fromString(day, "dd/MM/yyyy"));
        find<DTPicker>("DTPicker1_1")->setTime(QTime::fromString(time, "HH:mm:ss"));
    }
    void click(const char* name) const {
        auto* button = find<QAbstractButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {},
                          button->inherits("QRadioButton") ? QPoint(10, button->height() / 2)
                                                           : button->rect().center());
        QApplication::processEvents();
    }
    /// What was told, and nothing more.
    Rows told() {
        QApplication::processEvents();
        return std::exchange(project.prompts.texts, {});
    }
    void chooseTwoHours() const {
        setStart("01/01/2025", "11:00:00");
        choose("CmbDataPeriod", "1hr");
        choose("CmbFrames", "2");
        choose("CmbInterval", "2.5");
    }

    ReportParameters report = [] {
        ReportParameters parameters;
        parameters.DTStart = parseDate("01/01/2025");
        parameters.DTEnd = parseDate("10/01/2025");
        return parameters;
    }();
    std::unique_ptr<FrmAnimate> window;
};

TEST_F(SetUpWindow, ApplyCountsTheFramesAndLeaves) {
    chooseTwoHours();
    click("CmdApply");
    EXPECT_EQ(told(), Rows{});
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(FrameCount, 2);
    EXPECT_EQ(FrameIntervalSeconds, 2) << "two and a half seconds, in whole ones";
    EXPECT_EQ(figure("TotalCalls1"), "3");
    open();
    EXPECT_EQ(find<DTPicker>("DTPicker1_1")->time(), QTime(11, 0)) << "the next time starts with what was chosen";
    EXPECT_EQ(textOf("CmbDataPeriod"), "1hr");
    EXPECT_EQ(textOf("CmbFrames"), "2");
    EXPECT_EQ(textOf("CmbInterval"), "2");
}

TEST_F(SetUpWindow, WhatIsMissingIsAskedForInTurn) {
    click("CmdApply");
    EXPECT_EQ(told(), Rows{"Please select a data period"});
    EXPECT_TRUE(find<QWidget>("CmbDataPeriod")->hasFocus());
    choose("CmbDataPeriod", "1hr");
    click("CmdApply");
    EXPECT_EQ(told(), Rows{"Please select number of frames"});
    choose("CmbFrames", "2");
    click("CmdApply");
    EXPECT_EQ(told(), Rows{"Please select a display interval"});
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(find<QWidget>("CmdApply")->isEnabled());
    EXPECT_FALSE(visible("Prog1"));
    setStart("31/12/2024", "00:00:00");
    click("CmdApply");
    EXPECT_EQ(told(), Rows{"Invalid start date entered"});
    EXPECT_EQ(FrameCount, 0);
}

TEST_F(SetUpWindow, TheOptionShowsTheEndOrTheLength) {
    EXPECT_TRUE(visible("CmbDataPeriod"));
    EXPECT_FALSE(visible("DTPicker1_2"));
    const QSize size = window->size();
    click("OptPeriod_0");
    EXPECT_FALSE(visible("CmbDataPeriod"));
    EXPECT_TRUE(visible("DTPicker1_2") && visible("DTPicker1_3"));
    EXPECT_EQ(window->size(), size) << "nothing jumps";
    chooseTwoHours();
    find<DTPicker>("DTPicker1_2")->setDate(QDate(2025, 1, 11));
    click("CmdApply");
    EXPECT_EQ(told(), Rows{"Invalid end date entered"});
    find<DTPicker>("DTPicker1_2")->setDate(QDate(2025, 1, 1));
    find<DTPicker>("DTPicker1_3")->setTime(QTime(12, 30));
    EXPECT_EQ(find<QLabel>("lblOutline")->text(), "45 min a frame, 01/01/2025 11:00:00 to 01/01/2025 12:30:01");
    click("CmdApply");
    EXPECT_EQ(told(), Rows{});
    EXPECT_EQ(Value(periods.MapEndTime[1]).asText(), "11:45:00");
    EXPECT_EQ(figure("TotalCalls2"), "3");
}

TEST_F(SetUpWindow, OnlyDigitsAreTypedAndLimitsHoldWhenTheBoxIsLeft) {
    line("CmbFrames")->setFocus();
    QTest::keyClicks(line("CmbFrames"), "1a");
    EXPECT_EQ(told(), Rows{notDigits});
    QTest::keyClicks(line("CmbFrames"), "1");
    EXPECT_EQ(textOf("CmbFrames"), "11");
    EXPECT_EQ(told(), Rows{});
    QTest::keyClick(line("CmbFrames"), Qt::Key_Tab);
    EXPECT_EQ(told(), Rows{"Invalid value entered - value must not exceed 10."});
    EXPECT_TRUE(find<QWidget>("CmbFrames")->hasFocus());
    QTest::keyClicks(line("CmbFrames"), "10");
    EXPECT_EQ(textOf("CmbFrames"), "10") << "what was wrong is marked, so that typing takes its place";
    QTest::keyClick(line("CmbFrames"), Qt::Key_Tab);
    QTest::keyClicks(line("CmbInterval"), "3.1");
    EXPECT_EQ(told(), Rows{notDigits});
    EXPECT_EQ(textOf("CmbInterval"), "31");
    find<QWidget>("CmbFrames")->setFocus();
    EXPECT_EQ(told(), Rows{"Invalid value entered - value must not exceed 30."});
    find<QComboBox>("CmbInterval")->setEditText("5");
    find<QComboBox>("CmbFrames")->setEditText("2.5");
    find<QWidget>("DTPicker1_0")->setFocus();
    EXPECT_EQ(told(), Rows{"Invalid character entered - only numeric values may be entered, decimal values are not "
                           "allowed."});
    QTest::keyClick(find<QWidget>("CmbDataPeriod"), '.');
    EXPECT_EQ(told().size(), 1U);
}

TEST_F(SetUpWindow, ApplyTellsAWrongNumberOnceAndCancelDoesNotAsk) {
    chooseTwoHours();
    for (const bool byKey : {false, true}) {
        line("CmbFrames")->setFocus();
        find<QComboBox>("CmbFrames")->setEditText("11");
        if (byKey)
            QTest::keyClick(line("CmbFrames"), Qt::Key_Return);
        else
            click("CmdApply");
        EXPECT_EQ(told(), Rows{"Invalid value entered - value must not exceed 10."});
        EXPECT_TRUE(find<QWidget>("CmbFrames")->hasFocus());
    }
    click("cmdCancel");
    EXPECT_EQ(told(), Rows{});
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_EQ(FrameCount, 0);
}

/// What the window looks like while its work lets events run.
class Onlooker : public Progress {
public:
    explicit Onlooker(FrmAnimate& window) : window_(window) { setProgress(this); }
    ~Onlooker() override { setProgress(nullptr); }
    void yield() override {
        auto* bar = window_.findChild<QProgressBar*>("Prog1");
        if (bar->isVisible() && (values.empty() || values.back() != bar->value()))
            values.push_back(bar->value());
        maximum = bar->maximum();
        window_.close();
        QTest::keyClick(&window_, Qt::Key_Escape);
        stayed = stayed && window_.isVisible();
        enabled = enabled || window_.findChild<QWidget*>("CmdApply")->isEnabled() ||
                  window_.findChild<QWidget*>("CmbFrames")->isEnabled();
    }

    std::vector<int> values;
    int maximum = 0;
    bool stayed = true, enabled = false;

private:
    FrmAnimate& window_;
};

TEST_F(SetUpWindow, WhileFramesAreCountedTheWindowStaysAndShowsHowFarItIs) {
    chooseTwoHours();
    Onlooker onlooker(*window);
    click("CmdApply");
    EXPECT_EQ(onlooker.values, (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(onlooker.maximum, 2);
    EXPECT_TRUE(onlooker.stayed);
    EXPECT_FALSE(onlooker.enabled);
    EXPECT_EQ(find<QLabel>("Label7")->text(), "Analysing map data for project, please wait...");
    EXPECT_FALSE(window->isVisible()) << "at last";
}

TEST_F(SetUpWindow, AnyKeyInAnyControlIsHarmless) {
    const int keys[] = {Qt::Key_Down,  Qt::Key_Up,     Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_9,
                        Qt::Key_Minus, Qt::Key_Period, Qt::Key_E,        Qt::Key_Space,  Qt::Key_Home};
    for (QWidget* control : window->findChildren<QWidget*>()) {
        if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus || control->inherits("QPushButton"))
            continue;
        control->setFocus();
        for (const int key : keys)
            QTest::keyClick(control, static_cast<Qt::Key>(key));
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }
    click("CmdApply");
    QApplication::processEvents();
    EXPECT_TRUE(window->isVisible() || FrameCount > 0);
}

} // namespace
