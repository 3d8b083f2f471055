#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

/// The strip above the footer in which a report run shows itself. Its room is kept while nothing runs, so that nothing
/// jumps.
class ReportStatus : public QWidget {
    Q_OBJECT

public:
    explicit ReportStatus(QWidget* parent = nullptr);

    QLabel* text() const { return Label8; }
    QProgressBar* bar() const { return Prog1; }

private:
    QLabel* Label8;
    QProgressBar* Prog1;
};
