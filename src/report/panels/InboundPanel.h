#pragma once

#include "report/form/SetupLists.h"
#include "report/panels/ChoicePanel.h"
#include "stats/ReportParameters.h"

class InboundNumberBox;

/// The inbound numbers of a report.
class InboundPanel : public ChoicePanel {
    Q_OBJECT

public:
    explicit InboundPanel(QWidget* parent);

    void offer(const InboundLists& lists);
    void read(ReportParameters& parameters) const;
    /// Whether the number, where one is asked for, is one of the list; tells the user otherwise and asks for it anew.
    bool checkNumber();
    void setWayOut(const QWidget* control);

signals:
    void numberRefused();

private:
    void refuseNumber();

    InboundNumberBox* CmbInbound;
    ChoiceBox* cmbCG;
};
