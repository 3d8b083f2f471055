#pragma once

#include "tests/stats/compare/RandomRun.h"

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// The figures of an area in the order of their columns, in ten-thousandths: total, answered, ineffective, cost,
/// revenue, engaged, ring tone no reply, other, lost callers, answered callers.
using Figures = std::array<std::int64_t, 10>;
inline constexpr std::int64_t one = 10000;
enum FigureColumn { Total, Answered, Ineffective, Cost, Revenue, Engaged, Rtnr, Other, LostCallers, AnsweredCallers };

/// A call in one of the areas that its code belongs to.
struct PlacedCall {
    const ProjectCall* call;
    OptionalText area;
};

/// What the statistics need of calls, counted by loops over them.

/// TotalCalls to Other by folded area, of calls with a number that was called; money is that of the first outcome in
/// the order of texts, or of the last for the areas that `lastOutcome` names.
std::map<std::string, Figures> countByArea(const std::vector<PlacedCall>& calls,
                                           const std::vector<std::string>& lastOutcome = {});

/// Distinct callers by folded area: answered within the calls; not answered within them, and at no time.
using CallerCounts = std::map<std::string, std::int64_t>;
CallerCounts answeredByArea(const std::vector<PlacedCall>& calls);
CallerCounts lostByArea(const std::vector<PlacedCall>& calls, const std::vector<ProjectCall>& allCalls);

/// The side panel of the calls whose area fits: all of them count, and so does all their money.
Figures sidePanel(const std::vector<PlacedCall>& calls, const std::function<bool(const std::string& area)>& fits);
