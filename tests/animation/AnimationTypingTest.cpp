#include "animation/AnimationTyping.h"
#include "animation/AnimationSettings.h"
#include "animation/AnimationSetup.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* aboveTen = "Invalid value entered - value must not exceed 10.";
constexpr const char* aboveThirty = "Invalid value entered - value must not exceed 30.";

TEST(AnimationTyping, NumbersHaveTheirLimitWhenTheListIsLeft) {
    struct Case {
        const char* text;
        const char* frames;
        const char* interval;
    };
    const Case cases[] = {
        {"", "", ""},
        {"10", "", ""},
        {"11", aboveTen, ""},
        {"30", aboveTen, ""},
        {"31", aboveTen, aboveThirty},
        {"99999999999999999999", aboveTen, aboveThirty},
        {"2.5", notWhole, ""},
        {"30.5", aboveTen, aboveThirty},
        {"two", notNumeric, notNumeric},
        {"1O", notNumeric, notNumeric},
        {"inf", notNumeric, notNumeric},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(framesFault(c.text), c.frames) << c.text;
        EXPECT_EQ(intervalFault(c.text), c.interval) << c.text;
    }
}

TEST(AnimationTyping, IntervalsAreWholeSecondsWithHalvesToTheEvenSide) {
    for (const auto& [text, seconds] : {std::pair{"1", 1}, {"1.5", 2}, {"2.5", 2}, {"30", 30}, {"x", 0}, {"", 0}}) {
        AnimationSettings settings;
        settings.CmbInterval = text;
        EXPECT_EQ(intervalOf(settings), seconds) << text;
    }
}

TEST(AnimationTyping, TheFirstThingWrongIsTold) {
    const ProjectPeriod project{parseDate("02/01/2025"), parseDate("30/01/2025")};
    AnimationSettings settings;
    settings.startDate = parseDate("01/01/2025");
    settings.startTime = parseDate("23:59:59");
    settings.endDate = parseDate("31/01/2025");
    EXPECT_EQ(settingsFault(settings, project), "Invalid start date entered");
    settings.startDate = project.start;
    settings.OptPeriod = 0;
    EXPECT_EQ(settingsFault(settings, project), "Invalid end date entered");
    settings.OptPeriod = 1;
    EXPECT_EQ(settingsFault(settings, project), "Please select a data period") << "the end is not asked for";
    settings.OptPeriod = 0;
    settings.endDate = project.end;
    settings.endTime = parseDate("23:59:59");
    EXPECT_EQ(settingsFault(settings, project), "Please select number of frames") << "the length is not asked for";
    settings.CmbFrames = "0";
    EXPECT_EQ(settingsFault(settings, project), "Please select number of frames");
    settings.CmbFrames = "4";
    EXPECT_EQ(settingsFault(settings, project), "Please select a display interval");
    settings.CmbInterval = "31";
    EXPECT_EQ(settingsFault(settings, project), aboveThirty);
    settings.CmbInterval = "1.5";
    EXPECT_EQ(settingsFault(settings, project), "");
    settings.CmbFrames = "11";
    EXPECT_EQ(settingsFault(settings, project), aboveTen);
}

} // namespace
