#include "ui/frmOptions.h"

#include "ui/AppIcon.h"
#include "ui/modBranding.h"
#include "ui/uctHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int mostButtons = 4;
constexpr int labelWidth = 440;

QString text(std::string_view words) {
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
}

} // namespace

frmOptions::frmOptions(QWidget* parent) : QDialog(parent), uctHeader1(new uctHeader(this)), Label1_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmOptions"));
    uctHeader1->setObjectName(QStringLiteral("uctHeader1"));
    Label1_->setObjectName(QStringLiteral("Label1"));
    for (int i = 0; i < mostButtons; ++i) {
        auto* button = new QPushButton(this);
        button->setObjectName(QStringLiteral("cmdOption_%1").arg(i));
        connect(button, &QPushButton::clicked, this, [this, i] { cmdOption_Click(i); });
        cmdOption_.push_back(button);
    }
    brandWindow(*this);
    arrange();
    setFormFonts(*this);
    setMode(mode_);
}

void frmOptions::arrange() {
    uctHeader1->setHeaderType(uctHeader::Style::Prompt);
    uctHeader1->SetPicture(appIcon());
    Label1_->setWordWrap(true);
    Label1_->setTextFormat(Qt::PlainText);
    Label1_->setMinimumWidth(labelWidth);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch();
    for (QPushButton* button : cmdOption_)
        buttons->addWidget(button);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(24, 24, 24, 16);
    body->setSpacing(24);
    body->addWidget(Label1_);
    body->addStretch();
    body->addLayout(buttons);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(uctHeader1);
    column->addLayout(body, 1);
}

void frmOptions::setMode(OptionsMode mode) {
    mode_ = mode;
    const PromptOptions& options = promptOptions(mode);
    setWindowTitle(text(options.caption));
    setWindowFlag(Qt::WindowCloseButtonHint, options.cancel >= 0);
    uctHeader1->setTitle(text(options.caption));
    Label1_->setText(text(options.text));
    for (std::size_t i = 0; i < cmdOption_.size(); ++i) {
        const bool used = i < options.buttons.size();
        cmdOption_[i]->setText(used ? text(options.buttons[i]) : QString());
        cmdOption_[i]->setVisible(used);
    }
    cmdOption_.front()->setDefault(true);
    cmdOption_.front()->setFocus();
}

int frmOptions::GetOption() {
    exec();
    return pressed_;
}

void frmOptions::cmdOption_Click(int index) {
    pressed_ = index;
    accept();
}

void frmOptions::reject() {
    const int cancel = promptOptions(mode_).cancel;
    if (cancel >= 0)
        cmdOption_Click(cancel);
}
