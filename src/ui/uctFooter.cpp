#include "ui/uctFooter.h"

#include "ui/DetailList.h"
#include "ui/Skin.h"
#include "ui/ucWebbyLink.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr int leastDetailRoom = 96;
constexpr int gap = 8;

} // namespace

uctFooter::uctFooter(QWidget* parent)
    : QWidget(parent), details_(new DetailList(this)), panel_(new QWidget(this)),
      help_(new QPushButton(tr("&Help"), this)), exit_(new QPushButton(tr("E&xit"), this)) {
    auto* buttons = new QHBoxLayout(panel_);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(gap);

    QSizePolicy policy = details_->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // so that the buttons stay at the right
    details_->setSizePolicy(policy);
    panel_->hide();
    help_->hide();

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 9, 16, 8);
    row->setSpacing(gap);
    row->addWidget(details_, 1);
    row->addWidget(panel_);
    row->addWidget(help_);
    row->addWidget(exit_);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(help_, &QPushButton::clicked, this, &uctFooter::helpClicked);
    connect(exit_, &QPushButton::clicked, this, &uctFooter::exitClicked);
    CheckButtonWidth();
}

const StoredProperties& uctFooter::storedProperties() {
    static const StoredProperties names{{"ExitButtonVisible", "ExitButtonVisible"},
                                        {"ExitButtonText", "ExitButtonText"},
                                        {"ExitToolTipText", "ExitToolTipText"},
                                        {"ExitEnabled", "ExitEnabled"},
                                        {"HelpVisible", "HelpVisible"},
                                        {"Enabled", "Enabled"}};
    return names;
}

bool uctFooter::ExitButtonVisible() const {
    return !exit_->isHidden();
}

void uctFooter::setExitButtonVisible(bool visible) {
    exit_->setVisible(visible);
}

QString uctFooter::ExitButtonText() const {
    return exit_->text();
}

void uctFooter::setExitButtonText(const QString& text) {
    exit_->setText(text);
}

QString uctFooter::ExitToolTipText() const {
    return exit_->toolTip();
}

void uctFooter::setExitToolTipText(const QString& text) {
    exit_->setToolTip(text);
}

bool uctFooter::ExitEnabled() const {
    return exit_->isEnabledTo(this);
}

void uctFooter::setExitEnabled(bool enabled) {
    exit_->setEnabled(enabled);
}

bool uctFooter::HelpVisible() const {
    return !help_->isHidden();
}

void uctFooter::setHelpVisible(bool visible) {
    help_->setVisible(visible);
}

void uctFooter::RegisterButton(QAbstractButton* button) {
    if (!button || panel_->layout()->indexOf(button) >= 0)
        return;
    const bool hiddenByWindow = button->testAttribute(Qt::WA_WState_ExplicitShowHide) && button->isHidden();
    panel_->layout()->addWidget(button);
    button->setVisible(!hiddenByWindow);
    panel_->show();
    CheckButtonWidth();
}

ucWebbyLink* uctFooter::AddLink(const char* name, const QString& caption, const QString& tip) {
    auto* link = new ucWebbyLink(caption, ucWebbyLink::Kind::Link, this);
    link->setObjectName(QString::fromLatin1(name));
    link->setToolTip(tip);
    link->setAccessibleDescription(tip);
    RegisterButton(link);
    return link;
}

void uctFooter::EnableButtons(bool enabled) {
    for (QAbstractButton* button : registeredButtons())
        button->setEnabled(enabled);
}

QList<QAbstractButton*> uctFooter::registeredButtons() const {
    return panel_->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
}

int uctFooter::ButtonPanelWidth() const {
    int width = 0;
    for (const QAbstractButton* button : registeredButtons())
        if (!button->isHidden())
            width += button->sizeHint().width() + (width > 0 ? gap : 0);
    return width;
}

void uctFooter::setDetails(const QStringList& details) {
    details_->setDetails(details);
    CheckButtonWidth();
}

void uctFooter::AddDetail(const QString& detail) {
    if (!detail.trimmed().isEmpty())
        setDetails(details_->details() + QStringList(detail));
}

void uctFooter::RemoveDetails(int first, int count) {
    QStringList left = details_->details();
    for (; count > 0 && first >= 0 && first < left.size(); --count)
        left.removeAt(first);
    setDetails(left);
}

void uctFooter::ClearDetails() {
    setDetails({});
}

void uctFooter::SetReportDetails(const QStringList& parameters) {
    ClearDetails();
    for (const QString& parameter : parameters)
        AddDetail(parameter);
}

int uctFooter::DetailCount() const {
    return static_cast<int>(details_->details().size());
}

bool uctFooter::DetailVisible() const {
    return !details_->isHidden();
}

QStringList uctFooter::shownDetails() const {
    return details_->shownTexts();
}

void uctFooter::CheckButtonWidth() {
    layout()->activate();
    details_->setVisible(DetailCount() > 0 && details_->width() >= leastDetailRoom);
}

void uctFooter::Refresh() {
    CheckButtonWidth();
    update();
}

void uctFooter::Button_Exit() {
    exit_->click();
}

void uctFooter::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    CheckButtonWidth();
}

bool uctFooter::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        CheckButtonWidth();
    return handled;
}

void uctFooter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.fillRect(0, 0, width(), 1, toColor(skinColours().Grey(3)));
}
