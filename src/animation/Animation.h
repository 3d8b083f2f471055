#pragma once

#include <cstdint>
#include <string>

/// The animation that was set up last: what its frames are, and where their figures lie. The days and times of each
/// frame are with the map, in its MapPeriods, at the number of the frame.

/// How many frames there are: 1 to 10, or 0 while no animation has been set up. Frames are counted from 1.
extern std::int16_t FrameCount;
/// For how long each frame is shown, in whole seconds; at least 1.
extern std::int16_t FrameIntervalSeconds;

constexpr std::int16_t maximumFrames = 10;
/// The frames whose figures one table can hold, in a period each.
constexpr int framesOfTable = 5;

/// The boundaries that can be animated, by their code.
constexpr long animatedTVRegions = 2;
constexpr long animatedPostCodeDistricts = 3;

/// The boundary of the tables in use that can be animated: TV regions where a TV table is in use, else postcode
/// districts where one of theirs is, else -1.
long animatedBoundary();

/// The table with the figures of a frame (1 to 10): frames 1 to 5 in TblAnimatedTV1 or TblAnimatedPostCodeDistrict1,
/// frames 6 to 10 in the second of each. Throws RuntimeError 5 where a boundary has no frames and 9 where there can be
/// no such frame.
std::string animatedTable(long boundary, int frame);

/// The period of its table in which a frame lies: 1 to 5 for frames 1 to 5 as for frames 6 to 10. Throws RuntimeError 9
/// where there can be no such frame.
int animatedPeriod(int frame);

/// No animation has been set up; the interval is 1 second.
void resetAnimation();
