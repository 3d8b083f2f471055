#include "stats/CallQueries.h"

#include "stats/ProjectFigures.h"

namespace {

constexpr std::string_view callsWithGeography =
    " FROM TblTeleItem INNER JOIN TblMappingGIS ON TblTeleItem.[1141] = TblMappingGIS.[1141]";

} // namespace

std::string selectedCallsQuery(const std::string& area, const CallSelection& selection, std::string_view into) {
    std::string condition;
    if (!selection.where.empty())
        condition = " WHERE " + selection.where;
    else if (selection.withoutUnplacedCalls)
        condition = " WHERE TblMappingGIS.[1141] NOT IN ('MOBILE', 'UNTRACEAB', 'OLO', 'NO CLI')";
    return "SELECT TblTeleItem.CalledNo, TblTeleItem.AnswerInd, TblTeleItem.Discounted, TblMappingGIS." + area +
           std::string(into) + std::string(callsWithGeography) + condition + " ORDER BY TblMappingGIS." + area +
           ", AnswerInd";
}

std::string callersQuery(CallerKind kind, const std::string& area, const std::string& where, std::string_view into) {
    return "SELECT DISTINCT TblTeleItem.CallingNo, TblMappingGIS." + area + std::string(into) +
           std::string(callsWithGeography) + " WHERE (((TblTeleItem.AnswerInd) " + projectFigures::outcomeTest(kind) +
           "))" + (where.empty() ? "" : " AND " + where);
}

std::string neverAnswered() {
    // An unknown caller is nobody who could have been answered.
    return "(TblTeleItem.CallingNo Is Null Or TblTeleItem.CallingNo Not In (SELECT Answered.CallingNo FROM TblTeleItem "
           "AS Answered WHERE Answered.AnswerInd In ('0','8') AND Answered.CallingNo Is Not Null))";
}

std::string neverAnsweredQuery(const std::string& area, const std::string& where) {
    return callersQuery(CallerKind::Lost, area, neverAnswered() + (where.empty() ? "" : " AND " + where));
}
