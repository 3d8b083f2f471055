#pragma once

#include <QWidget>

class QHBoxLayout;
class QAbstractButton;
class QPushButton;

/// The band at the foot of a window: registered buttons at the left, the exit button at the right.
class uctFooter : public QWidget {
    Q_OBJECT

public:
    explicit uctFooter(QWidget* parent = nullptr);

    /// Takes a button into the panel, behind those already there.
    void RegisterButton(QAbstractButton* button);
    /// Enables or disables all registered buttons; the exit button stays as it is.
    void EnableButtons(bool enabled);

    QPushButton* exitButton() const { return exit_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QHBoxLayout* buttons_;
    QPushButton* exit_;
};
