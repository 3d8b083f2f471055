#include "report/panels/AnsweredAtPanel.h"

AnsweredAtPanel::AnsweredAtPanel(QWidget* parent)
    : ChoicePanel(QStringLiteral("Frame5"), tr("Answered at"), Subject::Groups, QStringLiteral("OptAnswer"), parent),
      CmbAnswer(new ChoiceBox(QStringLiteral("CmbAnswer"), tr("Answer point"))),
      CmbAnswerGroup(new ChoiceBox(QStringLiteral("CmbAnswerGroup"), tr("Answer point group"))) {
    addAll(tr("All answer points"));
    addChoice(tr("Answer p&oint"), CmbAnswer);
    addChoice(tr("Answer point gro&up"), CmbAnswerGroup);
    arrange();
}

void AnsweredAtPanel::offer(const LocationLists& lists) {
    ChoicePanel::offer(1, lists.answerPoints, tr("The project has no answer points"));
    ChoicePanel::offer(2, lists.answerPointGroups, tr("The account has no answer point groups"));
}

void AnsweredAtPanel::read(ReportParameters& parameters) const {
    parameters.OptAnswer = option();
    parameters.CmbAnswer = CmbAnswer->text();
    parameters.CmbAnswerGroup = CmbAnswerGroup->text();
}
