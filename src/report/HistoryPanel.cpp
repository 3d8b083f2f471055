#include "report/HistoryPanel.h"

#include "core/CallHistory.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QStyle>
#include <QVBoxLayout>

HistoryPanel::HistoryPanel(QWidget* parent) : ucWebbyBorder(parent), LstHistory(new QListWidget(this)) {
    LstHistory->setObjectName(QStringLiteral("LstHistory"));
    LstHistory->setAccessibleName(tr("Recent projects"));
    LstHistory->setTextElideMode(Qt::ElideMiddle);
    LstHistory->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    LstHistory->setFrameShape(QFrame::NoFrame);
    LstHistory->setUniformItemSizes(true);
    addHeading();
    layout()->addWidget(LstHistory);

    connect(LstHistory, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { emit rowChosen(LstHistory->row(item)); });
    LstHistory->installEventFilter(this);
}

/// Return and Enter choose a row, on every platform once.
bool HistoryPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == LstHistory && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && LstHistory->currentRow() >= 0) {
            emit rowChosen(LstHistory->currentRow());
            return true;
        }
    }
    return ucWebbyBorder::eventFilter(watched, event);
}

void HistoryPanel::addHeading() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 12, 8, 8);
    column->setSpacing(4);
    auto* heading = new QLabel(tr("Pro&jects"), this);
    heading->setProperty("role", "section");
    heading->setContentsMargins(12, 0, 0, 4);
    heading->setBuddy(LstHistory);
    column->addWidget(heading);
}

void HistoryPanel::showRows(const std::vector<std::string>& rows) {
    LstHistory->clear();
    for (const std::string& row : rows) {
        auto* item = new QListWidgetItem(QString::fromStdString(CallHistory::shortened(row)), LstHistory);
        if (row == CallHistory::moreFiles) {
            item->setIcon(style()->standardIcon(QStyle::SP_DirOpenIcon));
            item->setToolTip(tr("Look for a project file"));
        } else {
            item->setToolTip(QString::fromStdString(row));
        }
    }
}
