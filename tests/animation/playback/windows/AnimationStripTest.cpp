#include "animation/playback/windows/AnimationStrip.h"

#include "tests/animation/playback/AnimatedMap.h"
#include "ui/Skin.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QTimer>

namespace {

class AnimationStripTest : public AnimatedMap {
protected:
    AnimationStripTest() {
        applySkin(*qApp);
        strip.setMap(animatedTVRegions, 1);
        strip.resize(980, strip.sizeHint().height());
        strip.show();
        QCoreApplication::processEvents();
    }

    QPushButton* button(const char* name) { return strip.findChild<QPushButton*>(name); }
    QSlider* bar(const char* name) { return strip.findChild<QSlider*>(name); }
    QTimer* clock() { return strip.findChild<QTimer*>(); }
    void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    /// The clock beats, however long its interval is.
    void beat(int times = 1) {
        for (int i = 0; i < times; ++i) {
            QTimerEvent timeout(clock()->timerId());
            QCoreApplication::sendEvent(clock(), &timeout);
        }
    }
    static QString caption(const QPushButton* button) { return button->text().remove('&'); }

    AnimationStrip strip{playback};
};

TEST_F(AnimationStripTest, BeforeFramesAreSetUpOnlyThatAndTheSpeedCanBeUsed) {
    EXPECT_TRUE(button("CmdSetUp")->isEnabled());
    EXPECT_TRUE(bar("HScroll2")->isEnabled());
    EXPECT_EQ(bar("HScroll2")->value(), 2);
    EXPECT_FALSE(bar("HScroll1")->isEnabled());
    EXPECT_TRUE(button("CmdPause")->isHidden());
    EXPECT_TRUE(button("cmdStopAnimate")->isHidden());
    const QSignalSpy wanted(&strip, &AnimationStrip::setUpRequested);
    click("CmdSetUp");
    EXPECT_EQ(wanted.count(), 1);
}

TEST_F(AnimationStripTest, WhatCannotBeAnimatedSaysWhy) {
    setUp(3);
    strip.setMap(animatedPostCodeDistricts, 1);
    EXPECT_TRUE(button("CmdPause")->isEnabled());
    const auto allOff = [&](const QString& why) {
        for (const char* name : {"CmdSetUp", "CmdPause", "cmdStopAnimate", "HScroll1", "HScroll2"}) {
            auto* control = strip.findChild<QWidget*>(name);
            EXPECT_FALSE(control->isEnabled()) << name;
            EXPECT_EQ(control->toolTip(), why) << name;
        }
    };
    for (const long boundary : {0L, 1L, 5L}) {
        strip.setMap(boundary, 1);
        allOff("Only maps of TV regions and post code districts can be animated");
    }
    playback.stop();
    EXPECT_TRUE(strip.findChild<QLabel*>("lblFrame")->text().startsWith("Only maps of")) << "to be read at once";
    strip.setMap(animatedTVRegions, 8);
    allOff("Average calls per caller cannot be animated");
    strip.setMap(animatedTVRegions, 1);
    strip.setWorking(true);
    EXPECT_FALSE(button("CmdSetUp")->isEnabled());
    strip.setWorking(false);
    EXPECT_TRUE(button("CmdSetUp")->isEnabled());
}

TEST_F(AnimationStripTest, PlaysPausesStepsAndStops) {
    const QSignalSpy changes(&strip, &AnimationStrip::playbackChanged);
    setUp(3);
    EXPECT_EQ(caption(button("CmdPause")), "Animate");
    EXPECT_TRUE(button("CmdPause")->isVisible());
    EXPECT_EQ(bar("HScroll1")->maximum(), 2);
    EXPECT_EQ(bar("HScroll2")->value(), 3) << "as it was set up";
    EXPECT_FALSE(clock()->isActive());

    click("CmdPause");
    EXPECT_EQ(caption(button("CmdPause")), "Pause");
    EXPECT_TRUE(clock()->isActive());
    EXPECT_EQ(clock()->interval(), 3000);
    EXPECT_FALSE(button("CmdSetUp")->isEnabled());
    beat(6); // three to settle, three frames
    EXPECT_EQ(bar("HScroll1")->value(), 2);
    EXPECT_EQ(form.CurrentFrame, 1);

    click("CmdPause");
    EXPECT_EQ(caption(button("CmdPause")), "Animate");
    EXPECT_FALSE(clock()->isActive());
    EXPECT_EQ(bar("HScroll1")->value(), 2) << "the last frame, though the next one is the first";
    bar("HScroll1")->setFocus();
    QTest::keyClick(bar("HScroll1"), Qt::Key_Left);
    EXPECT_EQ(shown(), "200");
    EXPECT_EQ(strip.findChild<QLabel*>("lblFrame")->text(), "2 of 3: 02/01/2025 01:00 to 02:00");

    const auto before = changes.count();
    click("cmdStopAnimate");
    EXPECT_GT(changes.count(), before);
    EXPECT_EQ(shown(), "900");
    EXPECT_TRUE(button("CmdPause")->isHidden() && button("cmdStopAnimate")->isHidden());
    EXPECT_FALSE(bar("HScroll1")->isEnabled());
    EXPECT_TRUE(button("CmdSetUp")->isEnabled());
}

TEST_F(AnimationStripTest, TheSpeedCanBeChangedDuringPlay) {
    setUp(3);
    click("CmdPause");
    bar("HScroll2")->setValue(-3);
    EXPECT_EQ(clock()->interval(), 1000) << "one second at its lowest";
    EXPECT_EQ(FrameIntervalSeconds, 1);
    EXPECT_EQ(strip.findChild<QLabel*>("Label4")->text(), "1 s");
    EXPECT_TRUE(clock()->isActive());
    bar("HScroll2")->setValue(30);
    EXPECT_EQ(clock()->interval(), 30000);
}

TEST_F(AnimationStripTest, TheClockPlaysByItself) {
    play(2);
    bar("HScroll2")->setValue(1);
    clock()->start(1); // the beats of a real clock, faster
    builds.clear();
    EXPECT_TRUE(QTest::qWaitFor([&] { return builds.size() >= 4; }, 20'000));
    EXPECT_EQ(builds[0], "TblAnimatedTV1/1/100");
    EXPECT_EQ(builds[3], "TblAnimatedTV1/2/200");
}

TEST_F(AnimationStripTest, BeatsAreDroppedOutOfSightAndBelowAModalWindow) {
    play(3);
    QDialog above;
    above.setModal(true);
    above.show();
    beat(3);
    EXPECT_TRUE(builds.empty());
    above.close();
    beat();
    EXPECT_EQ(builds.size(), 1U);
    strip.hide();
    beat(3);
    EXPECT_EQ(builds.size(), 1U);
}

TEST_F(AnimationStripTest, APauseIsTakenWhileAFrameIsBuilt) {
    play(4);
    yields.next = [&] {
        yields.next = [&] {
            strip.setWorking(true); // the window may think that it works
            click("CmdPause");
            strip.setWorking(false);
        };
    };
    beat();
    EXPECT_EQ(playback.state(), Playback::State::Paused);
    EXPECT_FALSE(clock()->isActive());
    EXPECT_EQ(bar("HScroll1")->value(), 0);
}

TEST_F(AnimationStripTest, TheKeyboardStaysOnTheStrip) {
    strip.activateWindow();
    button("CmdSetUp")->setFocus();
    setUp(3);
    EXPECT_EQ(strip.focusWidget(), button("CmdPause"));
    QTest::keyClick(button("CmdPause"), Qt::Key_Space);
    EXPECT_EQ(playback.state(), Playback::State::Playing);
    button("cmdStopAnimate")->setFocus();
    QTest::keyClick(button("cmdStopAnimate"), Qt::Key_Space);
    EXPECT_EQ(strip.focusWidget(), button("CmdSetUp"));
}

TEST_F(AnimationStripTest, TheRowFitsASmallWindowAndDoesNotJump) {
    const int height = strip.sizeHint().height(), barWidth = bar("HScroll1")->width();
    setUp(10);
    QCoreApplication::processEvents();
    EXPECT_EQ(strip.sizeHint().height(), height);
    EXPECT_EQ(bar("HScroll1")->width(), barWidth);
    const int width = button("CmdPause")->width();
    click("CmdPause");
    QCoreApplication::processEvents();
    EXPECT_EQ(button("CmdPause")->width(), width);

    strip.resize(strip.minimumSizeHint().width(), height);
    QCoreApplication::processEvents();
    int end = 0;
    for (const char* name : {"CmdSetUp", "HScroll1", "lblFrame", "CmdPause", "cmdStopAnimate", "HScroll2"}) {
        const auto* control = strip.findChild<QWidget*>(name);
        EXPECT_GE(control->x(), end) << name;
        EXPECT_GE(control->width(), control->minimumSizeHint().width()) << name;
        end = control->x() + control->width();
    }
    EXPECT_LE(end, strip.width());
}

TEST_F(AnimationStripTest, AFrameThatPassesMidnightNamesBothDays) {
    frames.MapEndDate[2] = parseDate("03/01/2025");
    setUp(3);
    playback.showFrame(2);
    EXPECT_EQ(strip.findChild<QLabel*>("lblFrame")->text(), "2 of 3: 02/01/2025 01:00 to 03/01/2025 02:00");
}

} // namespace
