#pragma once

#include <cstdint>
#include <functional>
#include <string>

class PlaybackMap;
struct MapFormState;

/// Steps a map through the frames that were set up (FrameCount, animatedTable, the periods of the map), by a clock or
/// by hand, and leads back to the map of the report run. Has no clock: somebody calls tick() every
/// FrameIntervalSeconds while it plays.
///
/// A build lets events run. What is asked for in the midst of one is done behind it, the last wish for a frame only,
/// and ticks are dropped; so no build starts inside another. Errors are logged and passed over. Map and form outlive
/// it. Main thread.
class Playback {
public:
    enum class State {
        Static,  ///< the map of the report run, or of several frames not one is set up
        Playing, ///< the clock steps on, from the last frame back to the first
        Paused   ///< frames are set up and are stepped through by hand
    };

    Playback(PlaybackMap& map, MapFormState& form);

    /// State, frame or read-outs have changed: controls must follow. May be empty.
    std::function<void()> changed;

    /// A map comes up that is not animated; the clock has yet to settle.
    void begin();
    /// Frames have been set up: the first one is on show, to be played or stepped through.
    void framesReady();
    void animate(); ///< Paused to Playing
    void pause();   ///< Playing to Paused, at the frame on show
    /// Back to the map of the report run, with its days, hours and scale.
    void stop();
    /// Lets the frames be without drawing anything: the window closes, or another boundary is about to be counted.
    void abandon();
    /// A beat of the clock. The first ones let the map settle and draw nothing.
    void tick();
    /// Shows a frame (from 1). Nothing where none is set up or the number is above FrameCount.
    void showFrame(int frame);
    /// How long each frame is shown, in seconds from 1.
    void setInterval(int seconds);
    /// Draws what is on show anew, after another measure was chosen or the view has gone back to the whole map.
    /// False, with nothing done, where no animation is on show.
    bool rebuild();

    State state() const { return state_; }
    bool active() const { return state_ != State::Static; }
    bool busy() const { return busy_; }            ///< a frame is being built
    int shownFrame() const { return shownFrame_; } ///< from 1; 0 while nothing is animated
    /// The period of the table in use that the map shows; 1 for a map that is not animated.
    int dataSet() const { return MapPeriod_; }
    /// "3 of 10: 01/03/2025 20:00 to 21:00"; empty while nothing is animated.
    std::string frameText() const;

private:
    class Work; // a build is running as long as it lives

    void showCurrentFrame();
    void restoreReport();
    void leave();
    void doWhatWasAskedMeanwhile();
    void tellChange() const;

    PlaybackMap& map_;
    MapFormState& form_;
    State state_ = State::Static;
    std::int16_t TickCount_ = 0;
    bool FramesReady_ = false;
    int MapPeriod_ = 1;
    int shownFrame_ = 0;
    bool busy_ = false;
    bool stopWanted_ = false;
    bool rebuildWanted_ = false;
    int wantedFrame_ = 0; ///< 0: none
};
