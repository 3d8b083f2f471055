#include "report/panels/DestinationPanel.h"

#include "core/Prompts.h"
#include "report/panels/TypedBox.h"
#include "ui/ucWebbyLink.h"

#include <QAbstractButton>

DestinationPanel::DestinationPanel(QWidget* parent)
    : ChoicePanel(QStringLiteral("Frame6"), tr("Destination"), Subject::AccCostCentre,
                  QStringLiteral("optDestinationNo"), parent),
      cmbDestinationNo(new DestinationBox(QStringLiteral("cmbDestinationNo"), tr("Destination ID"))),
      CmdDefault(nullptr) {
    addAll(tr("All destinations"));
    addChoice(tr("Destination &ID"), cmbDestinationNo);
    CmdDefault = new ucWebbyLink(tr("Reset to &defaults"), ucWebbyLink::Kind::Outlined, this);
    CmdDefault->setObjectName(QStringLiteral("CmdDefault"));
    CmdDefault->setToolTip(tr("The whole project again: all dates, hours, numbers, answer points and destinations"));
    addAtEnd(CmdDefault);
    arrange();
    for (QWidget* control : {static_cast<QWidget*>(optionButton(0)), static_cast<QWidget*>(optionButton(1)),
                             static_cast<QWidget*>(CmdDefault)})
        cmbDestinationNo->setWayOut(control);
    connect(cmbDestinationNo, &TypedBox::leftWithoutRow, this, &DestinationPanel::refuseDestination);
}

void DestinationPanel::offer(const LocationLists& lists) {
    ChoicePanel::offer(1, lists.destinations, tr("The project has no destination IDs"));
}

void DestinationPanel::read(ReportParameters& parameters) const {
    parameters.optDestinationNo = option();
    parameters.cmbDestinationNo = cmbDestinationNo->text();
}

void DestinationPanel::setWayOut(const QWidget* control) {
    cmbDestinationNo->setWayOut(control);
}

void DestinationPanel::setControlsEnabled(bool enabled) {
    ChoicePanel::setControlsEnabled(enabled);
    CmdDefault->setEnabled(enabled);
}

bool DestinationPanel::checkDestination() {
    if (!cmbDestinationNo->isStanding() || cmbDestinationNo->holdsRow())
        return true;
    refuseDestination();
    return false;
}

void DestinationPanel::refuseDestination() {
    if (!cmbDestinationNo->isStanding() || cmbDestinationNo->holdsRow())
        return;
    showMessage("Please enter a valid Destination ID");
    cmbDestinationNo->setFocus();
}
