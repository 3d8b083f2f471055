#include "ui/FrmMessage.h"
#include "tests/ui/ModalActions.h"
#include "ui/Skin.h"
#include "ui/WindowProgress.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>

#include <stdexcept>

namespace {

QString taskOf(const FrmMessage& window) {
    return window.findChild<QLabel*>("lblTask")->text();
}

TEST(FrmMessageWindow, ShowsTheProgressOfItsWorkAndClosesItself) {
    applySkin(*qApp);
    WindowProgress progressOnScreen;
    progress().setTask("too early");
    bool worked = false;
    FrmMessage* place = nullptr;
    FrmMessage window([&] {
        worked = true;
        EXPECT_EQ(FrmMessage::shown(), place);
        EXPECT_TRUE(place->isVisible());
        EXPECT_TRUE(place->Prog1()->isVisible());
        EXPECT_EQ(place->findChild<QLabel*>("Label1")->font().pointSize(), 16);
        progress().setTask("Updating TV Areas...");
        progress().setMessageBar(13, 4);
        progress().yield();
        EXPECT_EQ(taskOf(*place), "Updating TV Areas...");
        EXPECT_EQ(place->Prog1()->maximum(), 13);
        EXPECT_EQ(place->Prog1()->value(), 4);
        QTest::keyClick(place, Qt::Key_Escape);
        place->close();
        EXPECT_TRUE(place->isVisible()) << "the user cannot close it";
    });
    place = &window;
    onNextModal<FrmMessage>([&](FrmMessage& shown) {
        EXPECT_FALSE(worked) << "the window comes up first";
        EXPECT_FALSE(shown.Prog1()->isVisible());
        EXPECT_EQ(taskOf(shown), "");
        QTest::keyClick(&shown, Qt::Key_Escape);
        EXPECT_TRUE(shown.isVisible());
    });
    window.run();
    EXPECT_TRUE(worked);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(FrmMessage::shown(), nullptr);
    progress().setTask("too late"); // goes nowhere
}

TEST(FrmMessageWindow, ThrowsWhatItsWorkThrew) {
    FrmMessage window([] { throw std::runtime_error("no such table"); });
    EXPECT_THROW(window.run(), std::runtime_error);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(FrmMessage::shown(), nullptr);
}

TEST(WindowProgress, ShowsReportsOnTheirBar) {
    QLabel text;
    QProgressBar bar;
    WindowProgress progressOnScreen;
    progress().setReportBar(true, 5, 1); // nowhere yet
    progressOnScreen.showReportOn(&text, &bar);
    progress().setReportBar(true, 5, 3);
    EXPECT_TRUE(text.isVisible());
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.maximum(), 5);
    EXPECT_EQ(bar.value(), 3);
    progress().setReportBar(true, 0, 9);
    EXPECT_EQ(bar.maximum(), 1) << "not an endless bar";
    progress().setReportBar(false, 5, 5);
    EXPECT_FALSE(text.isVisible());
    EXPECT_FALSE(bar.isVisible());
}

TEST(WindowProgress, ReadingTakesTheBarOfTheWorkAndGivesItBack) {
    QLabel text;
    QProgressBar bar;
    WindowProgress progressOnScreen;
    progress().setReading(0.5); // nowhere yet
    progressOnScreen.showReportOn(&text, &bar);
    progress().setReading(0.25);
    EXPECT_TRUE(text.isVisible());
    EXPECT_EQ(4 * bar.value(), bar.maximum());
    progress().setReading(1);
    EXPECT_FALSE(text.isVisible());
    EXPECT_FALSE(bar.isVisible());

    progress().setReportBar(true, 5, 3);
    progress().setReading(0.5);
    progress().setReading(1);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.maximum(), 5);
    EXPECT_EQ(bar.value(), 3);
    progress().setReading(1); // nothing was read: the bar stays as it is
    EXPECT_EQ(bar.value(), 3);
}

TEST(WindowProgress, TakesTheHourglassAwayWhenAllHave) {
    {
        WindowProgress progressOnScreen;
        progress().setHourglass(false);
        EXPECT_FALSE(QApplication::overrideCursor());
        {
            const Hourglass outer;
            {
                const Hourglass inner;
                ASSERT_TRUE(QApplication::overrideCursor());
                EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
            }
            EXPECT_TRUE(QApplication::overrideCursor());
        }
        EXPECT_FALSE(QApplication::overrideCursor());
        progress().setHourglass(true);
    }
    EXPECT_FALSE(QApplication::overrideCursor()) << "nothing stays behind";
}

TEST(WindowProgress, LetsClicksOnDisabledWindowsComeToNothing) {
    WindowProgress progressOnScreen;
    QPushButton button("Map");
    button.show();
    QSignalSpy clicks(&button, &QPushButton::clicked);
    const auto post = [&](QEvent::Type type, Qt::MouseButtons down) {
        const QPointF place(5, 5);
        QApplication::postEvent(
            &button, new QMouseEvent(type, place, button.mapToGlobal(place), Qt::LeftButton, down, Qt::NoModifier));
    };
    const auto clickDuringYield = [&] {
        post(QEvent::MouseButtonPress, Qt::LeftButton);
        post(QEvent::MouseButtonRelease, Qt::NoButton);
        progress().setTask("now");
        progress().yield();
    };
    button.setEnabled(false);
    clickDuringYield();
    button.setEnabled(true);
    QApplication::processEvents();
    EXPECT_EQ(clicks.count(), 0) << "not kept for later either";
    clickDuringYield();
    EXPECT_EQ(clicks.count(), 1) << "a window that is not disabled is alive";
}

} // namespace
