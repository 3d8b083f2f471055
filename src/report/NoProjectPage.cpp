#include "report/NoProjectPage.h"

#include "ui/Globe.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace {

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
    column->setSpacing(12);
    addPicture(*column);
    auto* headline = new QLabel(tr("Open a project to begin"), this);
    headline->setObjectName(QStringLiteral("lblNoProject"));
    headline->setProperty("role", "headline");
    headline->setAlignment(Qt::AlignCenter);
    headline->setWordWrap(true);
    column->addWidget(headline);
    column->addSpacing(4);
    addStep(*column, 1, tr("Choose a recent project at the left, or “More files ..” to look for one."));
    addStep(*column, 2, tr("Set the dates, the hours and the numbers that the report shall cover."));
    addStep(*column, 3, tr("Press a kind of area and see on the map where the calls come from."));

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

void NoProjectPage::addStep(QVBoxLayout& column, int number, const QString& text) {
    auto* badge = new QLabel(QString::number(number), this);
    badge->setProperty("role", "step");
    badge->setAlignment(Qt::AlignCenter);
    badge->setFixedSize(24, 24);
    auto* words = new QLabel(text, this);
    words->setWordWrap(true);
    words->setMaximumWidth(440);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addStretch(1);
    row->addWidget(badge, 0, Qt::AlignTop);
    row->addWidget(words, 100);
    row->addStretch(1);
    column.addLayout(row);
}
