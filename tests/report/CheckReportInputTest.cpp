#include "report/CheckReportInput.h"

#include "tests/support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

Date hour(int of) {
    return Date{of / 24.0};
}

TEST(CheckReportInput, AnOptionWithoutAnEntryIsRefusedByItsName) {
    struct Case {
        std::function<void(ReportParameters&)> set;
        const char* text;
    };
    const Case cases[] = {
        {[](auto& p) { p.OptAnswer = 1; }, "Please select an answer point from the drop down selector"},
        {[](auto& p) { p.OptAnswer = 2, p.CmbAnswer = "x"; },
         "Please select an answer point group from the drop down selector"},
        {[](auto& p) { p.OptInbound = 1; }, "Please select an inbound number from the drop down selector"},
        {[](auto& p) { p.OptInbound = 2; }, "Please select a community group from the drop down selector"},
        {[](auto& p) { p.optDestinationNo = 1; }, "Please select a destination ID from the drop down selector"},
    };
    for (const Case& item : cases) {
        ScriptedPrompts prompts;
        ReportParameters parameters;
        item.set(parameters);
        EXPECT_FALSE(checkChoices(parameters)) << item.text;
        EXPECT_EQ(prompts.texts, std::vector<std::string>{item.text});
    }
    ScriptedPrompts prompts;
    EXPECT_TRUE(checkChoices({}));
    EXPECT_TRUE(prompts.texts.empty());
}

TEST(CheckReportInput, TheLastDayMayBeTheFirstButNotBefore) {
    ScriptedPrompts prompts;
    ReportParameters parameters;
    parameters.DTStart = Date{45700.5};
    parameters.DTEnd = Date{45700};
    EXPECT_TRUE(checkDates(parameters));
    parameters.DTEnd = Date{45699};
    EXPECT_FALSE(checkDates(parameters));
    EXPECT_EQ(prompts.texts, std::vector<std::string>{"Invalid date selection, report abandoned"});
}

TEST(CheckReportInput, HoursThatEndBeforeTheyBeginAreAskedAbout) {
    ReportParameters parameters;
    parameters.DTStartTime = {hour(18), hour(8)};
    ScriptedPrompts prompts;
    prompts.answers = {PromptAnswer::Yes};
    EXPECT_TRUE(confirmTimes(parameters));
    EXPECT_NE(prompts.texts.back().find("OR earlier than end time same day"), std::string::npos);
    parameters.ChkOverNight = true;
    EXPECT_FALSE(confirmTimes(parameters));
    EXPECT_NE(prompts.texts.back().find("and earlier than end time next day"), std::string::npos);
    parameters.DTStartTime = {hour(8), hour(8)};
    EXPECT_FALSE(confirmTimes(parameters));
    EXPECT_NE(prompts.texts.back().find("time parameter will be ignored"), std::string::npos);
    parameters.DTStartTime = {hour(8), hour(9)};
    EXPECT_TRUE(confirmTimes(parameters));
    EXPECT_EQ(prompts.texts.size(), 3U);
}

TEST(CheckReportInput, RangesAskOnceForEachKindAndLeaveHiddenOnesAlone) {
    MultiMapParameters ranges;
    ranges.OptPeriods = 1;
    for (std::size_t map = 0; map < 6; ++map) {
        ranges.DTPicker1[map * 4] = ranges.DTPicker1[map * 4 + 2] = Date{45700};
        ranges.DTPicker1[map * 4 + 1] = hour(map % 2 == 0 ? 9 : 20);
        ranges.DTPicker1[map * 4 + 3] = hour(9);
    }
    ranges.DTPicker1[4 * 4 + 2] = Date{45000};
    ScriptedPrompts prompts;
    prompts.answers = {PromptAnswer::Yes, PromptAnswer::Yes};
    EXPECT_TRUE(checkRanges({}, ranges)) << "the fifth range is not shown";
    EXPECT_EQ(prompts.texts.size(), 2U);
    ranges.OptPeriods = 2;
    prompts.answers = {PromptAnswer::Yes, PromptAnswer::Yes};
    EXPECT_FALSE(checkRanges({}, ranges));
    EXPECT_EQ(prompts.texts.back(), "Invalid date selection, report abandoned");
}

} // namespace
