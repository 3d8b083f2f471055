#pragma once

#include "report/CaptureRow.h"
#include "stats/ModData_GetMultiMapData.h"
#include "stats/ReportParameters.h"

#include <QPointer>
#include <QWidget>

class HistoryPanel;
class NoProjectPage;
class ParameterPage;
class ReportStatus;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class ucWebbyLink;
class uctFooter;
class uctHeader;

/// The main window: recent projects at the left, in the middle the parameters of a report or, while no project is open,
/// what to do first. One instance for the process; closing it ends the process. What its buttons lead to is told by
/// signals.
class FrmMain : public QWidget {
    Q_OBJECT

public:
    explicit FrmMain(QWidget* parent = nullptr);

    /// Fills LstHistory from CallHistory.csv of the application data folder; nothing is selected.
    void readHistory();
    /// Label3: the short name of the open project, or what to do. The middle follows whether a project is open.
    void showProjectName(const std::string& text);

    /// What the controls stand on.
    ReportParameters parameters() const;
    MultiMapParameters multiMapParameters() const;
    bool multiMapPostCodeDistricts() const; ///< OptBoundaries of several maps; else TV regions

    /// While work runs no other project can be opened and the window cannot be closed.
    void setBusy(bool busy);
    /// Fence long work: no parameter can be changed, the panels are hidden. Yields.
    void DisableForm();
    /// The reverse. A list is enabled where its option stands on it, a picker where its map is shown.
    void EnableForm();

    /// The period of the open project goes to the dates, the whole day to the hours.
    void Setup_Dates();
    void Setup_Inbound_List();
    void Setup_Location_List();
    /// The options stand on "all"; no list has a choice.
    void resetChoices();
    void restoreMultiMaps(const MultiMapSettings& settings);

    QListWidget* LstHistory() const;
    QPushButton* CmdClose() const;
    QLabel* Label8() const;
    QProgressBar* Prog1() const;

signals:
    /// A row of LstHistory was chosen; 0 is "More files ..".
    void historyRowChosen(int row);
    /// A button cmdReport_INDEX was pressed, and every list that is typed into stands on a row.
    void reportRequested(int index);
    void populationFiguresRequested();
    void userGuideRequested();
    void saveGuideRequested();
    void helpRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Form_Load();
    void nameControls();
    void makeLinks();
    void arrange();
    void connectControls();
    void followProject();
    void setLinksEnabled(bool enabled);
    void CmdDefault_Click();
    void requestReport(int index);

    uctHeader* uctHeader1;
    QLabel* Label3; ///< the header's detail
    HistoryPanel* historyPanel_;
    QStackedWidget* pages_; ///< without and with a project
    NoProjectPage* noProject_;
    ParameterPage* page_;
    ReportStatus* status_;
    uctFooter* uctFooter1;
    ucWebbyLink* cmdImportCSV = nullptr;
    ucWebbyLink* cmdUserGuide = nullptr;
    ucWebbyLink* ucwlSaveGuide = nullptr;
    ucWebbyLink* lblHelp = nullptr;
    QPointer<QWidget> focusBefore_; ///< where the user was when the form was disabled
    bool defaultsRun_ = false;      ///< CmdDefault runs: the maps side by side keep their dates
};
