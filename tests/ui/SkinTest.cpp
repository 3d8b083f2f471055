#include "ui/Skin.h"
#include "core/ModDeclarations.h"
#include "ui/AppIcon.h"
#include "ui/ElidedLabel.h"
#include "ui/ElidedText.h"
#include "ui/InterfaceFont.h"
#include "ui/StyleSheet.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QHelpEvent>
#include <QRegularExpression>
#include <QToolTip>

namespace {

TEST(Skin, FillsEveryColourOfTheStyleSheet) {
    EXPECT_FALSE(styleSheet(cColours_CS()).contains(QRegularExpression("[<>]")));
}

TEST(Skin, ChangesTheRoleOfAShownLabel) {
    applySkin(*qApp);
    QLabel label("text");
    setRole(label, "hint");
    const QColor hint = label.palette().color(QPalette::WindowText);
    setRole(label, "detail");
    EXPECT_NE(label.palette().color(QPalette::WindowText), hint);
}

TEST(InterfaceFont, KeepsCalibriWhereAFileIsNoFont) {
    EXPECT_FALSE(addFontResource("/nowhere/OstelCurve_Rg.ttf"));
    gsFontName = "Calibri";
    applyInterfaceFont();
    EXPECT_EQ(QApplication::font().family(), "Calibri");
    EXPECT_EQ(QApplication::font().pointSize(), 10);
}

TEST(AppIcon, ShowsGlobeAndPinAtEverySize) {
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        SCOPED_TRACE(side);
        const QImage image = appIcon().pixmap(side, side).toImage();
        ASSERT_EQ(image.width(), side);
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "outside the globe";
        const QColor globe = image.pixelColor(side / 5, side / 2 + side / 10);
        EXPECT_GT(globe.blue(), globe.green());
        EXPECT_EQ(globe.alpha(), 255);
        int coral = 0;
        for (int y = 0; y < side / 2 + 2; ++y)
            for (int x = side / 3; x < side; ++x) {
                const QColor c = image.pixelColor(x, y);
                coral += c.red() > 200 && c.red() > c.blue() + 60;
            }
        EXPECT_GE(coral, side * side / 40);
    }
}

TEST(ElidedLabel, TellsItsWholeTextWhenItDoesNotFit) {
    ElidedLabel label;
    label.setText("A project with a name that is far too long for its place");
    label.resize(80, 24);
    label.show();
    QHelpEvent ask(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&label, &ask);
    EXPECT_EQ(QToolTip::text(), label.text());
    QToolTip::hideText();
    EXPECT_LT(label.minimumSizeHint().width(), 80);
}

TEST(ElidedText, KeepsWholeCharactersBeforeItsDots) {
    const QFontMetrics metrics{QFont()};
    const QString text = QString::fromUtf8("Cafe\u0301 in Aberystwyth");
    EXPECT_EQ(elidedText(metrics, text, metrics.horizontalAdvance(text)), text);
    EXPECT_EQ(elidedText(metrics, text, 1), "...");
    EXPECT_EQ(elidedText(metrics, "", 0), "");
    for (int width = 1; width < metrics.horizontalAdvance(text); ++width) {
        const QString cut = elidedText(metrics, text, width);
        ASSERT_TRUE(cut.endsWith("..."));
        EXPECT_TRUE(cut == "..." || metrics.horizontalAdvance(cut) <= width);
        EXPECT_NE(cut, "Cafe...") << "the accent belongs to its letter";
    }
}

} // namespace
