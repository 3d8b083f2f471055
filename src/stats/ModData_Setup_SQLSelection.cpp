#include "stats/ModData_Setup_SQLSelection.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "stats/GroupMembers.h"
#include "stats/SelectionState.h"

#include <array>
#include <cstdio>

namespace {

/// Hour and minute of a call. The seconds of CallTime never count.
constexpr std::string_view callTime = "CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2))";
constexpr int lastSecondOfDay = 24 * 3600 - 1;

int secondOfDay(Date time) {
    const DateParts parts = partsOf(time);
    return (parts.hour * 60 + parts.minute) * 60 + parts.second;
}

std::string literal(Date date) {
    return "#" + Value(date).asText() + "#";
}

std::string timeLiteral(Date time) {
    const DateParts parts = partsOf(time);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "#%02d:%02d:%02d#", parts.hour, parts.minute, parts.second);
    return text.data();
}

/// The date whose text, day first, reads as `date` where the month stands first.
Date withDayAndMonthExchanged(Date date) {
    const std::string text = Value(date).asText(); // dd/mm/yyyy, perhaps with a time
    return parseDate(text.substr(3, 2) + "/" + text.substr(0, 2) + text.substr(5));
}

std::string timeClause(const ReportParameters& parameters, Date start, Date end, Date from, Date to) {
    const std::string time(callTime);
    const int first = secondOfDay(from);
    const int last = secondOfDay(to);
    if (parameters.ChkOverNight && first > last)
        return " AND (CallDate < " + literal(end) + " AND " + time + " > " + timeLiteral(from) + " OR (" + time +
               " <= " + timeLiteral(to) + ") AND CallDate > " + literal(start) + ")";
    if ((first <= 0 && last >= lastSecondOfDay) || first == last)
        return {};
    if (last > first)
        return " AND " + time + " >= " + timeLiteral(from) + " AND " + time + " <= " + timeLiteral(to);
    return " AND (" + time + " >= " + timeLiteral(from) + " OR " + time + " <= " + timeLiteral(to) + ")";
}

void describe(const std::string& line) {
    SelectionDescription += (SelectionDescription.empty() ? "" : "\r\n") + line;
}

std::string inboundClause(const ReportParameters& parameters) {
    if (parameters.OptInbound == 1 && !parameters.CmbInbound.empty()) {
        SelectionDescription = "Called No = " + parameters.CmbInbound;
        return " AND CalledNo Like '" + parameters.CmbInbound + "'";
    }
    if (parameters.OptInbound == 2 && !parameters.cmbCG.empty()) {
        const std::string numbers = ModUtilities_getnumbersforcg(parameters.cmbCG);
        SelectionDescription = "Community Group = " + parameters.cmbCG;
        return numbers;
    }
    return {};
}

std::string answerPointClause(const ReportParameters& parameters) {
    if (parameters.OptAnswer == 2 && !parameters.CmbAnswerGroup.empty()) {
        const std::string points = ModUtilities_getAnswerPointsForGroup(parameters.CmbAnswerGroup);
        describe("Answer Loc = " + parameters.CmbAnswerGroup);
        return points;
    }
    if (parameters.OptAnswer == 1 && !parameters.CmbAnswer.empty()) {
        describe("Answer Loc = " + parameters.CmbAnswer);
        return " AND AnswerLoc Like '" + parameters.CmbAnswer + "'";
    }
    return {};
}

std::string destinationClause(const ReportParameters& parameters) {
    if (parameters.cmbDestinationNo.empty())
        return {};
    describe("Destination ID = " + parameters.cmbDestinationNo);
    return " AND TblTeleItem.NetAddress LIKE '" + parameters.cmbDestinationNo + "' ";
}

} // namespace

void ModData_Setup_SQLSelection(const ReportParameters& parameters, std::string& selection, Date& startDate,
                                Date& endDate, Date startTime, Date endTime, int /*boundaryIndex*/) {
    gsCurrentProc = "ModData_Setup_SQLSelection";
    logAndGoOn(openCommunityGroups);
    selection.clear();
    SelectionDescription.clear();
    logAndGoOn([&] { startDate = withDayAndMonthExchanged(startDate); });
    logAndGoOn([&] { endDate = withDayAndMonthExchanged(endDate); });
    selection = " CallDate >= " + literal(startDate) + " AND CallDate <= " + literal(endDate);
    selection += timeClause(parameters, startDate, endDate, startTime, endTime);
    selection += inboundClause(parameters);
    if (parameters.OptInbound == 2 && !parameters.cmbCG.empty() && GroupLimitExceeded)
        return;
    selection += answerPointClause(parameters);
    selection += destinationClause(parameters);
    if (parameters.ChkOverNight)
        describe("Overnight");
}
