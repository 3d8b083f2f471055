#include "stats/ModUtilities_GetPayphoneStatistics.h"

#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/CurrentProcedure.h"
#include "stats/LinkedCalls.h"

namespace {

std::string sumOf(const std::string& condition, const std::string& value, const char* name) {
    return "Sum(IIf(" + condition + "," + value + ",0)) AS " + name + ", ";
}

std::string countOrZero(const std::string& condition, const char* name) {
    const std::string sum = "SUM(Iif(" + condition + ", 1, ))";
    return "IIF (ISNULL(" + sum + " ), 0, " + sum + " ) AS " + name;
}

/// The linked calls go by the name that a selection knows them by.
std::string payphoneStatement() {
    const std::string outcome = "TblTeleItem.AnswerInd";
    const std::string money = "TblTeleItem.Discounted";
    return "SELECT Count(" + outcome + ") AS TotalCalls, " +
           sumOf(outcome + "='0' Or " + outcome + "='8'", "1", "Answered") +
           sumOf(outcome + "<>'0' And " + outcome + "<>'8'", "1", "Ineffective") + sumOf(money + ">0", money, "Cost") +
           sumOf(money + "<0", "-" + money, "Revenue") +
           sumOf(outcome + "='2' Or " + outcome + "='9'", "1", "Engaged") + sumOf(outcome + "='4'", "1", "RTNR") +
           sumOf(outcome + " Not In ('0','8','2','9','4')", "1", "Other") +
           countOrZero(outcome + " Not In ('0','8')", "LostCallers") + ", " +
           countOrZero(outcome + " In ('0','8')", "AnsweredCallers") +
           " FROM TblTeleItem_Link AS TblTeleItem WHERE Payphone = 'P'" +
           (SelectionSql.empty() ? "" : " AND " + SelectionSql);
}

/// The figure of that name; nothing where it is none of them.
std::optional<double> figureNamed(const std::string& name, const SpecialRowFigures& figures) {
    const std::pair<std::string_view, double> named[] = {
        {"TotalCalls", static_cast<double>(figures.totalCalls)},
        {"Answered", static_cast<double>(figures.answered)},
        {"Ineffective", static_cast<double>(figures.ineffective)},
        {"Cost", Value(figures.cost).asDouble()},
        {"Revenue", Value(figures.revenue).asDouble()},
        {"Engaged", static_cast<double>(figures.engaged)},
        {"RTNR", static_cast<double>(figures.rtnr)},
        {"Other", static_cast<double>(figures.other)},
        // Here these are calls, not callers.
        {"LostCallers", static_cast<double>(figures.ineffective)},
        {"AnsweredCallers", static_cast<double>(figures.answered)},
    };
    for (const auto& [known, value] : named) {
        if (equalText(known, name))
            return value;
    }
    return {};
}

} // namespace

void ModUtilities_GetPayphoneStatistics(const std::string& name, double& value) {
    const CurrentProcedure procedure("ModUtilities_GetPayphoneStatistics");
    value = 0;
    onSystemDatabase([&] {
        const auto scanned = linkedPayphoneCalls(SelectionSql);
        const auto known = scanned ? figureNamed(name, *scanned) : std::nullopt;
        if (known) {
            value = *known;
            return;
        }
        const auto figures = systemDatabase().openRecordset(payphoneStatement());
        const Value& figure = figures->value(name);
        value = figure.isNull() ? 0 : figure.asDouble();
    });
}
