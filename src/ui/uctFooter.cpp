#include "ui/uctFooter.h"

#include "ui/Skin.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

uctFooter::uctFooter(QWidget* parent)
    : QWidget(parent), buttons_(new QHBoxLayout), exit_(new QPushButton(tr("E&xit"), this)) {
    buttons_->setSpacing(8);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 9, 16, 8);
    row->addLayout(buttons_);
    row->addStretch();
    row->addWidget(exit_);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void uctFooter::RegisterButton(QAbstractButton* button) {
    buttons_->addWidget(button);
}

void uctFooter::EnableButtons(bool enabled) {
    for (int i = 0; i < buttons_->count(); ++i)
        if (QWidget* button = buttons_->itemAt(i)->widget())
            button->setEnabled(enabled);
}

void uctFooter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.fillRect(0, 0, width(), 1, toColor(skinColours().Grey(3)));
}
