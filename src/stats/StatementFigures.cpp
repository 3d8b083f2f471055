#include "stats/StatementFigures.h"

#include "stats/CallQueries.h"
#include "stats/FigureEngine.h"
#include "stats/ProjectFigures.h"

using namespace projectFigures;

StatementFigures::StatementFigures(const BoundaryTraits& boundary) : area_(boundary.dataColumn) {}

std::string StatementFigures::areaIn(std::string_view table) const {
    return std::string(table) + "." + area_;
}

void StatementFigures::makeSelectedData(const CallSelection& selection) {
    noteUsedFigureEngine(FigureEngine::Statements);
    dropWorkingTable("SelectedData");
    execute(selectedCallsQuery(area_, selection, " INTO SelectedData"));
}

void StatementFigures::makeCallers(CallerKind kind, const std::string& where) {
    const std::string table = callersTable(kind);
    dropWorkingTable(table);
    execute(callersQuery(kind, area_, where, " INTO " + table));
    if (kind == CallerKind::Lost)
        removeAnsweredFromLost();
}

std::vector<CallCount> StatementFigures::callsByArea() {
    return readCallCounts("SELECT " + area_ +
                          ", Count(CalledNo) AS CountOfCalledNo, AnswerInd FROM SelectedData  GROUP BY " + area_ +
                          ", AnswerInd ORDER BY " + area_);
}

std::vector<MoneySum> StatementFigures::moneyByArea(CallMoney money) {
    const char* sign = money == CallMoney::Cost ? ">" : "<";
    return readMoneySums("SELECT " + area_ +
                         ", Sum(Discounted) AS SumOfDiscounted FROM SelectedData WHERE Discounted " + sign +
                         " 0  GROUP BY " + area_ + ", AnswerInd ORDER BY " + area_);
}

std::vector<CallerCount> StatementFigures::callersByArea(CallerKind kind) {
    const std::string table = callersTable(kind);
    return readCallerCounts("SELECT " + areaIn(table) + ", Count(" + areaIn(table) + ") AS CountOf" + area_ + " FROM " +
                            table + " GROUP BY " + areaIn(table) + " ORDER BY " + area_);
}

std::vector<CallerCount> StatementFigures::mobileAndVoipCallers(CallerKind kind) {
    const std::string table = callersTable(kind);
    return readCallerCounts("SELECT " + areaIn(table) + ", Count(" + areaIn(table) + ") AS CountOfArea FROM " + table +
                            " WHERE " + area_ + " IN ('MOBILE', 'VOIP') GROUP BY " + areaIn(table) + " ORDER BY " +
                            area_);
}

SpecialRowFigures StatementFigures::specialRow(std::string_view test) {
    return readSpecialRow(
        "SELECT count(*) AS TotalCalls, sum(iif(answerind in ('0','8'), 1, 0)) AS Answered, "
        "sum(iif(answerind NOT in ('0','8'), 1, 0)) AS Ineffective,  "
        "sum(iif(discounted > 0, discounted, 0)) AS Cost, sum(iif(discounted < 0, discounted, 0)) AS Revenue, "
        "sum(iif(answerind in ('2','9'), 1, 0)) AS Engaged, sum(iif(answerind = '4', 1, 0)) AS RTNR, "
        "sum(iif(answerind NOT in ('0','8', '2', '9', '4'), 1, 0)) AS Other from selecteddata where " +
        area_ + std::string(test));
}
