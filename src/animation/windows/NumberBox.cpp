#include "animation/windows/NumberBox.h"

#include "animation/AnimationTyping.h"
#include "core/Prompts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

/// Whether a key puts in something else than digits; with Ctrl it commands, with Ctrl and Alt it is one of some
/// keyboards. The user is told.
bool refuses(const QKeyEvent& key) {
    const bool command =
        (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
        (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != (Qt::ControlModifier | Qt::AltModifier);
    const QString text = key.text();
    if (command || text.isEmpty() || !text.front().isPrint() || (text.front() >= u'0' && text.front() <= u'9'))
        return false;
    showMessage(notNumeric);
    return true;
}

} // namespace

NumberBox::NumberBox(const QString& name, const QString& spokenName, FaultOf faultOf, QWidget* parent)
    : QComboBox(parent), faultOf_(std::move(faultOf)) {
    setObjectName(name);
    setAccessibleName(spokenName);
    setFocusPolicy(Qt::StrongFocus);
    setInsertPolicy(QComboBox::NoInsert);
    setEditable(true);
    setCompleter(nullptr);
    lineEdit()->installEventFilter(this);
}

void NumberBox::keyPressEvent(QKeyEvent* event) {
    if (refuses(*event))
        event->accept();
    else
        QComboBox::keyPressEvent(event);
}

/// Keys that are sent to the text itself.
bool NumberBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lineEdit() && event->type() == QEvent::KeyPress && refuses(*static_cast<QKeyEvent*>(event)))
        return true;
    return QComboBox::eventFilter(watched, event);
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    const bool stays = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (stays || !isEnabled() || waysOut_.contains(QApplication::focusWidget()))
        return;
    QMetaObject::invokeMethod(this, &NumberBox::tellFault, Qt::QueuedConnection);
}

/// Once the focus has arrived elsewhere.
void NumberBox::tellFault() {
    const std::string fault = faultOf_(text());
    if (fault.empty() || hasFocus() || !isEnabled() || !isVisible())
        return;
    showMessage(fault);
    setFocus(Qt::OtherFocusReason);
    lineEdit()->selectAll();
}
