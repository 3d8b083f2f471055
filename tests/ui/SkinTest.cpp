#include "ui/Skin.h"
#include "core/ModDeclarations.h"
#include "ui/AppIcon.h"
#include "ui/ElidedLabel.h"
#include "ui/InterfaceFont.h"
#include "ui/StyleSheet.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QHelpEvent>
#include <QRegularExpression>
#include <QToolTip>

#include <cmath>

namespace {

double luminance(const QColor& colour) {
    const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double la = luminance(a) + 0.05, lb = luminance(b) + 0.05;
    return std::max(la, lb) / std::min(la, lb);
}

TEST(Skin, FillsEveryColourOfTheStyleSheet) {
    EXPECT_FALSE(styleSheet(cColours_CS()).contains(QRegularExpression("[<>]")));
}

TEST(Skin, KeepsTextReadable) {
    applySkin(*qApp);
    const QPalette palette = QApplication::palette();
    EXPECT_GE(contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), 4.5);
    EXPECT_GE(contrast(palette.color(QPalette::Text), palette.color(QPalette::Base)), 4.5);
    EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
    EXPECT_GE(contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)), 4.5);
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

} // namespace
