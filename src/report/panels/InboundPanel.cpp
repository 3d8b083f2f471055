#include "report/panels/InboundPanel.h"

#include "core/Prompts.h"
#include "report/panels/TypedBox.h"

#include <QAbstractButton>

InboundPanel::InboundPanel(QWidget* parent)
    : ChoicePanel(QStringLiteral("Frame4"), tr("Inbound"), Subject::Groups, QStringLiteral("OptInbound"), parent),
      CmbInbound(new InboundNumberBox(QStringLiteral("CmbInbound"), tr("Inbound number"))),
      cmbCG(new ChoiceBox(QStringLiteral("cmbCG"), tr("Community group"))) {
    addAll(tr("All numbers"));
    addChoice(tr("&Number"), CmbInbound);
    addChoice(tr("Community grou&p"), cmbCG);
    arrange();
    for (int option : {0, 1, 2})
        CmbInbound->setWayOut(optionButton(option));
    connect(CmbInbound, &TypedBox::leftWithoutRow, this, &InboundPanel::refuseNumber);
}

void InboundPanel::offer(const InboundLists& lists) {
    ChoicePanel::offer(1, lists.numbers, tr("The project has no inbound numbers"));
    ChoicePanel::offer(2, lists.communityGroups, tr("The account has no community groups"));
}

void InboundPanel::read(ReportParameters& parameters) const {
    parameters.OptInbound = option();
    parameters.CmbInbound = CmbInbound->text();
    parameters.cmbCG = cmbCG->text();
}

void InboundPanel::setWayOut(const QWidget* control) {
    CmbInbound->setWayOut(control);
}

bool InboundPanel::checkNumber() {
    if (!CmbInbound->isStanding() || CmbInbound->holdsRow())
        return true;
    refuseNumber();
    return false;
}

/// By the time this is called the option may have been changed.
void InboundPanel::refuseNumber() {
    if (!CmbInbound->isStanding() || CmbInbound->holdsRow())
        return;
    showMessage("Please select a valid number from the list displayed..");
    CmbInbound->clearEditText();
    emit numberRefused();
    CmbInbound->setFocus();
}
