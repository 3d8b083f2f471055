#pragma once

#include <QDialog>
#include <QTimer>

#include <exception>
#include <functional>

class QLabel;
class QProgressBar;
class uctHeader;

/// A small modal window in which long work shows itself by a text and a bar. The work begins half a second after the
/// window has come up, and the window closes itself at its end; the user cannot close it.
class FrmMessage : public QDialog {
    Q_OBJECT

public:
    static constexpr int startDelay = 500; ///< milliseconds

    /// `work` runs once, on the main thread; it reports through progress().
    explicit FrmMessage(std::function<void()> work, QWidget* parent = nullptr);
    ~FrmMessage() override;

    /// Shows the window, does the work and returns when it is done. What the work throws is thrown here.
    void run();

    void setTask(const QString& text);
    QProgressBar* Prog1() const { return Prog1_; }

    /// The window that is up, or null.
    static FrmMessage* shown();

    void reject() override {} // Escape
    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Form_Load();
    void Timer1_Timer();

    std::function<void()> work_;
    std::exception_ptr failure_;
    uctHeader* uctHeader1;
    QLabel* Label1;
    QLabel* lblTask;
    QProgressBar* Prog1_;
    QTimer Timer1;
};
