#include "ui/ElidedLabel.h"

#include "ui/ElidedText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setMinimumWidth(48);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {48, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()),
                     elidedText(fontMetrics(), text(), contentsRect().width()));
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    update();
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}
