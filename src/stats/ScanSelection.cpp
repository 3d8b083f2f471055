#include "stats/ScanSelection.h"

#include "core/LogError.h"
#include "core/ModDeclarations.h"
#include "data/jet/Parser.h"
#include "data/project/Databases.h"
#include "data/types/DatabaseError.h"
#include "stats/FigureEngine.h"
#include "stats/ProjectCalls.h"

#include <algorithm>
#include <initializer_list>
#include <map>

namespace {

constexpr long doesNotFit = 5; // as any argument that a procedure cannot take

bool isOneOf(const Value& text, std::initializer_list<const char*> wanted) {
    return !text.isNull() &&
           std::any_of(wanted.begin(), wanted.end(), [&](const char* one) { return equalText(text.asText(), one); });
}

/// Values in the order of SQL, null first.
struct ByText {
    bool operator()(const Value& a, const Value& b) const {
        if (a.isNull() || b.isNull())
            return a.isNull() && !b.isNull();
        return compareText(a.asText(), b.asText()) < 0;
    }
};

} // namespace

ScanSelection::ScanSelection(const CallColumns* columns, const std::string& where) {
    if (!columns)
        throw DatabaseError(doesNotFit, whyNoProjectCalls());
    if (where.empty())
        return;
    predicate_ = CallPredicate::compile(where, callTablesOf(projectDatabase()), *columns);
    if (!predicate_)
        throw DatabaseError(doesNotFit, "The selection looks at more than columns of calls, or is wrong:" + where);
}

bool standsBehindAnd(const std::string& where) {
    using Kind = jet::Expression::Kind;
    try {
        const Kind kind = jet::parseExpression(where)->kind;
        return kind != Kind::Or && kind != Kind::Logic;
    } catch (const RuntimeError&) {
        return false;
    }
}

bool mayAskStatements(const std::string& reason) {
    if (figureEngine() != FigureEngine::Scan)
        return true;
    LogError(gsCurrentProc, doesNotFit, "The figures cannot be had by a scan of the calls. " + reason);
    return false;
}

void forEachSum(const CallColumns& columns, const CallScan& scan, const ScanBoundary& boundary,
                const std::vector<bool>& leftOut,
                const std::function<void(std::uint32_t area, const Value& answerInd, const CallSums&)>& take) {
    const std::vector<Value>& answerInds = columns.valuesOf(CallField::AnswerInd);
    std::vector<std::map<Value, CallSums, ByText>> sums(boundary.areas);
    for (std::size_t code = 0; code < boundary.areasOfCode.size(); ++code) {
        if (!leftOut.empty() && leftOut[code])
            continue;
        for (const std::uint32_t area : boundary.areasOfCode[code]) {
            for (std::size_t ind = 0; ind < answerInds.size(); ++ind) {
                if (scan.of(code, ind).calls > 0)
                    sums[area][answerInds[ind]] += scan.of(code, ind);
            }
        }
    }
    for (std::uint32_t area = 0; area < boundary.areas; ++area) {
        for (const auto& [answerInd, sum] : sums[area])
            take(area, answerInd, sum);
    }
}

void addCalls(SpecialRowFigures& figures, const Value& answerInd, const CallSums& sums) {
    figures.totalCalls += sums.calls;
    figures.cost.tenThousandths += sums.cost;
    figures.revenue.tenThousandths -= sums.revenue;
    if (answerInd.isNull())
        return;
    const bool isAnswered = isOneOf(answerInd, {"0", "8"});
    const bool isEngaged = isOneOf(answerInd, {"2", "9"});
    const bool isRtnr = isOneOf(answerInd, {"4"});
    (isAnswered ? figures.answered : figures.ineffective) += sums.calls;
    if (isEngaged)
        figures.engaged += sums.calls;
    else if (isRtnr)
        figures.rtnr += sums.calls;
    else if (!isAnswered)
        figures.other += sums.calls;
}
