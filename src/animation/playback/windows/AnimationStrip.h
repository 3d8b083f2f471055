#pragma once

#include <QTimer>
#include <QWidget>

class ElidedLabel;
class Playback;
class QLabel;
class QPushButton;
class QSlider;

/// The row below a map from which an animation is set up, played, stepped through and stopped. It drives a Playback,
/// which is there as long as it can be used, and is its clock. While the strip is out of sight or a modal window other
/// than its own is open, the clock drops its beats.
class AnimationStrip : public QWidget {
    Q_OBJECT

public:
    explicit AnimationStrip(Playback& playback, QWidget* parent = nullptr);

    /// What the map shows: boundary and measure by their codes. Only maps of TV regions and postcode districts can be
    /// animated, and not by average calls.
    void setMap(long boundary, long mapType);
    /// The window is at work: nothing can be used. The building of a frame is no such work; it can be paused.
    void setWorking(bool working);

    QSize minimumSizeHint() const override;

signals:
    void setUpRequested();
    /// Another frame or state: what the window shows of the map, and which of its lists can be used, must follow.
    void playbackChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeControls();
    void nameControls();
    void arrange();
    void connectControls();
    void CmdPause_Click();
    void cmdStopAnimate_Click();
    void HScroll2_Change(int seconds);
    void Timer1_Timer();
    void follow(); ///< every control follows the playback
    void runClock();
    void enableControls();
    QString obstacle() const; ///< why this map cannot be animated; empty where it can

    Playback& playback_;
    QPushButton* CmdSetUp;
    QLabel* Label1;
    QSlider* HScroll1;
    ElidedLabel* frameText_;
    QPushButton* CmdPause;
    QPushButton* cmdStopAnimate;
    QLabel* Label2;
    QSlider* HScroll2;
    QLabel* Label4;
    QTimer Timer1;
    long boundary_ = -1;
    long mapType_ = 0;
    bool working_ = false;
};
