#include "map/windows/ExchangeList.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

ExchangeList::ExchangeList(const std::vector<std::string>& names, QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformItemSizes(true);
    for (const std::string& name : names)
        addItem(QString::fromStdString(name));
    auto* copyAction = new QAction(tr("Copy"), this);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &ExchangeList::copy);
    addAction(copyAction);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ExchangeList::show(const QString& text) {
    for (int row = 0; row < count(); ++row)
        item(row)->setHidden(!item(row)->text().contains(text, Qt::CaseInsensitive));
}

void ExchangeList::copy() const {
    QStringList chosen, shown;
    for (int row = 0; row < count(); ++row) {
        if (item(row)->isHidden())
            continue;
        shown << item(row)->text();
        if (item(row)->isSelected())
            chosen << item(row)->text();
    }
    QGuiApplication::clipboard()->setText((chosen.isEmpty() ? shown : chosen).join('\n'));
}

void ExchangeList::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copy();
    else
        QListWidget::keyPressEvent(event);
}
