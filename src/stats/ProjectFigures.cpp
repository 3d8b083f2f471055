#include "stats/ProjectFigures.h"

#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"

#include <functional>

namespace projectFigures {

namespace {

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

void execute(const std::string& statement) {
    onSystemDatabase([&] { projectDatabase().execute(statement); });
}

void dropWorkingTable(std::string_view table) {
    onSystemDatabase([&] { dropTable(projectDatabase(), table); });
}

std::string callersTable(CallerKind kind) {
    return kind == CallerKind::Answered ? "TblAnsweredCallers" : "TblLostCallers";
}

std::string outcomeTest(CallerKind kind) {
    return kind == CallerKind::Answered ? "In ('0','8')" : "Not In ('0','8')";
}

void removeAnsweredFromLost() {
    execute("DELETE from TblLostCallers where Callingno in (select callingno from tblteleitem where answerind in "
            "('0', '8'))");
}

std::vector<CallCount> readCallCounts(const std::string& query) {
    std::vector<CallCount> counts;
    forEachRow(query, [&](const Recordset& row) {
        counts.push_back({areaName(row.value(0)), row.value("AnswerInd"), countOrZero(row.value("CountOfCalledNo"))});
    });
    return counts;
}

std::vector<MoneySum> readMoneySums(const std::string& query) {
    std::vector<MoneySum> sums;
    forEachRow(query, [&](const Recordset& row) {
        sums.push_back({areaName(row.value(0)), absolute(moneyOrZero(row.value("SumOfDiscounted")))});
    });
    return sums;
}

std::vector<CallerCount> readCallerCounts(const std::string& query) {
    std::vector<CallerCount> counts;
    forEachRow(query, [&](const Recordset& row) {
        counts.push_back({areaName(row.value(0)), countOrZero(row.value(1))});
    });
    return counts;
}

SpecialRowFigures readSpecialRow(const std::string& query) {
    SpecialRowFigures figures;
    forEachRow(query, [&](const Recordset& row) {
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

} // namespace projectFigures
