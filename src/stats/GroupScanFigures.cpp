#include "stats/GroupScanFigures.h"

#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "data/types/DatabaseError.h"
#include "stats/CallQueries.h"
#include "stats/FigureEngine.h"
#include "stats/GroupQueries.h"
#include "stats/ProjectCalls.h"
#include "stats/ProjectFigures.h"
#include "stats/ScanSelection.h"
#include "stats/WorkingViews.h"

#include <algorithm>

namespace {

/// Places of the boundaries in a scan.
constexpr std::size_t named = 0;
constexpr std::size_t unnamed = 1;

std::vector<std::string> referencesIn(const std::string& quotedList) {
    std::vector<std::string> names;
    for (const char* name : {"International", "Mobile", "VOIP", "Other"}) {
        if (quotedList.find("'" + upperText(name)) != std::string::npos)
            names.emplace_back(name);
    }
    return names;
}

} // namespace

std::unique_ptr<FigureSource> newGroupFigureSource(const std::string& table, GroupAreas areas) {
    if (figureEngine() == FigureEngine::Statements)
        return std::make_unique<GroupFigures>(table, areas);
    return std::make_unique<GroupScanFigures>(table, areas);
}

GroupScanFigures::GroupScanFigures(std::string table, GroupAreas areas)
    : table_(std::move(table)), areas_(areas), statements_(table_, areas) {}

std::optional<CallScan> GroupScanFigures::scan(const std::string& where) {
    try {
        if (!columns_)
            columns_ = projectCalls();
        const ScanSelection selection(columns_.get(), where);
        if (!groups_)
            groups_.emplace(projectDatabase(), areas_, *columns_);
        const ScanBoundary* boundaries[] = {&groups_->namedMembers, &groups_->unnamedMembers};
        return scanCalls(*columns_, selection.predicate(), boundaries);
    } catch (const DatabaseError& error) {
        refusal_ = error.description();
        return {};
    }
}

void GroupScanFigures::makeSelectedData(const CallSelection& selection) {
    where_ = selection.where;
    columns_.reset();
    groups_.reset();
    selected_ = scan(where_);
    if (selected_) {
        noteUsedFigureEngine(FigureEngine::Scan);
        leaveSelectedCalls(where_);
        return;
    }
    noteUsedFigureEngine(FigureEngine::Automatic);
    selectedByNobody_ = !mayAskStatements(refusal_);
    if (!selectedByNobody_)
        statements_.makeSelectedData(selection);
}

void GroupScanFigures::leaveSelectedCalls(const std::string& where) const {
    const std::string column = columnOfAreasWithoutCalls(areas_);
    const std::string inGroups = callAreasInGroups();
    const std::string calls = groupedCallsQuery(areas_, where);
    leaveView(table_, calls + " UNION ALL SELECT DISTINCT Places." + column +
                          ", Null, Null, Null FROM TblTempGIS AS Places LEFT JOIN (" + calls + ") AS Shown ON Places." +
                          column + " = Shown.GroupName WHERE Shown.GroupName Is Null" +
                          (inGroups.empty() ? "" : " AND Places." + column + " NOT IN (" + inGroups + ")"));
}

void GroupScanFigures::leaveCallers(CallerKind kind, const std::string& where) const {
    std::string condition = where;
    if (kind == CallerKind::Lost)
        condition = neverAnswered() + (where.empty() ? "" : " AND " + where);
    leaveView(projectFigures::callersTable(kind), groupCallersQuery(areas_, kind, true, condition) + " UNION ALL " +
                                                      groupCallersQuery(areas_, kind, false, condition));
}

void GroupScanFigures::makeCallers(CallerKind kind, const std::string& where) {
    auto& callers = kind == CallerKind::Answered ? answered_ : lost_;
    callers.reset();
    std::optional<CallScan> scanned;
    if (!where.empty() && !standsBehindAnd(where))
        refusal_ = "The selection means something else behind an And:" + where;
    else
        scanned = selected_ && where == where_ ? selected_ : scan(where);
    if (!scanned) {
        if (mayAskStatements(refusal_))
            statements_.makeCallers(kind, where);
        else
            callers.emplace();
        return;
    }
    const auto countsOf = [&](std::size_t place) -> const std::vector<std::int64_t>& {
        return kind == CallerKind::Answered ? scanned->callers[place].answered : scanned->callers[place].lost;
    };
    callers.emplace();
    for (std::size_t group = 0; group < groups_->names.size(); ++group) {
        const std::int64_t count = countsOf(named)[group] + countsOf(unnamed)[group];
        if (count > 0)
            callers->push_back({groups_->names[group], count});
    }
    leaveCallers(kind, where);
}

std::vector<CallCount> GroupScanFigures::callsByArea() {
    if (!selected_)
        return selectedByNobody_ ? std::vector<CallCount>() : statements_.callsByArea();
    std::vector<CallCount> counts;
    std::vector<bool> hasCalls(groups_->names.size(), false);
    forEachSum(*columns_, *selected_, groups_->calls, {},
               [&](std::uint32_t group, const Value& answerInd, const CallSums& sums) {
                   hasCalls[group] = true;
                   if (!equalText(groups_->names[group], ""))
                       counts.push_back({groups_->names[group], answerInd, sums.calls - sums.callsWithoutNumber});
               });
    // Areas without calls stand among the selected ones, but for those beside the map that are in a group.
    const auto inGroups = referencesIn(upperText(callAreasInGroups()));
    for (const std::uint32_t group : groups_->namedAsAreas) {
        const std::string& name = groups_->names[group];
        const bool excluded =
            std::any_of(inGroups.begin(), inGroups.end(), [&](const std::string& one) { return equalText(one, name); });
        if (!hasCalls[group] && !excluded && !equalText(name, ""))
            counts.push_back({name, Value(), 0});
    }
    std::stable_sort(counts.begin(), counts.end(),
                     [](const CallCount& a, const CallCount& b) { return compareText(*a.area, *b.area) < 0; });
    return counts;
}

std::vector<MoneySum> GroupScanFigures::moneyByArea(CallMoney money) {
    if (!selected_)
        return selectedByNobody_ ? std::vector<MoneySum>() : statements_.moneyByArea(money);
    std::vector<MoneySum> rows;
    forEachSum(*columns_, *selected_, groups_->calls, {}, [&](std::uint32_t group, const Value&, const CallSums& sums) {
        const std::int64_t sum = money == CallMoney::Cost ? sums.cost : -sums.revenue;
        if (sum != 0 && !equalText(groups_->names[group], ""))
            rows.push_back({groups_->names[group], Money{sum}});
    });
    return rows;
}

std::vector<CallerCount> GroupScanFigures::callersByArea(CallerKind kind) {
    const auto& callers = kind == CallerKind::Answered ? answered_ : lost_;
    return callers ? *callers : statements_.callersByArea(kind);
}

SpecialRowFigures GroupScanFigures::specialRow(std::string_view /*test*/) {
    return {};
}
std::vector<CallerCount> GroupScanFigures::mobileAndVoipCallers(CallerKind /*kind*/) {
    return {};
}
