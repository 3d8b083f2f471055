#pragma once

#include "report/form/SetupLists.h"
#include "report/panels/ChoicePanel.h"
#include "stats/ReportParameters.h"

/// The places where the calls of a report were answered.
class AnsweredAtPanel : public ChoicePanel {
    Q_OBJECT

public:
    explicit AnsweredAtPanel(QWidget* parent);

    void offer(const LocationLists& lists);
    void read(ReportParameters& parameters) const;

private:
    ChoiceBox* CmbAnswer;
    ChoiceBox* CmbAnswerGroup;
};
