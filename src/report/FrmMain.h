#pragma once

#include <QWidget>

class HistoryPanel;
class ProjectPage;
class ReportStatus;
class QLabel;
class QListWidget;
class QPushButton;
class QStackedWidget;
class uctFooter;
class uctHeader;

/// The main window: recent projects at the left, in the middle the parameters of a report or, while no project is open,
/// what to do first. One instance for the process; closing it ends the process.
class FrmMain : public QWidget {
    Q_OBJECT

public:
    explicit FrmMain(QWidget* parent = nullptr);

    /// Fills LstHistory from CallHistory.csv of the application data folder.
    void readHistory();
    /// Shows the open project: its short name in Label3, what is known of it in the middle. Or that one is to be
    /// chosen.
    void showProject();

    QListWidget* LstHistory() const;
    QPushButton* CmdClose() const;

signals:
    /// A row of LstHistory was chosen; 0 is "More files ..".
    void historyRowChosen(int row);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Form_Load();
    void arrange();
    void connectControls();

    uctHeader* uctHeader1;
    QLabel* Label3; ///< the header's detail
    HistoryPanel* historyPanel_;
    QStackedWidget* pages_; ///< without and with a project
    ProjectPage* projectPage_;
    ReportStatus* status_;
    uctFooter* uctFooter1;
};
