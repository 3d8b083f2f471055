#pragma once

#include <string>

/// How long work shows itself: a line of text, a bar, an hourglass pointer, and yields that let windows repaint.
/// Called on the main thread only. All members of the base class do nothing.
class Progress {
public:
    virtual ~Progress() = default;
    /// The text beside FrmMessage's bar ("Updating TV Areas...").
    virtual void setTask(const std::string& /*text*/) {}
    /// FrmMessage's bar: its maximum and value.
    virtual void setMessageBar(long /*maximum*/, long /*value*/) {}
    /// FrmMain's bar Prog1: shown, maximum and value.
    virtual void setReportBar(bool /*visible*/, long /*maximum*/, long /*value*/) {}
    /// The calls of the project are read into memory: the share that is done, 0 to 1. At 1 that is over. It may happen
    /// in the midst of other work, whose bars come back then.
    virtual void setReading(double /*share*/) {}
    /// Long work inside long work switches it on once more; it goes when all have switched it off.
    virtual void setHourglass(bool /*on*/) {}
    /// Lets the message loop run so that windows repaint; the windows that could start other work are disabled by then.
    virtual void yield() {}
};

/// The program's progress display; never null (the default shows nothing). The caller keeps ownership.
Progress& progress();
void setProgress(Progress* progress);

/// The hourglass for as long as it lives, so that every way out of long work takes it away.
class Hourglass {
public:
    Hourglass() { progress().setHourglass(true); }
    ~Hourglass() { progress().setHourglass(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};
