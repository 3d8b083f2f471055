#include "map/detail/AreaFigures.h"

#include "data/jet/Format.h"
#include "data/jet/FunctionLibrary.h"

#include <array>

namespace {

Value figure(const Recordset& row, const char* stem, int dataSet) {
    const Value& value = row.value(stem + std::to_string(dataSet));
    return value.isNull() ? Value(0) : value;
}

/// Halves go to the even digit.
Value rounded(const Value& value, int places) {
    const std::array<Value, 2> arguments{value, Value(places)};
    return jet::functions::round(arguments);
}

constexpr const char* perHead = " per head of population";
constexpr const char* pounds = "£#,###,##0.000";

std::string money(const Value& value) {
    return jet::formatValue(value, pounds);
}

std::string costText(const Recordset& row, const AreaQuestion& question) {
    const Value cost = figure(row, "Cost", question.dataSet);
    return "Cost\\(Revenue) = " + money(question.densities ? rounded(cost, 2) : cost) + "\\(" +
           money(figure(row, "Revenue", question.dataSet)) + ")" + (question.densities ? perHead : "");
}

/// A rate as it is shown, times calls or callers, in pounds.
std::string areaCost(const std::string& shownRate, const Value& count) {
    const double cost = Value(shownRate).asDouble() * count.asDouble();
    return rounded(Value(cost), 3).asText();
}

} // namespace

void describeFigures(const Recordset& row, const AreaQuestion& question, AreaDetail& detail) {
    const auto text = [&](const char* prefix, const char* stem) {
        const Value value = figure(row, stem, question.dataSet);
        return question.densities ? prefix + rounded(value, 3).asText() + perHead : prefix + value.asText();
    };
    detail.answered = text("Answered calls = ", "Answered");
    detail.engaged = text("Ineffective engaged = ", "Engaged");
    detail.rtnr = text("Ineffective RTNR = ", "RTNR");
    detail.other = text("Ineffective other = ", "Other");
    detail.ineffective = text("Total Ineffective = ", "Ineffective");
    detail.cost = costText(row, question);
    detail.lostCallers = text("Lost Callers = ", "LostCallers");
    detail.answeredCallers = text("Answered Callers = ", "AnsweredCallers");
}

AreaDetail::Campaign describeCampaign(const Recordset& row, int dataSet, const CampaignCosts& costs) {
    const std::string perCall = jet::formatValue(Value(costs.perAnsweredCall), "0.000");
    const std::string perCaller =
        costs.perAnsweredCaller == -1 ? "0.000" : jet::formatValue(Value(costs.perAnsweredCaller), "0.000");
    return {.costPerResponse = "Campaign Cost Per Answered Call = £" + perCall,
            .costPerCaller = "Campaign Cost Per Answered Caller = £" + perCaller,
            .areaCostPerAnsweredCaller = "Selected Area Cost For Answered Callers = £" +
                                         areaCost(perCaller, figure(row, "AnsweredCallers", dataSet)),
            .areaCostPerAnsweredCall =
                "Selected Area Cost For Answered Calls = £" + areaCost(perCall, figure(row, "Answered", dataSet))};
}
