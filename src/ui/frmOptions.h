#pragma once

#include "core/PromptOptions.h"

#include <QDialog>

#include <vector>

class QLabel;
class QPushButton;
class uctHeader;

/// A small modal question with up to four answers, one button each. Escape and the window's close box press the button
/// that cancels; where there is none, the question must be answered.
class frmOptions : public QDialog {
    Q_OBJECT

public:
    explicit frmOptions(QWidget* parent = nullptr);

    OptionsMode Mode() const { return mode_; }
    void setMode(OptionsMode mode);

    /// Asks, and returns the index of the button pressed.
    int GetOption();

    QLabel* Label1() const { return Label1_; }
    QPushButton* cmdOption(int index) const { return cmdOption_.at(static_cast<std::size_t>(index)); }

    void reject() override;

private:
    void arrange();
    void cmdOption_Click(int index);

    OptionsMode mode_ = OptionsMode::GroupTypeOrCancel;
    int pressed_ = 0;
    uctHeader* uctHeader1;
    QLabel* Label1_;
    std::vector<QPushButton*> cmdOption_;
};
