#pragma once

#include "report/form/SetupLists.h"
#include "report/panels/ChoicePanel.h"
#include "stats/ReportParameters.h"

class DestinationBox;
class ucWebbyLink;

/// The destination of the calls of a report, and the way back to the defaults of all parameters.
class DestinationPanel : public ChoicePanel {
    Q_OBJECT

public:
    explicit DestinationPanel(QWidget* parent);

    void offer(const LocationLists& lists);
    void read(ReportParameters& parameters) const;
    /// As InboundPanel::checkNumber().
    bool checkDestination();
    void setWayOut(const QWidget* control);
    void setControlsEnabled(bool enabled);
    ucWebbyLink* defaultsButton() const { return CmdDefault; }

private:
    void refuseDestination();

    DestinationBox* cmbDestinationNo;
    ucWebbyLink* CmdDefault;
};
