#include "report/NoProjectPage.h"

#include "report/panels/ReportButtons.h"
#include "ui/Globe.h"
#include "ui/ucWebbyLink.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int badgeSide = 24;
constexpr int gap = 12;

class GlobePicture : public QWidget {
public:
    explicit GlobePicture(QWidget* parent) : QWidget(parent) {
        setMinimumHeight(64);
        setMaximumHeight(160);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintGlobe(painter, rect(), GlobeStyle::Pale);
    }
};

} // namespace

NoProjectPage::NoProjectPage(QWidget* parent) : ucWebbyBorder(parent) {
    auto* column = new QVBoxLayout;
    column->setSpacing(gap);
    addPicture(*column);
    auto* headline = new QLabel(tr("Open a project to begin"), this);
    headline->setObjectName(QStringLiteral("lblNoProject"));
    headline->setProperty("role", "headline");
    headline->setAlignment(Qt::AlignCenter);
    headline->setWordWrap(true);
    column->addWidget(headline);
    column->addSpacing(4);
    addSteps(*column);
    addButton(*column);

    auto* middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addLayout(column, 6);
    middle->addStretch(1);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(16, 24, 16, 24);
    page->addStretch(2);
    page->addLayout(middle, 6);
    page->addStretch(3);
}

void NoProjectPage::addPicture(QVBoxLayout& column) {
    column.addWidget(new GlobePicture(this), 1);
    column.addSpacing(4);
}

/// As wide as the longest step, so that they stand in the middle; narrower windows wrap them.
void NoProjectPage::addSteps(QVBoxLayout& column) {
    auto* steps = new QWidget(this);
    auto* grid = new QGridLayout(steps);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(gap);
    grid->setColumnStretch(1, 1);
    addStep(*grid, tr("Choose a recent project at the left, or “More files ..” to look for one."));
    addStep(*grid, tr("Set the dates, the hours and the numbers that the report shall cover."));
    addStep(*grid, tr("Press a kind of area and see on the map where the calls come from."));
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(steps, 1000);
    row->addStretch(1);
    column.addLayout(row);
}

void NoProjectPage::addButton(QVBoxLayout& column) {
    ucWebbyLink* button = ReportButtons::makeButton(ReportButtons::chooseProject, tr("Choo&se a project"), this);
    button->setKind(ucWebbyLink::Kind::Primary);
    connect(button, &ucWebbyLink::clicked, this, [this] { emit reportRequested(ReportButtons::chooseProject); });
    column.addSpacing(8);
    column.addWidget(button, 0, Qt::AlignHCenter);
}

void NoProjectPage::addStep(QGridLayout& grid, const QString& text) {
    QWidget* steps = grid.parentWidget();
    const int row = grid.rowCount();
    auto* badge = new QLabel(QString::number(row), steps);
    badge->setProperty("role", "step");
    badge->setAlignment(Qt::AlignCenter);
    badge->setFixedSize(badgeSide, badgeSide);
    auto* words = new QLabel(text, steps);
    words->setWordWrap(true);
    const int whole = words->fontMetrics().horizontalAdvance(text) + badgeSide + 2 * gap;
    steps->setMaximumWidth(row == 1 ? whole : std::max(whole, steps->maximumWidth()));
    grid.addWidget(badge, row, 0, Qt::AlignTop);
    grid.addWidget(words, row, 1, Qt::AlignVCenter);
}
