#include "stats/ScanFigures.h"

#include "data/jet/Search.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "data/types/DatabaseError.h"
#include "stats/FigureEngine.h"
#include "stats/ProjectCalls.h"
#include "stats/ScanSelection.h"
#include "stats/WorkingViews.h"

#include <algorithm>
#include <initializer_list>

namespace {

bool isOneOf(const Value& text, std::initializer_list<const char*> wanted) {
    return !text.isNull() &&
           std::any_of(wanted.begin(), wanted.end(), [&](const char* one) { return equalText(text.asText(), one); });
}

} // namespace

ScanFigures::ScanFigures(const BoundaryTraits& boundary)
    : area_(boundary.dataColumn), ofProject_(true), statements_(boundary) {}

ScanFigures::ScanFigures(const BoundaryTraits& boundary, std::shared_ptr<const CallColumns> columns)
    : area_(boundary.dataColumn), ofProject_(false), columns_(std::move(columns)), statements_(boundary) {}

CallScan ScanFigures::scanOrThrow(const std::string& where) {
    const ScanSelection selection(columns_.get(), where);
    if (!areas_)
        areas_.emplace(projectDatabase(), area_, *columns_);
    const ScanBoundary* boundary = &areas_->boundary;
    return scanCalls(*columns_, selection.predicate(), {&boundary, 1});
}

std::optional<CallScan> ScanFigures::scan(const std::string& where) {
    try {
        return scanOrThrow(where);
    } catch (const DatabaseError& error) {
        refusal_ = error.description();
        return {};
    }
}

ScanFigures::Origin ScanFigures::withoutScan() const {
    return mayAskStatements(refusal_) ? Origin::Statements : Origin::Nobody;
}

void ScanFigures::makeSelectedData(const CallSelection& selection) {
    selection_ = selection;
    areas_.reset(); // the geography may have changed since the last run
    if (ofProject_)
        onSystemDatabase([&] { columns_ = projectCalls(); });
    if (auto scanned = scan(selection.where)) {
        selected_ = std::move(*scanned);
        selectedBy_ = Origin::Scan;
        findCodesLeftOut();
        noteUsedFigureEngine(FigureEngine::Scan);
        leaveSelectedCalls(area_, selection);
        return;
    }
    noteUsedFigureEngine(FigureEngine::Automatic);
    selectedBy_ = withoutScan();
    if (selectedBy_ == Origin::Statements)
        statements_.makeSelectedData(selection);
}

void ScanFigures::makeCallers(CallerKind kind, const std::string& where) {
    Callers& callers = callersOf(kind);
    std::optional<CallScan> scanned;
    if (!where.empty() && !standsBehindAnd(where))
        refusal_ = "The selection means something else behind an And:" + where;
    else if (selectedBy_ == Origin::Scan && selection_.where == where)
        scanned = selected_;
    else
        scanned = scan(where);
    if (scanned) {
        callers = {Origin::Scan, std::move(scanned->callers.front())};
        leaveCallers(kind, area_, where, callersByArea(kind));
        return;
    }
    callers.origin = withoutScan();
    if (callers.origin == Origin::Statements)
        statements_.makeCallers(kind, where);
}

template<typename Ask>
auto ScanFigures::ofOthers(Origin origin, Ask ask) -> decltype(ask()) {
    if (origin == Origin::Statements)
        return ask();
    return {};
}

void ScanFigures::findCodesLeftOut() {
    leftOut_.clear();
    if (!selection_.where.empty() || !selection_.withoutUnplacedCalls)
        return;
    for (const Value& code : columns_->valuesOf(CallField::Code))
        leftOut_.push_back(isOneOf(code, {"MOBILE", "UNTRACEAB", "OLO", "NO CLI"}));
}

std::vector<CallCount> ScanFigures::callsByArea() {
    if (selectedBy_ != Origin::Scan)
        return ofOthers(selectedBy_, [&] { return statements_.callsByArea(); });
    std::vector<CallCount> counts;
    forEachSum(*columns_, selected_, areas_->boundary, leftOut_,
               [&](std::uint32_t area, const Value& answerInd, const CallSums& sums) {
                   counts.push_back({areas_->names[area], answerInd, sums.calls - sums.callsWithoutNumber});
               });
    return counts;
}

std::vector<MoneySum> ScanFigures::moneyByArea(CallMoney money) {
    if (selectedBy_ != Origin::Scan)
        return ofOthers(selectedBy_, [&] { return statements_.moneyByArea(money); });
    std::vector<MoneySum> rows;
    forEachSum(*columns_, selected_, areas_->boundary, leftOut_,
               [&](std::uint32_t area, const Value&, const CallSums& sums) {
                   const std::int64_t sum = money == CallMoney::Cost ? sums.cost : -sums.revenue;
                   if (sum != 0)
                       rows.push_back({areas_->names[area], Money{sum}});
               });
    return rows;
}

std::vector<CallerCount> ScanFigures::callersByArea(CallerKind kind) {
    const Callers& callers = callersOf(kind);
    if (callers.origin != Origin::Scan)
        return ofOthers(callers.origin, [&] { return statements_.callersByArea(kind); });
    const auto& counts = kind == CallerKind::Answered ? callers.counts.answered : callers.counts.lost;
    std::vector<CallerCount> rows;
    for (std::size_t area = 0; area < counts.size(); ++area) {
        if (counts[area] > 0)
            rows.push_back({areas_->names[area], areas_->names[area] ? counts[area] : 0}); // null is not counted
    }
    return rows;
}

std::vector<CallerCount> ScanFigures::mobileAndVoipCallers(CallerKind kind) {
    const Origin origin = callersOf(kind).origin;
    std::optional<std::vector<CallerCount>> rows =
        origin == Origin::Scan ? callersByArea(kind) : leftCallers(kind, area_);
    if (!rows)
        return ofOthers(origin, [&] { return statements_.mobileAndVoipCallers(kind); });
    std::erase_if(*rows, [](const CallerCount& row) { return !row.area || !isOneOf(*row.area, {"MOBILE", "VOIP"}); });
    return *rows;
}

SpecialRowFigures ScanFigures::specialRow(std::string_view test) {
    if (selectedBy_ != Origin::Scan)
        return ofOthers(selectedBy_, [&] { return statements_.specialRow(test); });
    SpecialRowFigures figures;
    onSystemDatabase([&] {
        const jet::Search search(area_ + std::string(test),
                                 [&](std::string_view name) { return equalText(name, area_) ? 0 : -1; });
        std::vector<bool> fits;
        for (const AreaName& spelling : areas_->spellings) {
            const Value area = spelling ? Value(*spelling) : Value();
            fits.push_back(search.matches([&](int) -> const Value& { return area; }));
        }
        const std::vector<Value>& answerInds = columns_->valuesOf(CallField::AnswerInd);
        for (std::size_t code = 0; code < areas_->placesOfCode.size(); ++code) {
            if (!leftOut_.empty() && leftOut_[code])
                continue;
            for (const std::uint32_t place : areas_->placesOfCode[code]) {
                for (std::size_t ind = 0; fits[place] && ind < answerInds.size(); ++ind)
                    addCalls(figures, answerInds[ind], selected_.of(code, ind));
            }
        }
    });
    return figures;
}
