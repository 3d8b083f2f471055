#include "report/panels/PeriodPanel.h"

#include "core/Prompts.h"
#include "report/form/OvernightHelp.h"
#include "report/panels/DTPicker.h"
#include "ui/ucWebbyLink.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

PeriodPanel::PeriodPanel(QWidget* parent)
    : ParameterPanel(QStringLiteral("Frame3"), tr("Period"), Subject::DateTime, parent),
      DTStart(new DTPicker(QStringLiteral("DTStart"), DTPicker::Holds::Day, this)),
      DTEnd(nullptr), DTStartTime{new DTPicker(QStringLiteral("DTStartTime_0"), DTPicker::Holds::TimeOfDay, this),
                                  nullptr},
      ChkOverNight(nullptr), CmdHelp(nullptr) {
    DTEnd = new DTPicker(QStringLiteral("DTEnd"), DTPicker::Holds::Day, this);
    DTStartTime[1] = new DTPicker(QStringLiteral("DTStartTime_1"), DTPicker::Holds::TimeOfDay, this);
    ChkOverNight = new QCheckBox(tr("O&vernight"), this);
    ChkOverNight->setObjectName(QStringLiteral("ChkOverNight"));
    CmdHelp = new ucWebbyLink(QStringLiteral("?"), ucWebbyLink::Kind::Link, this);
    CmdHelp->setObjectName(QStringLiteral("CmdHelp"));
    CmdHelp->setAccessibleName(tr("About the overnight option"));
    CmdHelp->setToolTip(tr("What “Overnight” means"));
    connect(CmdHelp, &ucWebbyLink::clicked, this, [] { showMessage(overnightHelp()); });

    const QString spoken[] = {tr("First date"), tr("Hours after"), tr("Last date"), tr("Hours before")};
    const QString tips[] = {tr("First date of the report"), tr("Calls from this time of day on count"),
                            tr("Last date of the report"), tr("Calls up to this time of day count")};
    const QString labels[] = {tr("&From"), tr("hours &after"), tr("&To"), tr("hours &before")};
    DTPicker* const pickers[] = {DTStart, DTStartTime[0], DTEnd, DTStartTime[1]};
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (int i = 0; i < 4; ++i) {
        if (i == 2)
            row->addSpacing(16);
        pickers[i]->setAccessibleName(spoken[i]);
        pickers[i]->setToolTip(tips[i]);
        addLabel(*row, labels[i], pickers[i]);
        row->addWidget(pickers[i]);
    }
    row->addSpacing(16);
    row->addWidget(ChkOverNight);
    row->addWidget(CmdHelp);
    row->addStretch(1);
    setContent(row);
    resetHours();
}

void PeriodPanel::setPeriod(const ProjectPeriod& period) {
    DTStart->setValue(period.start);
    DTEnd->setValue(period.end);
}

void PeriodPanel::resetHours() {
    const ReportParameters wholeDay;
    DTStartTime[0]->setValue(wholeDay.DTStartTime[0]);
    DTStartTime[1]->setValue(wholeDay.DTStartTime[1]);
}

void PeriodPanel::clearOvernight() {
    ChkOverNight->setChecked(false);
}

void PeriodPanel::read(ReportParameters& parameters) const {
    parameters.DTStart = DTStart->value();
    parameters.DTEnd = DTEnd->value();
    parameters.DTStartTime = {DTStartTime[0]->value(), DTStartTime[1]->value()};
    parameters.ChkOverNight = ChkOverNight->isChecked();
}

void PeriodPanel::setControlsEnabled(bool enabled) {
    for (QWidget* control :
         {static_cast<QWidget*>(DTStart), static_cast<QWidget*>(DTStartTime[0]), static_cast<QWidget*>(DTEnd),
          static_cast<QWidget*>(DTStartTime[1]), static_cast<QWidget*>(ChkOverNight), static_cast<QWidget*>(CmdHelp)})
        control->setEnabled(enabled);
}
