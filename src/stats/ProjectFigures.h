#pragma once

#include "stats/FigureSource.h"

#include <string>
#include <string_view>
#include <vector>

/// What both kinds of figures by statements do with the open project. Failures are logged under gsCurrentProc and
/// passed over: a query that fails has no rows.
namespace projectFigures {

void execute(const std::string& statement);
void dropWorkingTable(std::string_view table);

/// TblAnsweredCallers or TblLostCallers.
std::string callersTable(CallerKind kind);
/// "In" or "Not In" the codes of an answered call.
std::string outcomeTest(CallerKind kind);
/// Takes whoever was answered at any time, inside a selection or not, from TblLostCallers.
void removeAnsweredFromLost();

/// Rows of an area, CountOfCalledNo and AnswerInd.
std::vector<CallCount> readCallCounts(const std::string& query);
/// Rows of an area and SumOfDiscounted.
std::vector<MoneySum> readMoneySums(const std::string& query);
/// Rows of an area and a count.
std::vector<CallerCount> readCallerCounts(const std::string& query);
/// The one row of the sums of a side panel.
SpecialRowFigures readSpecialRow(const std::string& query);

} // namespace projectFigures
