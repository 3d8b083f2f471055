#pragma once

#include "animation/AnimationSetup.h"

#include <QDialog>

#include <array>

class DTPicker;
class ElidedLabel;
class NumberBox;
class OptionGroup;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;

/// Sets up an animation of the map on show. Modal over the map's window: exec() returns Accepted when the frames are
/// there to be played, and Rejected when the user has cancelled, with the map as it was. It cannot be closed while
/// frames are counted.
class FrmAnimate : public QDialog, private AnimationForm {
    Q_OBJECT

public:
    /// `parameters` are those of the report on show; `periods`, which outlives the window, gets the days and times of
    /// the frames.
    FrmAnimate(const ReportParameters& parameters, MapPeriods& periods, QWidget* parent = nullptr);

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void DisableForm() override;
    void EnableForm() override;
    void showProgress(const std::string& text, int maximum) override;
    void setProgress(int value) override;
    void hideProgress() override;

    void makePickers();
    void makeLists();
    void arrange();
    QLayout* timeRows();
    QLayout* frameRows();
    QLayout* buttons();
    void connectControls();
    void start(const AnimationSettings& settings);
    AnimationSettings settings() const;
    void focusFirstToMend();

    void OptPeriod_Click();
    void CmdApply_Click();
    void refreshOutline();

    AnimationSetup setup_;
    QWidget* choices_; ///< everything that can be chosen
    std::array<DTPicker*, 4> DTPicker1;
    OptionGroup* OptPeriod;
    QComboBox* CmbDataPeriod;
    NumberBox* CmbFrames;
    NumberBox* CmbInterval;
    QPushButton* CmdApply;
    QPushButton* cmdCancel;
    ElidedLabel* Label7;
    QProgressBar* Prog1;
    QLabel* secondRow_;
    ElidedLabel* outline_;
    bool working_ = false;
};
