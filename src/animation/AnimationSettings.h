#pragma once

#include "data/types/Value.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What the user sets up an animation with. The fields mirror the controls of FrmAnimate under their names.
struct AnimationSettings {
    Date startDate; ///< DTPicker1(0), a whole day
    Date startTime; ///< DTPicker1(1), a time of day 0
    Date endDate;   ///< DTPicker1(2)
    Date endTime;   ///< DTPicker1(3)
    /// 0: the frames share the time from start to end; 1: they are as long as CmbDataPeriod says.
    int OptPeriod = 1;
    std::string CmbDataPeriod; ///< length of a frame: "15min", "1.5hr"
    std::string CmbFrames;     ///< number of frames
    std::string CmbInterval;   ///< seconds for which a frame is shown: "2", "2.5"
};

/// The texts that the lists offer.
std::span<const std::string_view> dataPeriods();
std::span<const std::string_view> frameCounts();
std::span<const std::string_view> displayIntervals();

/// The number of frames; 0 where the text is none.
int framesOf(const AnimationSettings& settings);
/// The interval in whole seconds, halves to the even side; 0 where the text is none.
int intervalOf(const AnimationSettings& settings);

/// A text as the number that it is whole, without blanks around it; nothing where it is none or not finite.
std::optional<double> numberOf(std::string_view text);
