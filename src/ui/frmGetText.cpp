#include "ui/frmGetText.h"

#include "core/Prompts.h"
#include "core/Version.h"
#include "ui/AppIcon.h"
#include "ui/TextFormats.h"
#include "ui/WindowProgress.h"
#include "ui/modBranding.h"

#include <QHBoxLayout>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int instructionsWidth = 400;

/// Whether a key puts something into a box: with Ctrl it commands, with Ctrl and Alt it is one of some keyboards.
bool types(const QKeyEvent& key) {
    const bool command = (key.modifiers() & Qt::ControlModifier) && !(key.modifiers() & Qt::AltModifier);
    return !command && !key.text().isEmpty() && key.text().at(0).isPrint();
}

} // namespace

frmGetText::frmGetText(QWidget* parent)
    : QDialog(parent), lblInstructions_(new QLabel(this)), lblPound_(new QLabel(QString::fromUtf8("\u00A3"), this)),
      txtText_(new QLineEdit(this)), cmdOK_(new QPushButton(tr("OK"), this)),
      cmdCancel_(new QPushButton(tr("Cancel"), this)) {
    setObjectName(QStringLiteral("frmGetText"));
    lblInstructions_->setObjectName(QStringLiteral("lblInstructions"));
    lblPound_->setObjectName(QStringLiteral("lblPound"));
    txtText_->setObjectName(QStringLiteral("txtText"));
    cmdOK_->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel_->setObjectName(QStringLiteral("cmdCancel"));
    setWindowTitle(QString::fromUtf8(programTitle));
    brandWindow(*this);
    arrange();
    setFormFonts(*this);
    setFormat(LettersAndDigits);
    txtText_->installEventFilter(this);
    connect(txtText_, &QLineEdit::textChanged, this, &frmGetText::ValidateText);
    connect(cmdOK_, &QPushButton::clicked, this, &frmGetText::cmdOK_Click);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmGetText::arrange() {
    lblInstructions_->setWordWrap(true);
    lblInstructions_->setTextFormat(Qt::PlainText);
    lblInstructions_->setMinimumWidth(instructionsWidth);
    lblInstructions_->setBuddy(txtText_);
    cmdOK_->setDefault(true);
    cmdOK_->setProperty("kind", "primary");
    for (QPushButton* button : {cmdOK_, cmdCancel_})
        button->setMinimumWidth(104);

    auto* entry = new QHBoxLayout;
    entry->setSpacing(8);
    entry->addWidget(lblPound_);
    entry->addWidget(txtText_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch();
    buttons->addWidget(cmdOK_);
    buttons->addWidget(cmdCancel_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(16);
    column->addWidget(lblInstructions_);
    column->addLayout(entry);
    column->addStretch();
    column->addLayout(buttons);
}

void frmGetText::setFormat(int format) {
    format_ = format;
    lblPound_->setVisible(format == Currency);
    ValidateText();
}

void frmGetText::GetText(QString& Text, bool& Cancelled) {
    txtText_->setText(Text);
    txtText_->setAccessibleName(lblInstructions_->text());
    txtText_->setFocus();
    const PlainPointer pointer;
    Cancelled = exec() != Accepted;
    if (!Cancelled)
        Text = txtText_->text();
}

/// Dialogues select the text of the box that has the focus.
void frmGetText::setVisible(bool visible) {
    QDialog::setVisible(visible);
    if (visible)
        txtText_->end(false);
}

void frmGetText::cmdOK_Click() {
    if (!numeric() || !txtText_->text().isEmpty()) {
        accept();
        return;
    }
    showMessage("Figure may not be blank, please enter 0 if no number applies.");
    txtText_->setFocus(Qt::OtherFocusReason);
}

/// After whatever changed the text, a paste for instance.
void frmGetText::ValidateText() {
    const QString text = txtText_->text();
    const QString clean = formatCleaned(format_, text);
    if (clean == text)
        return;
    const qsizetype caret = formatCleaned(format_, text.left(txtText_->cursorPosition())).size();
    txtText_->setText(clean);
    txtText_->setCursorPosition(static_cast<int>(caret));
}

/// A selection gives way to what is typed.
bool frmGetText::accepts(const QString& typed) const {
    QString rest = txtText_->text();
    if (txtText_->hasSelectedText())
        rest.remove(txtText_->selectionStart(), txtText_->selectionLength());
    return formatAccepts(format_, typed, rest);
}

/// Keys, and what an input method puts in.
bool frmGetText::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtText_ && event->type() == QEvent::KeyPress) {
        if (types(*static_cast<QKeyEvent*>(event)) && !accepts(static_cast<QKeyEvent*>(event)->text()))
            return true;
    } else if (watched == txtText_ && event->type() == QEvent::InputMethod) {
        if (!accepts(static_cast<QInputMethodEvent*>(event)->commitString()))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}
