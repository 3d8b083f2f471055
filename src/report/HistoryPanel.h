#pragma once

#include "ui/ucWebbyBorder.h"

#include <string>
#include <vector>

class QListWidget;

/// The recent projects at the left of the main window, "More files .." first.
class HistoryPanel : public ucWebbyBorder {
    Q_OBJECT

public:
    explicit HistoryPanel(QWidget* parent = nullptr);

    /// Full paths or "More files ..", as CallHistory.csv gives them; shown shortened, whole in the tool tip.
    void showRows(const std::vector<std::string>& rows);
    QListWidget* list() const { return LstHistory; }

signals:
    /// A row was clicked, or Return pressed on it; 0 is "More files ..".
    void rowChosen(int row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addHeading();

    QListWidget* LstHistory;
};
