#pragma once

#include <cstdint>

/// The largest value of each measure over the maps of one run; colour bands and key are scaled by them.
///
/// ModData_MaxValues only ever raises them. A run resets the five of calls and money before it starts; the last three
/// are kept as long as the program runs, so they hold the largest value since its start.
struct MapMaxima {
    double MaxTotalCalls = 0; ///< money-typed: up to four decimals
    std::int32_t MaxAnswered = 0;
    std::int32_t MaxIneffective = 0;
    double MaxCost = 0;    ///< pounds, four decimals
    double MaxRevenue = 0; ///< pounds, four decimals
    double MaxAverageCalls = 0;
    double MaxLostCallers = 0;
    double MaxAnsweredCallers = 0;

    /// Before a run: MaxTotalCalls, MaxAnswered, MaxIneffective, MaxCost and MaxRevenue back to 0.
    void resetForRun() {
        MaxTotalCalls = 0;
        MaxAnswered = 0;
        MaxIneffective = 0;
        MaxCost = 0;
        MaxRevenue = 0;
    }
};

/// The program's maxima, read by every map that is drawn. Main thread only.
inline MapMaxima mapMaxima;
