#include "stats/StatementFigures.h"

#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"

#include <functional>

namespace {

constexpr std::string_view callsWithGeography =
    " FROM TblTeleItem INNER JOIN TblMappingGIS ON TblTeleItem.[1141] = TblMappingGIS.[1141]";

std::string callersTable(CallerKind kind) {
    return kind == CallerKind::Answered ? "TblAnsweredCallers" : "TblLostCallers";
}

void onProject(const std::string& statement) {
    onSystemDatabase([&] { projectDatabase().execute(statement); });
}

void dropWorkingTable(const std::string& table) {
    onSystemDatabase([&] { dropTable(projectDatabase(), table); });
}

/// Calls `take` for each row of a query; a query that fails has no rows.
void forEachRow(const std::string& query, const std::function<void(const Recordset& row)>& take) {
    onSystemDatabase([&] {
        const auto rows = projectDatabase().openRecordset(query);
        for (; !rows->EOF_(); rows->MoveNext())
            take(*rows);
    });
}

AreaName areaName(const Value& value) {
    return value.isNull() ? AreaName() : AreaName(value.asText());
}

Money absolute(Money money) {
    return {money.tenThousandths < 0 ? -money.tenThousandths : money.tenThousandths};
}

Money moneyOrZero(const Value& sum) {
    return sum.isNull() ? Money{} : sum.asMoney();
}
std::int64_t countOrZero(const Value& sum) {
    return sum.isNull() ? 0 : sum.asInteger();
}

} // namespace

std::unique_ptr<FigureSource> newFigureSource(const BoundaryTraits& boundary) {
    return std::make_unique<StatementFigures>(boundary);
}

StatementFigures::StatementFigures(const BoundaryTraits& boundary) : area_(boundary.dataColumn) {}

std::string StatementFigures::areaIn(std::string_view table) const {
    return std::string(table) + "." + area_;
}

void StatementFigures::makeSelectedData(const CallSelection& selection) {
    std::string condition;
    if (!selection.where.empty())
        condition = " WHERE " + selection.where;
    else if (selection.withoutUnplacedCalls)
        condition = " WHERE TblMappingGIS.[1141] NOT IN ('MOBILE', 'UNTRACEAB', 'OLO', 'NO CLI')";
    dropWorkingTable("SelectedData");
    onProject("SELECT TblTeleItem.CalledNo, TblTeleItem.AnswerInd, TblTeleItem.Discounted, " + areaIn("TblMappingGIS") +
              " INTO SelectedData" + std::string(callsWithGeography) + condition + " ORDER BY " +
              areaIn("TblMappingGIS") + ", AnswerInd");
}

void StatementFigures::makeCallers(CallerKind kind, const std::string& where) {
    const bool answered = kind == CallerKind::Answered;
    const std::string table = callersTable(kind);
    dropWorkingTable(table);
    onProject("SELECT DISTINCT TblTeleItem.CallingNo, " + areaIn("TblMappingGIS") + " INTO " + table +
              std::string(callsWithGeography) + " WHERE (((TblTeleItem.AnswerInd) " + (answered ? "In" : "Not In") +
              " ('0','8')))" + (where.empty() ? "" : " AND " + where));
    // Whoever was answered at any time, inside the selection or not, is not lost.
    if (!answered)
        onProject("DELETE from TblLostCallers where Callingno in (select callingno from tblteleitem where answerind in "
                  "('0', '8'))");
}

std::vector<CallCount> StatementFigures::callsByArea() {
    std::vector<CallCount> counts;
    forEachRow("SELECT " + area_ + ", Count(CalledNo) AS CountOfCalledNo, AnswerInd FROM SelectedData  GROUP BY " +
                   area_ + ", AnswerInd ORDER BY " + area_,
               [&](const Recordset& row) {
                   counts.push_back(
                       {areaName(row.value(0)), row.value("AnswerInd"), countOrZero(row.value("CountOfCalledNo"))});
               });
    return counts;
}

std::vector<MoneySum> StatementFigures::moneyByArea(CallMoney money) {
    const char* sign = money == CallMoney::Cost ? ">" : "<";
    std::vector<MoneySum> sums;
    forEachRow("SELECT " + area_ + ", Sum(Discounted) AS SumOfDiscounted FROM SelectedData WHERE Discounted " + sign +
                   " 0  GROUP BY " + area_ + ", AnswerInd ORDER BY " + area_,
               [&](const Recordset& row) {
                   sums.push_back({areaName(row.value(0)), absolute(moneyOrZero(row.value("SumOfDiscounted")))});
               });
    return sums;
}

std::vector<CallerCount> StatementFigures::callersByArea(CallerKind kind) {
    const std::string table = callersTable(kind);
    return readCallers("SELECT " + areaIn(table) + ", Count(" + areaIn(table) + ") AS CountOf" + area_ + " FROM " +
                       table + " GROUP BY " + areaIn(table) + " ORDER BY " + area_);
}

std::vector<CallerCount> StatementFigures::mobileAndVoipCallers(CallerKind kind) {
    const std::string table = callersTable(kind);
    return readCallers("SELECT " + areaIn(table) + ", Count(" + areaIn(table) + ") AS CountOfArea FROM " + table +
                       " WHERE " + area_ + " IN ('MOBILE', 'VOIP') GROUP BY " + areaIn(table) + " ORDER BY " + area_);
}

std::vector<CallerCount> StatementFigures::readCallers(const std::string& query) {
    std::vector<CallerCount> counts;
    forEachRow(query, [&](const Recordset& row) {
        counts.push_back({areaName(row.value(0)), countOrZero(row.value(1))});
    });
    return counts;
}

SpecialRowFigures StatementFigures::specialRow(std::string_view test) {
    SpecialRowFigures figures;
    forEachRow("SELECT count(*) AS TotalCalls, sum(iif(answerind in ('0','8'), 1, 0)) AS Answered, "
               "sum(iif(answerind NOT in ('0','8'), 1, 0)) AS Ineffective,  "
               "sum(iif(discounted > 0, discounted, 0)) AS Cost, sum(iif(discounted < 0, discounted, 0)) AS Revenue, "
               "sum(iif(answerind in ('2','9'), 1, 0)) AS Engaged, sum(iif(answerind = '4', 1, 0)) AS RTNR, "
               "sum(iif(answerind NOT in ('0','8', '2', '9', '4'), 1, 0)) AS Other from selecteddata where " +
                   area_ + std::string(test),
               [&](const Recordset& row) {
                   figures.totalCalls = countOrZero(row.value("TotalCalls"));
                   figures.answered = countOrZero(row.value("Answered"));
                   figures.ineffective = countOrZero(row.value("Ineffective"));
                   figures.cost = moneyOrZero(row.value("Cost"));
                   figures.revenue = absolute(moneyOrZero(row.value("Revenue")));
                   figures.engaged = countOrZero(row.value("Engaged"));
                   figures.rtnr = countOrZero(row.value("RTNR"));
                   figures.other = countOrZero(row.value("Other"));
               });
    return figures;
}
