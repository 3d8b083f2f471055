#include "map/windows/CallTypePie.h"

#include "map/calltypes/CallTypePicture.h"
#include "map/calltypes/PiePicture.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

CallTypePie::CallTypePie(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("fraPie"));
    setAccessibleName(PiePicture::heading());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    hide();
}

PiePicture CallTypePie::picture() const {
    return {split_.value_or(CallTypeSplit{}), QRectF(rect()), font().family()};
}

void CallTypePie::setSplit(std::optional<CallTypeSplit> split) {
    split_ = std::move(split);
    setAccessibleDescription(split_ ? picture().text() : QString());
    setVisible(split_.has_value());
    update();
}

void CallTypePie::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCallTypeCard(painter, QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    if (split_)
        picture().paint(painter);
}

bool CallTypePie::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !split_)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const auto series = picture().seriesAt(help->pos()))
        QToolTip::showText(help->globalPos(), picture().seriesText(*series), this);
    else
        QToolTip::hideText();
    return true;
}
