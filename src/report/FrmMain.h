#pragma once

#include <QWidget>

class HistoryPanel;
class ReportStatus;
class QLabel;
class QListWidget;
class QPushButton;
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
    /// Shows the short name of the project at gsProjectPath in Label3, or that one is to be chosen.
    void showProjectName();

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
    ReportStatus* status_;
    uctFooter* uctFooter1;
};
