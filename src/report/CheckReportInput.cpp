#include "report/CheckReportInput.h"

#include "core/Prompts.h"

#include <cmath>
#include <string>

namespace {

bool refuse(const std::string& text) {
    showMessage(text, PromptStyle::Information);
    return false;
}

bool inOrder(Date start, Date end) {
    return std::floor(start.days) <= std::floor(end.days);
}

int secondOfDay(Date time) {
    const DateParts parts = partsOf(time);
    return (parts.hour * 60 + parts.minute) * 60 + parts.second;
}

constexpr const char* wrongDates = "Invalid date selection, report abandoned";

struct Choice {
    bool isSet;
    const std::string& text;
    const char* what;
};

} // namespace

bool checkDates(const ReportParameters& parameters) {
    return inOrder(parameters.DTStart, parameters.DTEnd) || refuse(wrongDates);
}

bool checkChoices(const ReportParameters& parameters) {
    const Choice choices[] = {
        {parameters.OptAnswer == 1, parameters.CmbAnswer, "an answer point"},
        {parameters.OptAnswer == 2, parameters.CmbAnswerGroup, "an answer point group"},
        {parameters.OptInbound == 1, parameters.CmbInbound, "an inbound number"},
        {parameters.OptInbound == 2, parameters.cmbCG, "a community group"},
        {parameters.optDestinationNo == 1, parameters.cmbDestinationNo, "a destination ID"},
    };
    for (const Choice& choice : choices) {
        if (choice.isSet && choice.text.empty())
            return refuse("Please select " + std::string(choice.what) + " from the drop down selector");
    }
    return true;
}

bool confirmTimes(const ReportParameters& parameters) {
    const int start = secondOfDay(parameters.DTStartTime[0]), end = secondOfDay(parameters.DTStartTime[1]);
    if (start < end)
        return true;
    if (start == end)
        return askYesNo("Start time set to same value as end time, time parameter will be ignored - are you sure you "
                        "want to continue ?");
    return askYesNo(parameters.ChkOverNight
                        ? "Start time set later than end time, call records will be found which are later than start "
                          "time and earlier than end time next day - are you sure you want to continue ?"
                        : "Start time set later than end time, call records will be found which are later than start "
                          "time OR earlier than end time same day - are you sure you want to continue ?");
}

bool checkRanges(const ReportParameters& parameters, const MultiMapParameters& ranges) {
    bool askedEqual = false, askedLater = false;
    for (int map = 0; map < mapCount(ranges); ++map) {
        const Date* picked = &ranges.DTPicker1[static_cast<std::size_t>(map) * 4];
        if (!inOrder(picked[0], picked[2]))
            return refuse(wrongDates);
        const int start = secondOfDay(picked[1]), end = secondOfDay(picked[3]);
        if (start == end && !askedEqual) {
            askedEqual = true;
            if (!askYesNo("One or more start times have been set to same value as the end time, the time parameter "
                          "will be ignored for these instances - are you sure you want to continue ?"))
                return false;
        }
        if (start > end && !askedLater) {
            askedLater = true;
            if (!askYesNo(parameters.ChkOverNight
                              ? "One or more start times have been set later than the end time, for these instances, "
                                "call records will be found which are later than start time and earlier than end time "
                                "next day - are you sure you want to continue ?"
                              : "One or more start times have been set later than the end time, for these instances, "
                                "call records will be found which are later than start time OR earlier than end time "
                                "same day - are you sure you want to continue ?"))
                return false;
        }
    }
    return true;
}
