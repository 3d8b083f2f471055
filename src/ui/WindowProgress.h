#pragma once

#include "core/Progress.h"

#include <QElapsedTimer>
#include <QPointer>

class QLabel;
class QProgressBar;

/// The progress of long work on screen: text and bar of FrmMessage while that is shown, and the report's bar of the
/// main window. In force as long as it lives.
///
/// Yields repaint windows and take the user's input. Whoever starts long work disables its window beforehand, so that
/// clicks made meanwhile come to nothing; were they kept back, they would act when the work is done. Yields in quick
/// succession are passed over, so that work may yield as often as it likes.
class WindowProgress : public Progress {
public:
    WindowProgress();
    ~WindowProgress() override;
    WindowProgress(const WindowProgress&) = delete;
    WindowProgress& operator=(const WindowProgress&) = delete;

    /// Where a report shows itself; both are shown and hidden together. Null: nowhere.
    void showReportOn(QLabel* Label8, QProgressBar* Prog1);

    void setTask(const std::string& text) override;
    void setMessageBar(long maximum, long value) override;
    void setReportBar(bool visible, long maximum, long value) override;
    void setReading(double share) override;
    void setHourglass(bool on) override;
    void yield() override;

private:
    QPointer<QLabel> reportText_;
    QPointer<QProgressBar> reportBar_;
    /// A bar as it stood before the calls were read on it.
    struct Bar {
        QPointer<QProgressBar> bar;
        bool visible = false;
        int maximum = 1, value = 0;
    };
    void showBar(bool visible); ///< that one, with its text

    Bar beforeReading_;
    QElapsedTimer sinceYield_;
    bool due_ = true; ///< something changed that is to be seen at once
    int hourglasses_ = 0;
};

/// The plain pointer while the user is asked something in the midst of long work.
class PlainPointer {
public:
    PlainPointer();
    ~PlainPointer();
    PlainPointer(const PlainPointer&) = delete;
    PlainPointer& operator=(const PlainPointer&) = delete;
};
