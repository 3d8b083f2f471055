#pragma once

#include "stats/FigureSource.h"

#include <optional>
#include <string>
#include <vector>

/// Figures of the calls that the system map database is linked to, TblTeleItem_Link and TblGIS_Link, by a scan of the
/// project's calls. Nothing where statements have to be asked: they are wanted, the links lead elsewhere, or the
/// selection does not fit a scan. Where only a scan is wanted, what it cannot do is logged, and there are no rows.
/// `where` is a selection, empty for all calls.

struct AreaCallers {
    AreaName area;
    std::int64_t calls = 0;   ///< with a date
    std::int64_t callers = 0; ///< distinct ones; an unknown caller is none
};
/// For each of the columns of TblMappingGIS its areas with calls, in their order.
std::optional<std::vector<std::vector<AreaCallers>>> linkedCallers(const std::vector<std::string>& columns,
                                                                   const std::string& where);

/// Of the calls from payphones. totalCalls leaves out those without an AnswerInd.
std::optional<SpecialRowFigures> linkedPayphoneCalls(const std::string& where);

struct AnsweredTotals {
    std::int64_t calls = 0;
    std::int64_t callers = 0; ///< distinct ones; those unknown are one
};
/// Of all calls.
std::optional<AnsweredTotals> linkedAnsweredTotals();
