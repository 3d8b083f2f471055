#include "core/ModDeclarations.h"
#include "ui/AppIcon.h"
#include "ui/Skin.h"
#include "ui/modBranding.h"
#include "ui/ucWebbyBorder.h"
#include "ui/ucWebbyLink.h"
#include "ui/uctHeader.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateEdit>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>

namespace {

/// A window with one control of each sort.
struct Form {
    QWidget window;
    uctHeader* header = new uctHeader(&window);
    ucWebbyBorder* panel = new ucWebbyBorder(&window);
    QLabel* label = new QLabel("In a panel", panel);
    QPushButton* button = new QPushButton("On the window", &window);
    ucWebbyLink* link = new ucWebbyLink(panel);
    QDateEdit* date = new QDateEdit(panel);
    QTableWidget* grid = new QTableWidget(&window);
};

TEST(Branding, GivesTheFontToControlsThatHaveNoneOfTheirOwn) {
    gsFontName = "Ostel Curve";
    Form form;
    QFont bold = form.label->font();
    bold.setBold(true);
    form.label->setFont(bold);
    setFormFonts(form.window);
    EXPECT_EQ(form.label->font().family(), "Ostel Curve");
    EXPECT_TRUE(form.label->font().bold());
    EXPECT_EQ(form.button->font().family(), "Ostel Curve");
    EXPECT_EQ(form.grid->font().family(), "Ostel Curve");
    for (const QWidget* alone : {static_cast<QWidget*>(form.link), static_cast<QWidget*>(form.date),
                                 static_cast<QWidget*>(form.panel), static_cast<QWidget*>(form.header->detailLabel())})
        EXPECT_NE(alone->font().family(), "Ostel Curve") << alone->metaObject()->className();
    gsFontName = "Calibri";
}

TEST(Branding, GivesTheSkinsColoursToGrids) {
    Form form;
    form.grid->setPalette(QPalette(Qt::green));
    setFormColours(form.window);
    EXPECT_EQ(form.grid->palette().color(QPalette::Highlight), QColor(0x32, 0x00, 0x8A));
    EXPECT_EQ(form.grid->palette().color(QPalette::HighlightedText), QColor(Qt::white));
}

TEST(Branding, PutsTheIconOnWindowAndOwner) {
    QWidget owner;
    QDialog window(&owner);
    owner.setWindowIcon(QIcon());
    brandWindow(window);
    EXPECT_FALSE(window.windowIcon().isNull());
    const qint64 before = owner.windowIcon().cacheKey();
    brandWindow(window, true);
    EXPECT_NE(owner.windowIcon().cacheKey(), before);
}

TEST(AppIcon, IsPaintedAnewAtEveryScale) {
    const QImage at1 = appIcon().pixmap(QSize(40, 40), 1.0).toImage();
    const QImage at2 = appIcon().pixmap(QSize(40, 40), 2.0).toImage();
    EXPECT_EQ(at1.size(), QSize(40, 40));
    EXPECT_EQ(at2.size(), QSize(80, 80));
    EXPECT_NE(at2, at1.scaled(80, 80)) << "not blown up";
    QList<QSize> offered = appIcon().availableSizes();
    for (const int side : {16, 32, 48, 256})
        EXPECT_TRUE(offered.contains(QSize(side, side))) << side;
}

TEST(Skin, DrawsTheSignsOfMessagesApart) {
    applySkin(*qApp);
    QList<QImage> signs;
    for (const auto sign : {QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxInformation,
                            QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
        // Without colour, too.
        const QImage grey = QApplication::style()->standardIcon(sign).pixmap(32, 32).toImage().convertToFormat(
            QImage::Format_Grayscale8);
        EXPECT_FALSE(signs.contains(grey));
        signs.append(grey);
    }
}

} // namespace
