#pragma once

#include <cstddef>
#include <string_view>

/// How far a report's bar (Prog1 of FrmMain) has come, in major steps, and where it ends. Whoever shows the bar sets
/// both; the statistics count on.
extern long StatsProgressStep;
extern long StatsProgressMaximum;

/// How a statistics run shows itself: by text and message bar (FrmMessage) where it fills a main table, by the report's
/// bar otherwise. Customer groups, which are counted anew when the user has changed them, always show their texts.
/// Hourglass from construction to destruction, when the report's bar is hidden again.
class StatisticsDisplay {
public:
    StatisticsDisplay(bool showsTexts, bool mainTable);
    ~StatisticsDisplay();
    StatisticsDisplay(const StatisticsDisplay&) = delete;
    StatisticsDisplay& operator=(const StatisticsDisplay&) = delete;

    /// The message bar's text; the bar starts anew. An empty text leaves both. Yields in any case.
    void task(std::string_view text) const;
    /// Position (from 0) in the list that is being walked.
    void position(std::size_t count, std::size_t at) const;
    /// A major step has ended.
    void stepDone() const;

private:
    bool showsTexts_;
    bool mainTable_;
};
