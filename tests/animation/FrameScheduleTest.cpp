#include "animation/FrameSchedule.h"

#include "animation/Animation.h"
#include "core/RuntimeError.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

std::string shown(Date day, Date time) {
    return Value(day).asText() + " " + Value(time).asText();
}

Texts framesIn(const FrameSchedule& schedule) {
    Texts texts;
    for (const AnimationFrame& frame : schedule.frames)
        texts.push_back(shown(frame.startDate, frame.startTime) + " to " + shown(frame.endDate, frame.endTime));
    return texts;
}

AnimationSettings startingAt(const char* day, const char* time, const char* length, const char* frames) {
    AnimationSettings settings;
    settings.startDate = parseDate(day);
    settings.startTime = parseDate(time);
    settings.CmbDataPeriod = length;
    settings.CmbFrames = frames;
    return settings;
}

const Date lastDate = parseDate("31/12/2025");

TEST(FrameSchedule, TenHoursFromTheEveningGoOnIntoTheNextDay) {
    const FrameSchedule schedule = scheduleFrames(startingAt("05/03/2025", "20:00:00", "1hr", "10"), lastDate);
    EXPECT_FALSE(schedule.fault);
    EXPECT_EQ(framesIn(schedule),
              (Texts{"05/03/2025 20:00:00 to 05/03/2025 21:00:00", "05/03/2025 21:00:01 to 05/03/2025 22:00:01",
                     "05/03/2025 22:00:02 to 05/03/2025 23:00:02", "05/03/2025 23:00:03 to 06/03/2025 00:00:03",
                     "06/03/2025 00:00:04 to 06/03/2025 01:00:04", "06/03/2025 01:00:05 to 06/03/2025 02:00:05",
                     "06/03/2025 02:00:06 to 06/03/2025 03:00:06", "06/03/2025 03:00:07 to 06/03/2025 04:00:07",
                     "06/03/2025 04:00:08 to 06/03/2025 05:00:08", "06/03/2025 05:00:09 to 06/03/2025 06:00:09"}));
}

TEST(FrameSchedule, DaysAreAddedAndAnEndAtMidnightBelongsToTheDayBefore) {
    struct Case {
        AnimationSettings settings;
        Texts frames;
    };
    const Case cases[] = {
        {startingAt("05/03/2025", "08:00:00", "48hr", "2"),
         {"05/03/2025 08:00:00 to 07/03/2025 08:00:00", "07/03/2025 08:00:01 to 09/03/2025 08:00:01"}},
        {startingAt("30/03/2025", "00:00:00", "24hr", "3"), // over the ends of a month and of winter time
         {"30/03/2025 00:00:00 to 30/03/2025 23:59:59", "31/03/2025 00:00:00 to 31/03/2025 23:59:59",
          "01/04/2025 00:00:00 to 01/04/2025 23:59:59"}},
        {startingAt("28/02/2024", "00:00:00", "48hr", "2"),
         {"28/02/2024 00:00:00 to 29/02/2024 23:59:59", "01/03/2024 00:00:00 to 02/03/2024 23:59:59"}},
        {startingAt("05/03/2025", "23:00:00", "1hr", "2"),
         {"05/03/2025 23:00:00 to 05/03/2025 23:59:59", "06/03/2025 00:00:00 to 06/03/2025 01:00:00"}},
        {startingAt("05/03/2025", "10:15:30", "1.5hr", "2"),
         {"05/03/2025 10:15:30 to 05/03/2025 11:45:30", "05/03/2025 11:45:31 to 05/03/2025 13:15:31"}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(framesIn(scheduleFrames(c.settings, lastDate)), c.frames);
}

TEST(FrameSchedule, NoFrameEndsAfterTheLastDate) {
    const auto ending = [](const char* start, const char* length, const char* frames) {
        return scheduleFrames(startingAt("31/12/2025", start, length, frames), lastDate);
    };
    EXPECT_EQ(framesIn(ending("23:50:00", "2min", "4")).back(), "31/12/2025 23:56:03 to 31/12/2025 23:58:03");
    for (const FrameSchedule& schedule : {ending("23:01:00", "1hr", "1"), ending("23:00:00", "1hr", "1"),
                                          ending("23:50:00", "2min", "5"), ending("00:00:00", "48hr", "2")}) {
        EXPECT_TRUE(schedule.frames.empty()) << "not even those that would fit";
        ASSERT_TRUE(schedule.fault);
        EXPECT_EQ(schedule.fault->text, "Selected settings will exceed the period of the calls contained within this "
                                        "project, please reselect");
        EXPECT_EQ(schedule.fault->style, PromptStyle::Information);
    }
}

TEST(FrameSchedule, WithAStartAndAnEndTheFramesShareTheTimeBetween) {
    AnimationSettings settings = startingAt("05/03/2025", "10:00:00", "48hr", "4");
    settings.OptPeriod = 0;
    settings.endDate = parseDate("05/03/2025");
    settings.endTime = parseDate("12:00:00");
    EXPECT_EQ(framesIn(scheduleFrames(settings, lastDate)),
              (Texts{"05/03/2025 10:00:00 to 05/03/2025 10:30:00", "05/03/2025 10:30:01 to 05/03/2025 11:00:01",
                     "05/03/2025 11:00:02 to 05/03/2025 11:30:02", "05/03/2025 11:30:03 to 05/03/2025 12:00:03"}));
    settings.CmbFrames = "7";
    EXPECT_EQ(frameMinutes(settings), 17) << "whole minutes";
    for (const char* end : {"09:00:00", "10:00:00", "10:06:59"}) {
        settings.endTime = parseDate(end);
        const FrameSchedule schedule = scheduleFrames(settings, lastDate);
        ASSERT_TRUE(schedule.fault) << end;
        EXPECT_EQ(schedule.fault->text, "Error calculating intervals");
    }
}

TEST(FrameSchedule, LengthsAreReadAsTheListHasThem) {
    EXPECT_EQ(minutesOf("1min"), 1);
    EXPECT_EQ(minutesOf("45min"), 45);
    EXPECT_EQ(minutesOf("1.5hr"), 90);
    EXPECT_EQ(minutesOf("48hr"), 2880);
    EXPECT_EQ(minutesOf("0.01hr"), 0) << "parts of a minute are cut off";
    EXPECT_EQ(minutesOf("2 hr"), 120);
    for (const char* none : {"", "hr", "min", "1", "1day", "xhr", "1e300hr", "nanhr", "1 2hr"})
        EXPECT_EQ(minutesOf(none), std::nullopt) << none;
    for (const char* length : {"", "60", "-1hr", "0min"}) {
        const FrameSchedule schedule = scheduleFrames(startingAt("05/03/2025", "10:00:00", length, "2"), lastDate);
        ASSERT_TRUE(schedule.fault) << length;
        EXPECT_EQ(schedule.fault->text, "Error calculating intervals");
    }
    for (const std::string_view period : dataPeriods())
        EXPECT_GT(minutesOf(period).value_or(0), 0) << period;
    EXPECT_EQ(dataPeriods().size(), 25U);
}

TEST(FrameSchedule, FiveFramesFillATable) {
    EXPECT_EQ(animatedTable(2, 5), "TblAnimatedTV1");
    EXPECT_EQ(animatedPeriod(5), 5);
    EXPECT_EQ(animatedTable(2, 6), "TblAnimatedTV2");
    EXPECT_EQ(animatedPeriod(6), 1);
    EXPECT_EQ(animatedTable(3, 1), "TblAnimatedPostCodeDistrict1");
    EXPECT_EQ(animatedTable(3, 10), "TblAnimatedPostCodeDistrict2");
    EXPECT_EQ(animatedPeriod(10), 5);
    EXPECT_THROW(animatedTable(0, 1), RuntimeError);
    for (const int frame : {0, 11}) {
        EXPECT_THROW(animatedTable(2, frame), RuntimeError);
        EXPECT_THROW(animatedPeriod(frame), RuntimeError);
    }
}

} // namespace
