#include "ui/FrmMessage.h"

#include "core/Version.h"
#include "ui/AppIcon.h"
#include "ui/ElidedLabel.h"
#include "ui/Skin.h"
#include "ui/modBranding.h"
#include "ui/uctHeader.h"

#include <QCloseEvent>
#include <QProgressBar>
#include <QVBoxLayout>

#include <utility>

namespace {

FrmMessage* shownWindow = nullptr;

QFont bigFont(const QWidget& label) {
    QFont font = label.font();
    font.setPointSize(16);
    return font;
}

} // namespace

FrmMessage::FrmMessage(std::function<void()> work, QWidget* parent)
    : QDialog(parent), work_(std::move(work)), uctHeader1(new uctHeader(this)), Label1(new QLabel(this)),
      lblTask(new ElidedLabel(this)), Prog1_(new QProgressBar(this)) {
    setObjectName(QStringLiteral("FrmMessage"));
    uctHeader1->setObjectName(QStringLiteral("uctHeader1"));
    Label1->setObjectName(QStringLiteral("Label1"));
    lblTask->setObjectName(QStringLiteral("lblTask"));
    Prog1_->setObjectName(QStringLiteral("Prog1"));
    Timer1.setObjectName(QStringLiteral("Timer1"));

    auto* body = new QVBoxLayout;
    body->setContentsMargins(24, 24, 24, 24);
    body->setSpacing(12);
    body->addWidget(Label1);
    body->addWidget(lblTask);
    body->addWidget(Prog1_);
    body->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(uctHeader1);
    column->addLayout(body, 1);
    connect(&Timer1, &QTimer::timeout, this, &FrmMessage::Timer1_Timer);
    Form_Load();
}

FrmMessage::~FrmMessage() {
    if (shownWindow == this)
        shownWindow = nullptr;
}

void FrmMessage::Form_Load() {
    setWindowTitle(QString::fromUtf8(programTitle));
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    brandWindow(*this);
    uctHeader1->setHeaderType(uctHeader::Style::Prompt);
    uctHeader1->setTitle(QString::fromUtf8(programTitle));
    uctHeader1->SetPicture(appIcon());
    setFormFonts(*this);
    setRole(*Label1, "message");
    setRole(*lblTask, "hint");
    Label1->setText(tr("Analysing the project, please wait..."));
    Label1->setMinimumHeight(QFontMetrics(bigFont(*Label1)).height()); // for the first tick
    Label1->setMinimumWidth(QFontMetrics(bigFont(*Label1)).horizontalAdvance(Label1->text()));
    Prog1_->setAccessibleName(tr("Progress"));
    Prog1_->setTextVisible(false);
    QSizePolicy policy = Prog1_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    Prog1_->setSizePolicy(policy);
    Prog1_->hide();
    lblTask->clear();
    Timer1.setInterval(startDelay);
}

QSize FrmMessage::sizeHint() const {
    return QDialog::sizeHint().expandedTo({480, 200});
}

FrmMessage* FrmMessage::shown() {
    return shownWindow;
}

void FrmMessage::setTask(const QString& text) {
    lblTask->setText(text);
}

void FrmMessage::run() {
    FrmMessage* const before = std::exchange(shownWindow, this);
    Timer1.start();
    exec();
    shownWindow = before;
    if (failure_)
        std::rethrow_exception(std::exchange(failure_, nullptr));
}

/// An exception must not go through the message loop; run() throws it on.
void FrmMessage::Timer1_Timer() {
    Label1->setFont(bigFont(*Label1));
    Prog1_->show();
    Timer1.stop();
    try {
        if (work_)
            work_();
    } catch (...) {
        failure_ = std::current_exception();
    }
    done(Accepted);
}

void FrmMessage::closeEvent(QCloseEvent* event) {
    event->ignore();
}
