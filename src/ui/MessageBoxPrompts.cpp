#include "ui/MessageBoxPrompts.h"

#include "core/Version.h"
#include "ui/AppIcon.h"
#include "ui/WindowProgress.h"
#include "ui/frmGetText.h"
#include "ui/frmOptions.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

namespace {

QMessageBox::Icon iconOf(PromptStyle style) {
    switch (style) {
    case PromptStyle::Question:
        return QMessageBox::Question;
    case PromptStyle::Information:
        return QMessageBox::Information;
    case PromptStyle::Stop:
        return QMessageBox::Critical;
    case PromptStyle::Plain:
        break;
    }
    return QMessageBox::NoIcon;
}

/// Return takes the first button, Escape the last.
void setButtons(QMessageBox& box, PromptButtons buttons) {
    switch (buttons) {
    case PromptButtons::Ok:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    case PromptButtons::OkCancel:
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        box.setDefaultButton(QMessageBox::Ok);
        break;
    case PromptButtons::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
        break;
    }
}

PromptAnswer answerOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return PromptAnswer::Yes;
    case QMessageBox::No:
        return PromptAnswer::No;
    case QMessageBox::Cancel:
        return PromptAnswer::Cancel;
    default:
        return PromptAnswer::Ok;
    }
}

} // namespace

PromptAnswer MessageBoxPrompts::messageBox(const std::string& text, PromptStyle style, PromptButtons buttons) {
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setWindowTitle(QString::fromUtf8(programTitle));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    box.setIcon(iconOf(style));
    setButtons(box, buttons);
    brandWindow(box);
    const PlainPointer pointer;
    return answerOf(box.exec());
}

int MessageBoxPrompts::getOption(OptionsMode mode) {
    frmOptions window(QApplication::activeWindow());
    window.setMode(mode);
    const PlainPointer pointer;
    return window.GetOption();
}

std::optional<std::string> MessageBoxPrompts::getText(const TextQuestion& question) {
    frmGetText window(QApplication::activeWindow());
    window.setWindowTitle(QString::fromStdString(question.caption));
    window.lblInstructions()->setText(QString::fromStdString(question.instructions));
    window.setFormat(static_cast<int>(question.format));
    if (question.limit > 0)
        window.txtText()->setMaxLength(question.limit);
    QString text = QString::fromStdString(question.text);
    bool cancelled = false;
    const PlainPointer pointer;
    window.GetText(text, cancelled);
    if (cancelled)
        return std::nullopt;
    return text.toStdString();
}
