#include "animation/playback/windows/AnimationStrip.h"

#include "animation/Animation.h"
#include "animation/playback/Playback.h"
#include "ui/ElidedLabel.h"
#include "ui/Skin.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>

namespace {

constexpr int gap = 8;
constexpr int frameBarWidth = 136, narrowBarWidth = 56, speedBarWidth = 88;
constexpr int leastWidth = 496;     ///< of the row, without its captions
constexpr int narrowWidth = 680;    ///< below it the captions make room for the controls
constexpr int longestInterval = 30; ///< seconds
constexpr int firstInterval = 2;
constexpr int millisecondsOfSecond = 1000;
constexpr long averageCalls = 8; ///< map type

QString secondsText(int seconds) {
    return AnimationStrip::tr("%1 s").arg(seconds);
}

/// Without a word to anybody.
void setQuietly(QSlider& bar, int value) {
    const QSignalBlocker quiet(bar);
    bar.setValue(value);
}

void tip(QWidget& control, const QString& text) {
    control.setToolTip(text);
    control.setAccessibleDescription(text);
}

} // namespace

AnimationStrip::AnimationStrip(Playback& playback, QWidget* parent)
    : QWidget(parent), playback_(playback), CmdSetUp(new QPushButton(tr("Animatio&n..."), this)),
      Label1(new QLabel(tr("Frame"), this)), HScroll1(new QSlider(Qt::Horizontal, this)),
      frameText_(new ElidedLabel(this)), CmdPause(new QPushButton(this)),
      cmdStopAnimate(new QPushButton(tr("S&top"), this)), Label2(new QLabel(tr("Speed"), this)),
      HScroll2(new QSlider(Qt::Horizontal, this)), Label4(new QLabel(this)), Timer1(this) {
    setObjectName(QStringLiteral("AnimationStrip"));
    makeControls();
    nameControls();
    arrange();
    connectControls();
    follow();
}

void AnimationStrip::makeControls() {
    for (QLabel* label : {Label1, Label2, Label4, static_cast<QLabel*>(frameText_)})
        setRole(*label, "caption");
    HScroll1->setPageStep(1);
    HScroll2->setRange(1, longestInterval);
    HScroll2->setPageStep(firstInterval);
    HScroll2->setValue(firstInterval);
    HScroll1->setMinimumWidth(narrowBarWidth);
    HScroll1->setMaximumWidth(frameBarWidth);
    HScroll2->setMinimumWidth(narrowBarWidth);
    HScroll2->setMaximumWidth(speedBarWidth);
    // The caption changes and the row does not.
    int width = 0;
    for (const QString& caption : {tr("Pau&se"), tr("&Animate")}) {
        CmdPause->setText(caption);
        width = std::max(width, CmdPause->sizeHint().width());
    }
    CmdPause->setMinimumWidth(width);
    Label4->setMinimumWidth(Label4->fontMetrics().horizontalAdvance(secondsText(longestInterval)));
}

void AnimationStrip::nameControls() {
    const auto name = [](QWidget* control, const char* text, const QString& spoken) {
        control->setObjectName(QString::fromLatin1(text));
        control->setAccessibleName(spoken);
    };
    name(CmdSetUp, "CmdSetUp", tr("Set up an animation"));
    name(HScroll1, "HScroll1", tr("Frame of the animation"));
    name(CmdPause, "CmdPause", tr("Play or pause the animation"));
    name(cmdStopAnimate, "cmdStopAnimate", tr("Stop the animation"));
    name(HScroll2, "HScroll2", tr("Seconds for each frame"));
    Label1->setObjectName(QStringLiteral("Label1"));
    Label2->setObjectName(QStringLiteral("Label2"));
    Label4->setObjectName(QStringLiteral("Label4"));
    frameText_->setObjectName(QStringLiteral("lblFrame"));
}

void AnimationStrip::arrange() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2 * gap, gap, 2 * gap, gap);
    row->setSpacing(gap);
    row->addWidget(CmdSetUp);
    row->addSpacing(gap);
    row->addWidget(Label1);
    row->addWidget(HScroll1, 1);
    row->addWidget(frameText_, 2); // the bar keeps its width when buttons come and go
    row->addWidget(CmdPause);
    row->addWidget(cmdStopAnimate);
    row->addSpacing(gap);
    row->addWidget(Label2);
    row->addWidget(HScroll2);
    row->addWidget(Label4);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void AnimationStrip::connectControls() {
    // The playback may be gone before the strip, and the strip before the playback.
    playback_.changed = [strip = QPointer(this)] {
        if (!strip)
            return;
        strip->follow();
        emit strip->playbackChanged();
    };
    connect(CmdSetUp, &QPushButton::clicked, this, &AnimationStrip::setUpRequested);
    connect(CmdPause, &QPushButton::clicked, this, &AnimationStrip::CmdPause_Click);
    connect(cmdStopAnimate, &QPushButton::clicked, this, &AnimationStrip::cmdStopAnimate_Click);
    connect(HScroll1, &QSlider::valueChanged, this, [this](int value) { playback_.showFrame(value + 1); });
    connect(HScroll2, &QSlider::valueChanged, this, &AnimationStrip::HScroll2_Change);
    connect(&Timer1, &QTimer::timeout, this, &AnimationStrip::Timer1_Timer);
}

void AnimationStrip::setMap(long boundary, long mapType) {
    boundary_ = boundary;
    mapType_ = mapType;
    enableControls();
}

void AnimationStrip::setWorking(bool working) {
    working_ = working;
    enableControls();
}

void AnimationStrip::CmdPause_Click() {
    if (playback_.state() == Playback::State::Playing)
        playback_.pause();
    else
        playback_.animate();
}

void AnimationStrip::cmdStopAnimate_Click() {
    playback_.stop();
    if (!playback_.active())
        CmdSetUp->setFocus();
}

void AnimationStrip::HScroll2_Change(int seconds) {
    playback_.setInterval(seconds);
}

void AnimationStrip::Timer1_Timer() {
    const QWidget* modal = QApplication::activeModalWidget();
    if (isVisible() && (!modal || modal == window()))
        playback_.tick();
}

void AnimationStrip::runClock() {
    const int interval = FrameIntervalSeconds * millisecondsOfSecond;
    if (Timer1.interval() != interval)
        Timer1.setInterval(interval);
    const bool playing = playback_.state() == Playback::State::Playing;
    if (playing && !Timer1.isActive())
        Timer1.start();
    else if (!playing)
        Timer1.stop();
}

void AnimationStrip::follow() {
    runClock();
    const bool active = playback_.active(), playing = playback_.state() == Playback::State::Playing;
    if (active) {
        const QSignalBlocker quiet(HScroll1);
        HScroll1->setRange(0, std::max(FrameCount - 1, 0));
        setQuietly(*HScroll2, FrameIntervalSeconds);
    }
    // A bar that is being dragged is the user's.
    if (!HScroll1->isSliderDown())
        setQuietly(*HScroll1, std::max(playback_.shownFrame() - 1, 0));
    Label4->setText(secondsText(HScroll2->value()));
    const bool appears = active && CmdPause->isHidden();
    CmdPause->setText(playing ? tr("Pau&se") : tr("&Animate"));
    CmdPause->setVisible(active);
    cmdStopAnimate->setVisible(active);
    enableControls();
    if (appears)
        CmdPause->setFocus();
}

QString AnimationStrip::obstacle() const {
    if (boundary_ != animatedTVRegions && boundary_ != animatedPostCodeDistricts)
        return tr("Only maps of TV regions and post code districts can be animated");
    return mapType_ == averageCalls ? tr("Average calls per caller cannot be animated") : QString();
}

void AnimationStrip::enableControls() {
    const QString why = obstacle();
    const bool possible = why.isEmpty() && (!working_ || playback_.busy());
    const bool active = playback_.active(), playing = playback_.state() == Playback::State::Playing;
    CmdSetUp->setEnabled(possible && !playing);
    HScroll1->setEnabled(possible && active);
    CmdPause->setEnabled(possible);
    cmdStopAnimate->setEnabled(possible);
    HScroll2->setEnabled(possible);
    const QString still = why.isEmpty() ? tr("No frames are set up") : why;
    frameText_->setText(active ? QString::fromStdString(playback_.frameText()) : still);
    const auto tell = [&](QWidget& control, const QString& text) { tip(control, why.isEmpty() ? text : why); };
    tell(*CmdSetUp, playing ? tr("Pause or stop the animation first")
                            : tr("Choose time frames of this map and count their calls"));
    tell(*HScroll1, active ? tr("Step through the frames") : tr("Set up an animation first"));
    tell(*CmdPause, playing ? tr("Stay at this frame") : tr("Play the frames, over and over"));
    tell(*cmdStopAnimate, tr("Back to the map of the report"));
    tell(*HScroll2, tr("Each frame is shown for %1 s").arg(HScroll2->value()));
    for (QLabel* label : {Label1, Label2, Label4, static_cast<QLabel*>(frameText_)})
        label->setEnabled(why.isEmpty());
}

void AnimationStrip::resizeEvent(QResizeEvent* event) {
    for (QLabel* label : {Label1, Label2, Label4})
        label->setVisible(width() >= narrowWidth);
    QWidget::resizeEvent(event);
}

QSize AnimationStrip::minimumSizeHint() const {
    return {leastWidth, QWidget::minimumSizeHint().height()};
}
