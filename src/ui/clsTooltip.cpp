#include "ui/clsTooltip.h"

#include "ui/TipBalloon.h"

#include <QCursor>
#include <QEvent>

#include <algorithm>

clsTooltip::clsTooltip(QObject* parent) : QObject(parent) {
    delay_.setSingleShot(true);
    visible_.setSingleShot(true);
    connect(&delay_, &QTimer::timeout, this, &clsTooltip::show);
    connect(&visible_, &QTimer::timeout, this, &clsTooltip::hide);
}

clsTooltip::~clsTooltip() {
    Destroy();
}

bool clsTooltip::Create(QWidget* control) {
    Destroy();
    if (!control)
        return false;
    control_ = control;
    control->installEventFilter(this);
    if (control->accessibleDescription().isEmpty())
        control->setAccessibleDescription(TipText);
    return true;
}

void clsTooltip::Destroy() {
    drop();
    shownOnce_ = false;
    if (control_)
        control_->removeEventFilter(this);
    control_.clear();
}

void clsTooltip::show() {
    if (!control_ || !control_->isVisible() || TipText.isEmpty())
        return;
    hide();
    const QRect thing(control_->mapToGlobal(QPoint(0, 0)), control_->size());
    const int mouse = std::clamp(QCursor::pos().x(), thing.left(), thing.right());
    balloon_ = new TipBalloon(*this, thing, Centered ? thing.center().x() : mouse, control_);
    balloon_->show();
    shownOnce_ = true;
    if (VisibleTime > 0)
        visible_.start(VisibleTime);
}

bool clsTooltip::mouseIsOver() const {
    return control_ && control_->rect().contains(control_->mapFromGlobal(QCursor::pos()));
}

void clsTooltip::drop() {
    delay_.stop();
    hide();
}

void clsTooltip::hide() {
    visible_.stop();
    delete balloon_;
}

bool clsTooltip::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter:
        if (!shownOnce_)
            delay_.start(std::max(DelayTime, 0));
        break;
    case QEvent::Leave:
        // Windows that come and go over the control make the mouse seem to leave and come back.
        shownOnce_ = shownOnce_ && mouseIsOver();
        if (!mouseIsOver())
            drop();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::Wheel:
    case QEvent::Hide:
        drop();
        break;
    case QEvent::ToolTip:
        return true; // one tip at a time
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
