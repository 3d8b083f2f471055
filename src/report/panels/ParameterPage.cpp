#include "report/panels/ParameterPage.h"

#include "report/panels/AnsweredAtPanel.h"
#include "report/panels/DestinationPanel.h"
#include "report/panels/InboundPanel.h"
#include "report/panels/MultiMapPanel.h"
#include "report/panels/PeriodPanel.h"
#include "report/panels/ReportButtons.h"
#include "ui/ElidedLabel.h"
#include "ui/Globe.h"
#include "ui/Skin.h"
#include "ui/ucWebbyLink.h"

#include <QPainter>
#include <QVBoxLayout>

ParameterPage::ParameterPage(QWidget* parent)
    : QWidget(parent), period_(new ElidedLabel(this)),
      CmdMainHelp(new ucWebbyLink(tr("Help on these settings"), ucWebbyLink::Kind::Link, this)),
      Frame3(new PeriodPanel(this)), Frame4(new InboundPanel(this)), Frame5(new AnsweredAtPanel(this)),
      Frame6(new DestinationPanel(this)), Frame7(new ReportButtons(this)),
      Frame9(new MultiMapPanel(this)), panels_{Frame3, Frame4, Frame5, Frame6, Frame7, Frame9} {
    period_->setObjectName(QStringLiteral("lblProjectPeriod"));
    setRole(*period_, "hint");
    CmdMainHelp->setObjectName(QStringLiteral("CmdMainHelp"));
    CmdMainHelp->setToolTip(tr("Open the help"));
    arrange();
    connect(CmdMainHelp, &ucWebbyLink::clicked, this, &ParameterPage::helpRequested);
    connect(Frame4, &InboundPanel::numberRefused, this, &ParameterPage::numberRefused);
    connect(Frame6->defaultsButton(), &ucWebbyLink::clicked, this, &ParameterPage::defaultsRequested);
    connect(Frame7, &ReportButtons::requested, this, &ParameterPage::reportRequested);
    connect(Frame9, &MultiMapPanel::requested, this, &ParameterPage::reportRequested);
    setWayOut(CmdMainHelp);
    Frame4->setWayOut(Frame6->defaultsButton());
}

void ParameterPage::arrange() {
    auto* head = new QHBoxLayout;
    head->setContentsMargins(8, 0, 0, 0);
    head->addWidget(period_, 1);
    head->addWidget(CmdMainHelp);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addLayout(head);
    for (ParameterPanel* panel : panels_)
        column->addWidget(panel);
    column->addStretch(1);
}

ReportParameters ParameterPage::parameters() const {
    ReportParameters parameters;
    Frame3->read(parameters);
    Frame4->read(parameters);
    Frame5->read(parameters);
    Frame6->read(parameters);
    return parameters;
}

MultiMapParameters ParameterPage::multiMapParameters() const {
    return Frame9->parameters();
}

bool ParameterPage::multiMapPostCodeDistricts() const {
    return Frame9->postCodeDistricts();
}

void ParameterPage::setPeriod(const ProjectPeriod& period, bool multiMapsToo) {
    Frame3->setPeriod(period);
    if (multiMapsToo)
        Frame9->setPeriod(period);
}

void ParameterPage::describePeriod(const QString& text) {
    period_->setText(text);
}

void ParameterPage::offer(const InboundLists& lists) {
    Frame4->offer(lists);
}

void ParameterPage::offer(const LocationLists& lists) {
    Frame5->offer(lists);
    Frame6->offer(lists);
}

void ParameterPage::resetChoices() {
    Frame4->reset();
    Frame5->reset();
    Frame6->reset();
}

void ParameterPage::resetHours() {
    Frame3->resetHours();
}

void ParameterPage::clearOvernight() {
    Frame3->clearOvernight();
}

void ParameterPage::restoreMultiMaps(const MultiMapSettings& settings) {
    Frame9->restore(settings);
}

void ParameterPage::setControlsEnabled(bool enabled) {
    shown_ = enabled;
    update();
    CmdMainHelp->setEnabled(enabled);
    Frame3->setControlsEnabled(enabled);
    Frame4->setControlsEnabled(enabled);
    Frame5->setControlsEnabled(enabled);
    Frame6->setControlsEnabled(enabled);
    Frame7->setControlsEnabled(enabled);
    Frame9->setControlsEnabled(enabled);
    for (ParameterPanel* panel : panels_)
        panel->setVisible(enabled);
}

/// A quiet picture while work hides the panels.
void ParameterPage::paintEvent(QPaintEvent*) {
    if (shown_)
        return;
    constexpr int side = 160;
    QRect place(0, 0, side, side);
    place.moveCenter(rect().center());
    QPainter painter(this);
    paintGlobe(painter, place, GlobeStyle::Pale);
}

bool ParameterPage::checkTyped() {
    return Frame4->checkNumber() && Frame6->checkDestination();
}

void ParameterPage::setWayOut(const QWidget* control) {
    Frame4->setWayOut(control);
    Frame6->setWayOut(control);
}
