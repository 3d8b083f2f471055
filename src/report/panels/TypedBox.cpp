#include "report/panels/TypedBox.h"

#include "core/Prompts.h"
#include "report/form/Typing.h"

#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>

TypedBox::TypedBox(const QString& name, const QString& spokenName, QWidget* parent)
    : ChoiceBox(name, spokenName, parent) {
    setEditable(true);
    setCompleter(nullptr);
    lineEdit()->installEventFilter(this);
}

void TypedBox::keyPressEvent(QKeyEvent* event) {
    if (handleKey(*event))
        event->accept();
    else
        ChoiceBox::keyPressEvent(event);
}

/// Keys that are sent to the text itself.
bool TypedBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lineEdit() && event->type() == QEvent::KeyPress && handleKey(*static_cast<QKeyEvent*>(event)))
        return true;
    return ChoiceBox::eventFilter(watched, event);
}

void TypedBox::focusOutEvent(QFocusEvent* event) {
    ChoiceBox::focusOutEvent(event);
    const bool stays = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (stays || !isStanding() || !isEnabled() || holdsRow() || waysOut_.contains(QApplication::focusWidget()))
        return;
    QMetaObject::invokeMethod(this, &TypedBox::leftWithoutRow, Qt::QueuedConnection);
}

InboundNumberBox::InboundNumberBox(const QString& name, const QString& spokenName, QWidget* parent)
    : TypedBox(name, spokenName, parent) {
    auto* matches = new QCompleter(model(), this);
    matches->setCompletionMode(QCompleter::PopupCompletion);
    matches->setFilterMode(Qt::MatchContains);
    matches->setCaseSensitivity(Qt::CaseInsensitive);
    setCompleter(matches);
}

bool InboundNumberBox::handleKey(QKeyEvent& event) {
    const QString text = event.text();
    const bool command = event.key() == Qt::Key_Escape || event.key() == Qt::Key_Tab ||
                         event.key() == Qt::Key_Backtab || event.key() == Qt::Key_Delete;
    if (text.isEmpty() || command || (event.modifiers() & Qt::AltModifier))
        return false;
    if (isInboundCharacter(text.front().unicode()))
        return false;
    showMessage("Invalid character entered - only numeric values may be entered. Use the Delete key to remove unwanted "
                "entries");
    return true;
}

/// The text in front of a completion that was not typed, with the key put to it.
bool DestinationBox::handleKey(QKeyEvent& event) {
    QLineEdit& line = *lineEdit();
    const int start = line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
    const int end = line.hasSelectedText() ? line.selectionEnd() : start;
    const QString text = event.text();
    const bool character = !text.isEmpty() && text.front().isPrint() &&
                           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (end != line.text().size() || (!character && event.key() != Qt::Key_Backspace))
        return false;
    QString typed = line.text().left(start);
    if (character)
        typed += text;
    else
        typed.chop(1);
    complete(typed);
    return true;
}

void DestinationBox::complete(const QString& typed) {
    const auto row = rowBeginningWith(rows(), typed.toStdString());
    if (!row) {
        setCurrentIndex(-1);
        setEditText(typed);
        return;
    }
    setCurrentIndex(static_cast<int>(*row));
    const int length = static_cast<int>(currentText().size());
    lineEdit()->setCursorPosition(length);
    const int typedLength = std::min(static_cast<int>(typed.size()), length);
    lineEdit()->setSelection(typedLength, length - typedLength);
}
