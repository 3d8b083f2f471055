#include "tests/ui/ModalActions.h"
#include "ui/Skin.h"
#include "ui/clsTooltip.h"
#include "ui/ucWebbyBorder.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctFooter.h"
#include "ui/uctHeader.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolTip>
#include <QVBoxLayout>

namespace {

TEST(WebbyLink, IsClickedByMouseKeysAndMnemonic) {
    QWidget window;
    QVBoxLayout column(&window);
    ucWebbyLink link, other;
    EXPECT_EQ(link.Caption(), "Unknown");
    link.setCaption("&Population figures");
    other.setCaption("Save guide");
    column.addWidget(&link);
    column.addWidget(&other);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QSignalSpy clicks(&link, &QAbstractButton::clicked);
    QTest::mouseClick(&link, Qt::LeftButton);
    QTest::keyClick(&link, Qt::Key_Return);
    QTest::keyClick(&link, Qt::Key_Enter);
    QTest::keyClick(&link, Qt::Key_Space);
    QTest::keyClick(&other, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicks.count() == 5; }));
    link.setEnabled(false);
    QTest::mouseClick(&link, Qt::LeftButton);
    QTest::keyClick(&link, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 5) << "disabled";
}

TEST(WebbyLink, IsAButtonForReadersOfTheScreen) {
    ucWebbyLink link("&Save guide", ucWebbyLink::Kind::Link);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&link);
    ASSERT_TRUE(told);
    EXPECT_EQ(told->role(), QAccessible::Button);
    EXPECT_EQ(told->text(QAccessible::Name), "Save guide");
}

TEST(WebbyLink, FollowsItsCaption) {
    ucWebbyLink link;
    link.setCaption("Help");
    const int narrow = link.width();
    link.setCaption("Population && figures");
    EXPECT_GT(link.width(), narrow);
    EXPECT_EQ(link.TxtWidth(), link.fontMetrics().horizontalAdvance("Population & figures"));
    const QSize before = link.size();
    link.setAutosize(false);
    link.setCaption("Help");
    EXPECT_EQ(link.size(), before) << "the size is the window's affair";

    link.setCaption("A caption that does not go on one line of such a small width");
    link.setWordWrap(true);
    EXPECT_GT(link.heightForWidth(80), 3 * link.fontMetrics().height());
    EXPECT_LT(link.heightForWidth(2000), 2 * link.fontMetrics().height());
}

TEST(WebbyLink, TellsACaptionThatIsCutShort) {
    ucWebbyLink link;
    link.setAutosize(false);
    link.setCaption("&Create multiple map views using the settings selected in this panel");
    link.resize(120, 30);
    link.show();
    QHelpEvent ask(QEvent::ToolTip, QPoint(5, 5), link.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&link, &ask);
    EXPECT_EQ(QToolTip::text(), "Create multiple map views using the settings selected in this panel");
    QToolTip::hideText();
}

TEST(WebbyBorder, GivesWhatItHoldsTheRoomInside) {
    ucWebbyBorder panel;
    panel.resize(200, 100);
    panel.setBorderWidth(3);
    EXPECT_EQ(panel.WidthContainer(), 194);
    EXPECT_EQ(panel.HeightContainer(), 94);
    panel.setCaption("Period");
    panel.setShowParamTab(true);
    const int width = panel.WidthContainer(), height = panel.HeightContainer();
    EXPECT_LT(width, 194);
    EXPECT_LT(height, 94 - panel.fontMetrics().height());
    QVBoxLayout column(&panel);
    column.setContentsMargins(0, 0, 0, 0);
    QLabel content;
    column.addWidget(&content);
    panel.show();
    EXPECT_EQ(content.size(), QSize(width, height));
    panel.setCaption("");
    panel.setBorderWidth(-2);
    EXPECT_EQ(panel.HeightContainer(), 100);
}

TEST(WebbyBorder, PaintsFillLineTabAndCorners) {
    ucWebbyBorder panel;
    panel.resize(120, 60);
    panel.setFillColour(Qt::yellow);
    panel.setBorderColour(Qt::blue);
    panel.setBorderWidth(4);
    panel.setCornerDepth(12);
    panel.setTransparentColour(Qt::green);
    panel.setTransparency(false);
    panel.setShowParamTab(true);
    panel.setParamTabColor(Qt::red);
    const QImage image = panel.grab().toImage();
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::green)) << "outside the corner";
    EXPECT_EQ(image.pixelColor(60, 1), QColor(Qt::blue)) << "line";
    EXPECT_EQ(image.pixelColor(6, 30), QColor(Qt::red)) << "tab";
    EXPECT_EQ(image.pixelColor(60, 30), QColor(Qt::yellow)) << "inside";
}

TEST(StoredProperties, KeepTheNamesOfFormData) {
    ucWebbyBorder panel;
    readProperties(panel, ucWebbyBorder::storedProperties(),
                   {{"ForeColour", QColor(Qt::red)},
                    {"DrawWidth", 3},
                    {"Backcolour", QColor(Qt::green)},
                    {"BorderWidth", 7},
                    {"Caption", "Period"}});
    EXPECT_EQ(panel.BorderColour(), QColor(Qt::red));
    EXPECT_EQ(panel.BorderWidth(), 3) << "BorderWidth is not a stored name";
    EXPECT_EQ(panel.TransparentColour(), QColor(Qt::green));
    EXPECT_EQ(panel.CornerDepth(), 8) << "not stored: its default";

    ucWebbyLink link, copy;
    link.setCaption("Help");
    link.setColourHighlight(Qt::red);
    link.setAlignment(Qt::AlignLeft);
    link.setWordWrap(true);
    const QVariantMap bag = writeProperties(link, ucWebbyLink::storedProperties());
    EXPECT_EQ(bag.keys(), (QStringList{"Alignment", "Autosize", "BackColour", "Caption", "Colour", "ColourHi",
                                       "Enabled", "Font", "Wrap"}));
    readProperties(copy, ucWebbyLink::storedProperties(), bag);
    EXPECT_EQ(writeProperties(copy, ucWebbyLink::storedProperties()), bag);
}

TEST(Header, ShowsTitleAndDetailWholeOrElided) {
    uctHeader header;
    header.setTitle("Callscope Mapping");
    header.setDetail("March");
    header.show();
    EXPECT_EQ(header.findChild<QLabel*>("lblTitle")->text(), "Callscope Mapping");
    EXPECT_TRUE(header.sloganLabel()->isVisible());
    const int tall = header.sizeHint().height();
    header.setHeaderType(uctHeader::Style::Prompt);
    EXPECT_FALSE(header.sloganLabel()->isVisible());
    EXPECT_LT(header.sizeHint().height(), tall);
    header.setTitle(QString(300, 'W'));
    EXPECT_LT(header.minimumSizeHint().width(), 400) << "a long title does not widen the window";
}

class Footer : public testing::Test {
protected:
    void SetUp() override {
        footer_.resize(900, 50);
        footer_.show();
    }
    uctFooter footer_;
};

TEST_F(Footer, LaysButtonsOutInTheOrderOfRegistering) {
    EXPECT_EQ(footer_.ButtonPanelWidth(), 0);
    ucWebbyLink view("View Map Data", ucWebbyLink::Kind::Link), excel("Excel", ucWebbyLink::Kind::Link);
    footer_.RegisterButton(&view);
    const int one = footer_.ButtonPanelWidth();
    footer_.RegisterButton(&excel);
    footer_.RegisterButton(&view);
    footer_.RegisterButton(nullptr);
    EXPECT_EQ(footer_.ButtonPanelWidth(), one + 8 + excel.sizeHint().width());
    QTest::qWait(1);
    const auto left = [&](QWidget& button) { return button.mapTo(&footer_, QPoint(0, 0)).x(); };
    EXPECT_LT(left(view), left(excel));
    EXPECT_LT(left(excel), left(*footer_.exitButton()));
    EXPECT_GT(left(view), 450) << "at the right";
    excel.hide();
    EXPECT_EQ(footer_.ButtonPanelWidth(), one);

    footer_.EnableButtons(false);
    EXPECT_FALSE(view.isEnabled());
    EXPECT_TRUE(footer_.ExitEnabled());
    footer_.EnableButtons(true);
    EXPECT_TRUE(view.isEnabled());
}

TEST_F(Footer, CutsDetailsShortThatHaveNoRoom) {
    EXPECT_FALSE(footer_.DetailVisible());
    const QString longDetail = "Inbound number 08001234567, answered at every answer point of the customer, all days";
    footer_.SetReportDetails({"From 01/03/2025 to 31/03/2025", longDetail, " ", "All destinations"});
    QTest::qWait(1);
    EXPECT_TRUE(footer_.DetailVisible());
    EXPECT_EQ(footer_.DetailCount(), 3) << "blank ones are left out";
    EXPECT_EQ(footer_.shownDetails()[1], longDetail);
    footer_.resize(420, 50);
    const QString cut = footer_.shownDetails()[1];
    EXPECT_TRUE(cut.endsWith("...")) << cut.toStdString();
    EXPECT_TRUE(longDetail.startsWith(cut.chopped(3)));
    footer_.resize(130, 50);
    EXPECT_FALSE(footer_.DetailVisible()) << "buttons come first";

    footer_.resize(900, 50);
    EXPECT_TRUE(footer_.DetailVisible());
    footer_.RemoveDetails(1);
    EXPECT_EQ(footer_.shownDetails(), (QStringList{"From 01/03/2025 to 31/03/2025", "All destinations"}));
    footer_.RemoveDetails(1, 5);
    footer_.RemoveDetails(-1);
    footer_.RemoveDetails(9);
    EXPECT_EQ(footer_.DetailCount(), 1);
    footer_.ClearDetails();
    EXPECT_FALSE(footer_.DetailVisible());
}

TEST_F(Footer, HasAnExitAndAHelpButton) {
    QSignalSpy exits(&footer_, &uctFooter::exitClicked), helps(&footer_, &uctFooter::helpClicked);
    EXPECT_FALSE(footer_.HelpVisible());
    footer_.setHelpVisible(true);
    footer_.setExitButtonText("&Close");
    footer_.setExitToolTipText("Close the program");
    EXPECT_EQ(footer_.exitButton()->text(), "&Close");
    EXPECT_EQ(footer_.exitButton()->toolTip(), "Close the program");
    QTest::mouseClick(footer_.exitButton(), Qt::LeftButton);
    QTest::mouseClick(footer_.helpButton(), Qt::LeftButton);
    footer_.Button_Exit();
    EXPECT_EQ(exits.count(), 2);
    EXPECT_EQ(helps.count(), 1);
    footer_.setExitEnabled(false);
    footer_.Button_Exit();
    footer_.setExitEnabled(true);
    footer_.setEnabled(false);
    EXPECT_TRUE(footer_.ExitEnabled()) << "its own state, for when the footer comes back";
    footer_.Button_Exit();
    EXPECT_EQ(exits.count(), 2);
    footer_.setExitButtonVisible(false);
    EXPECT_FALSE(footer_.exitButton()->isVisible());
}

/// Puts the mouse on the control or far away from it, and tells the control, which some platforms do by themselves.
void bringMouse(QWidget& control, bool over) {
    QCursor::setPos(over ? control.mapToGlobal(control.rect().center()) : QPoint(1, 1));
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&control, over ? &enter : &leave);
    QTest::qWait(5);
}

TEST(Tooltip, ComesWithTheMouseAndGoesWithIt) {
    QPushButton control("Reset");
    control.move(200, 200);
    control.show();
    clsTooltip tip;
    EXPECT_FALSE(tip.Create(nullptr));
    tip.Title = "Reset";
    tip.TipText = "Puts all parameters back";
    tip.Centered = true;
    tip.DelayTime = 0;
    ASSERT_TRUE(tip.Create(&control));
    EXPECT_EQ(control.accessibleDescription(), "Puts all parameters back");
    const auto bring = [&](bool over) { bringMouse(control, over); };
    bring(true);
    ASSERT_TRUE(tip.balloon());
    EXPECT_TRUE(tip.balloon()->isVisible());
    EXPECT_FALSE(tip.balloon()->geometry().intersects(control.geometry())) << "the control stays uncovered";
    bring(false);
    EXPECT_FALSE(tip.balloon());
    bring(true);
    QTest::mouseClick(&control, Qt::LeftButton);
    EXPECT_FALSE(tip.balloon());
    bring(false);
    tip.VisibleTime = 1;
    bring(true);
    QTest::qWait(30);
    EXPECT_FALSE(tip.balloon()) << "its time is over";
    bring(false);
    tip.Destroy();
    bring(true);
    EXPECT_FALSE(tip.balloon());
}

TEST(Tooltip, OutlivesItsControl) {
    clsTooltip tip;
    tip.TipText = "text";
    tip.DelayTime = 0;
    {
        QPushButton control("Reset");
        control.move(200, 200);
        control.show();
        tip.Create(&control);
        bringMouse(control, true);
        EXPECT_TRUE(tip.balloon());
    }
    EXPECT_FALSE(tip.balloon());
    tip.Destroy();
}

} // namespace
