#pragma once

#include "report/ProjectPeriod.h"
#include "report/panels/ParameterPanel.h"
#include "stats/ReportParameters.h"

class DTPicker;
class QCheckBox;
class ucWebbyLink;

/// Days and hours of a report.
class PeriodPanel : public ParameterPanel {
    Q_OBJECT

public:
    explicit PeriodPanel(QWidget* parent);

    void setPeriod(const ProjectPeriod& period);
    /// All hours of the day.
    void resetHours();
    void clearOvernight();
    void read(ReportParameters& parameters) const;
    void setControlsEnabled(bool enabled);

private:
    DTPicker* DTStart;
    DTPicker* DTEnd;
    DTPicker* DTStartTime[2];
    QCheckBox* ChkOverNight;
    ucWebbyLink* CmdHelp;
};
