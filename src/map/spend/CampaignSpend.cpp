#include "map/spend/CampaignSpend.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "core/RuntimeError.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "map/detail/AreaDetail.h"
#include "stats/CurrentTables.h"
#include "stats/LinkedCalls.h"
#include "stats/SelectionState.h"

#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr double spendLimit = 99999999999999;
constexpr std::size_t longestEntry = 14; ///< characters
constexpr long divisionByZero = 11;

std::optional<std::string> askForSpend() {
    TextQuestion question;
    question.caption = "Campaign Spend";
    question.instructions = "Please enter Campaign Spend total. Click OK then select the 'i' icon to view the campaign "
                            "spend for a selected area.";
    question.text = shortestText(gcCampaignSpend);
    question.format = TextFormat::Currency;
    return prompts().getText(question);
}

/// Nothing where the text is too large an amount, or none; the user has been told.
std::optional<double> amountOf(const std::string& text) {
    try {
        if (text.size() <= longestEntry && Value(text).asDouble() < spendLimit)
            return Value(text).asMoney().toDouble();
        showMessage("Campaign Spend total must be less than " + shortestText(spendLimit));
    } catch (const RuntimeError&) {
        showMessage("\"" + text + "\" is not an amount of money.");
    }
    return std::nullopt;
}

AnsweredTotals answeredTotals() {
    if (const auto scanned = linkedAnsweredTotals())
        return *scanned;
    AnsweredTotals totals;
    totals.calls =
        countOf(systemDatabase(), "SELECT COUNT(*) AS RowCount FROM TblTeleItem_Link WHERE AnswerInd in ('0', '8')");
    totals.callers = systemDatabase()
                         .openRecordset("SELECT DISTINCT CallingNo FROM TblTeleItem_Link WHERE AnswerInd in ('0', '8')")
                         ->RecordCount();
    return totals;
}

double asCurrency(double pounds) {
    return Money::fromDouble(pounds).toDouble();
}

/// The table that a boundary shows; empty for another code.
std::string tableOf(long boundary) {
    struct Names {
        long boundary;
        const char *whole, *selected, *byPopulation;
    };
    constexpr Names names[] = {
        {0, "TblExchangeArea", "TblSelectedDataForExchangeArea", ""},
        {1, "TblCSG", "TblSelectedDataForCSG", ""},
        {2, "tblTV", "TblSelectedDataForTV", "tblTVByPopulation"},
        {3, "tblPostCodeDistrict", "TblSelectedDataForPostCodeDistrict", "tblPostCodeByPopulation"},
        {5, "TblCustomerGroups", "tblSelectedDataForCustomerGroups", ""},
    };
    for (const Names& name : names) {
        if (name.boundary != boundary)
            continue;
        if (FilterActive)
            return name.selected;
        return equalText(*currentTables.of(boundary), name.byPopulation) ? name.byPopulation : name.whole;
    }
    return {};
}

} // namespace

bool enterCampaignSpend() {
    const CurrentProcedure procedure("FrmMap_cmdCampaignSpend_Click");
    const std::optional<std::string> entered = askForSpend();
    if (!entered)
        return false;
    const std::optional<double> spend = amountOf(*entered);
    if (!spend)
        return false;
    gcCampaignSpend = *spend;
    const Hourglass hourglass;
    return logAndGoOn([] {
        const AnsweredTotals totals = answeredTotals();
        if (totals.calls == 0)
            throw RuntimeError(divisionByZero, "Division by zero");
        campaignCosts.perAnsweredCall = asCurrency(gcCampaignSpend / static_cast<double>(totals.calls));
        campaignCosts.perAnsweredCaller =
            totals.callers < 1 ? -1 : asCurrency(gcCampaignSpend / static_cast<double>(totals.callers));
    });
}

bool updateCostPerCallStats(long boundary, int dataSet) {
    const CurrentProcedure procedure("FrmMap_UpdateCostPerCallStats");
    const std::string table = tableOf(boundary);
    const double cost =
        gcCampaignSpend == 0 ? 0 : campaignCosts.perAnsweredCall; // rates of a former project stay behind
    const auto write = [&](std::string_view column, std::string_view figure) {
        const std::string value =
            cost == 0 ? "0" : std::string(figure) + std::to_string(dataSet) + " * " + shortestText(cost);
        systemDatabase().execute("UPDATE " + table + " SET " + std::string(column) + " = " + value);
    };
    return logAndGoOn([&] {
        write("AreaCostPerAnsweredCall", "Answered");
        // The callers of an area are charged at the rate of a call.
        write("AreaCostPerAnsweredCaller", "AnsweredCallers");
    });
}
