#pragma once

#include "report/CaptureRow.h"
#include "report/form/SetupLists.h"
#include "stats/ModData_GetMultiMapData.h"
#include "stats/ReportParameters.h"

#include <QWidget>

class AnsweredAtPanel;
class DestinationPanel;
class InboundPanel;
class MultiMapPanel;
class ParameterPanel;
class PeriodPanel;
class QLabel;
class ReportButtons;
class ucWebbyLink;
struct ProjectPeriod;

/// Everything that a report is asked by, panel below panel, in the order in which it is read.
class ParameterPage : public QWidget {
    Q_OBJECT

public:
    explicit ParameterPage(QWidget* parent = nullptr);

    ReportParameters parameters() const;
    MultiMapParameters multiMapParameters() const;
    bool multiMapPostCodeDistricts() const;

    /// Days of the project; the days of several maps too, unless only the single map goes back to its defaults.
    void setPeriod(const ProjectPeriod& period, bool multiMapsToo);
    /// What the project's calls span, in words.
    void describePeriod(const QString& text);
    void offer(const InboundLists& lists);
    void offer(const LocationLists& lists);
    /// "All" everywhere, without a choice in any list.
    void resetChoices();
    /// All hours of the day.
    void resetHours();
    void clearOvernight();
    void restoreMultiMaps(const MultiMapSettings& settings);
    /// Enables and shows all panels, or disables and hides them.
    void setControlsEnabled(bool enabled);
    /// Whether what was typed into the lists is in them; tells the user otherwise.
    bool checkTyped();
    /// A control outside the page that may be used whatever was typed into it.
    void setWayOut(const QWidget* control);

protected:
    void paintEvent(QPaintEvent* event) override;

signals:
    void reportRequested(int index);
    void defaultsRequested();
    void helpRequested();
    void numberRefused();

private:
    void arrange();

    QLabel* period_;
    ucWebbyLink* CmdMainHelp;
    PeriodPanel* Frame3;
    InboundPanel* Frame4;
    AnsweredAtPanel* Frame5;
    DestinationPanel* Frame6;
    ReportButtons* Frame7;
    MultiMapPanel* Frame9;
    QList<ParameterPanel*> panels_;
    bool shown_ = true; ///< the panels
};
