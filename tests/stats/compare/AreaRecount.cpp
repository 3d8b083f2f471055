#include "tests/stats/compare/AreaRecount.h"

#include "tests/stats/compare/PlainSelection.h"

#include <set>

namespace {

using Caller = std::optional<std::string>; ///< folded; nothing is a caller of its own

Caller callerOf(const ProjectCall& call) {
    return call.caller ? Caller(plainFold(*call.caller)) : Caller();
}

/// How the texts of the random projects read as whole numbers.
int outcomeNumber(const OptionalText& answerInd) {
    static const std::map<std::string, int> numbers{{"0", 0}, {"8", 8}, {"08", 8}, {" 8", 8},
                                                    {"2", 2}, {"9", 9}, {"4", 4}};
    const auto found = answerInd ? numbers.find(plainFold(*answerInd)) : numbers.end();
    return found == numbers.end() ? -1 : found->second;
}

void addCall(Figures& figures, int outcome) {
    figures[Total] += one;
    if (outcome == 0 || outcome == 8) {
        figures[Answered] += one;
        return;
    }
    figures[Ineffective] += one;
    figures[outcome == 2 || outcome == 9 ? Engaged : outcome == 4 ? Rtnr : Other] += one;
}

/// Sums of one sign by area, then by outcome, null before all texts.
using Sums = std::map<std::string, std::map<std::optional<std::string>, std::int64_t>>;

void takeMoney(std::map<std::string, Figures>& areas, const Sums& sums, FigureColumn column,
               const std::vector<std::string>& lastOutcome) {
    for (const auto& [area, byOutcome] : sums)
        areas[area][column] = isOneOf(area, lastOutcome) ? byOutcome.rbegin()->second : byOutcome.begin()->second;
}

} // namespace

std::map<std::string, Figures> countByArea(const std::vector<PlacedCall>& calls,
                                           const std::vector<std::string>& lastOutcome) {
    std::map<std::string, Figures> areas;
    Sums cost, revenue;
    for (const auto& [call, area] : calls) {
        if (!area)
            continue;
        Figures& figures = areas[plainFold(*area)];
        if (call->called)
            addCall(figures, outcomeNumber(call->answerInd));
        const auto outcome = call->answerInd ? std::optional(plainFold(*call->answerInd)) : std::nullopt;
        const long money = call->discounted.value_or(0);
        if (money > 0)
            cost[plainFold(*area)][outcome] += money;
        if (money < 0)
            revenue[plainFold(*area)][outcome] -= money;
    }
    takeMoney(areas, cost, Cost, lastOutcome);
    takeMoney(areas, revenue, Revenue, lastOutcome);
    return areas;
}

CallerCounts answeredByArea(const std::vector<PlacedCall>& calls) {
    std::map<std::string, std::set<Caller>> callers;
    for (const auto& [call, area] : calls) {
        if (area && isOneOf(call->answerInd, {"0", "8"}))
            callers[plainFold(*area)].insert(callerOf(*call));
    }
    CallerCounts counts;
    for (const auto& [area, found] : callers)
        counts[area] = static_cast<std::int64_t>(found.size()) * one;
    return counts;
}

CallerCounts lostByArea(const std::vector<PlacedCall>& calls, const std::vector<ProjectCall>& allCalls) {
    std::set<Caller> answeredOnce;
    for (const ProjectCall& call : allCalls) {
        if (call.caller && isOneOf(call.answerInd, {"0", "8"}))
            answeredOnce.insert(callerOf(call));
    }
    std::map<std::string, std::set<Caller>> callers;
    for (const auto& [call, area] : calls) {
        if (area && call->answerInd && !isOneOf(call->answerInd, {"0", "8"}) && !answeredOnce.contains(callerOf(*call)))
            callers[plainFold(*area)].insert(callerOf(*call));
    }
    CallerCounts counts;
    for (const auto& [area, found] : callers)
        counts[area] = static_cast<std::int64_t>(found.size()) * one;
    return counts;
}

Figures sidePanel(const std::vector<PlacedCall>& calls, const std::function<bool(const std::string& area)>& fits) {
    Figures figures{};
    for (const auto& [call, area] : calls) {
        if (!area || !fits(plainFold(*area)))
            continue;
        const long money = call->discounted.value_or(0);
        figures[money > 0 ? Cost : Revenue] += money > 0 ? money : -money;
        figures[Total] += one;
        if (!call->answerInd)
            continue; // of no kind at all
        const bool answered = isOneOf(call->answerInd, {"0", "8"});
        figures[answered ? Answered : Ineffective] += one;
        if (!answered)
            figures[isOneOf(call->answerInd, {"2", "9"}) ? Engaged
                    : isOneOf(call->answerInd, {"4"})    ? Rtnr
                                                         : Other] += one;
    }
    return figures;
}
