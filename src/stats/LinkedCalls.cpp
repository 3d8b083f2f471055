#include "stats/LinkedCalls.h"

#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "data/types/DatabaseError.h"
#include "stats/AreasOfCodes.h"
#include "stats/FigureEngine.h"
#include "stats/ProjectCalls.h"
#include "stats/ScanSelection.h"

#include <algorithm>

namespace {

bool isLinkedTo(const char* link, const char* source) {
    const TableDef* found = systemDatabase().tableDefs().find(link);
    return found && found->isAttached() && equalText(found->sourceTableName, source) &&
           ConnectString::parse(found->connect).database == projectDatabase().name();
}

/// What `scan` gives; nothing where it throws and statements may be asked.
template<typename Scan>
auto byScan(Scan scan) -> std::optional<decltype(scan())> {
    if (figureEngine() == FigureEngine::Statements)
        return {};
    std::string reason = "The links of the system map database do not lead to the project";
    try {
        if (isLinkedTo("TblTeleItem_Link", "TblTeleItem") && isLinkedTo("TblGIS_Link", "TblMappingGIS"))
            return scan();
    } catch (const DatabaseError& error) {
        reason = error.description();
    }
    if (mayAskStatements(reason))
        return {};
    return decltype(scan())();
}

bool hasNull(const std::vector<Value>& values) {
    return std::any_of(values.begin(), values.end(), [](const Value& value) { return value.isNull(); });
}

std::vector<AreaCallers> callersOf(const AreasOfCodes& areas, const CallScan& scan, const CallScan& dated,
                                   const CallScan::Callers& callers) {
    std::vector<std::int64_t> calls(areas.names.size(), 0), datedCalls(areas.names.size(), 0);
    for (std::size_t code = 0; code < areas.boundary.areasOfCode.size(); ++code) {
        for (const std::uint32_t area : areas.boundary.areasOfCode[code]) {
            for (std::size_t ind = 0; ind < scan.answerInds; ++ind) {
                calls[area] += scan.of(code, ind).calls;
                datedCalls[area] += dated.of(code, ind).calls;
            }
        }
    }
    std::vector<AreaCallers> rows;
    for (std::size_t area = 0; area < calls.size(); ++area) {
        if (calls[area] > 0)
            rows.push_back({areas.names[area], datedCalls[area], callers.all[area]});
    }
    return rows;
}

} // namespace

std::optional<std::vector<std::vector<AreaCallers>>> linkedCallers(const std::vector<std::string>& columnNames,
                                                                   const std::string& where) {
    return byScan([&] {
        const auto columns = projectCalls();
        const ScanSelection selection(columns.get(), where);
        std::vector<AreasOfCodes> areas;
        std::vector<const ScanBoundary*> boundaries;
        areas.reserve(columnNames.size());
        for (const std::string& name : columnNames) {
            areas.emplace_back(projectDatabase(), name, *columns);
            boundaries.push_back(&areas.back().boundary);
        }
        const CallScan scan = scanCalls(*columns, selection.predicate(), boundaries, CallersBy::All);
        CallScan datedOnly;
        const bool allDated = !hasNull(columns->valuesOf(CallField::Date));
        if (!allDated) {
            const ScanSelection dated(columns.get(), (where.empty() ? "" : "(" + where + ") And ") +
                                                         std::string("CallDate Is Not Null"));
            datedOnly = scanCalls(*columns, dated.predicate(), {});
        }
        std::vector<std::vector<AreaCallers>> result;
        for (std::size_t i = 0; i < areas.size(); ++i)
            result.push_back(callersOf(areas[i], scan, allDated ? scan : datedOnly, scan.callers[i]));
        return result;
    });
}

std::optional<SpecialRowFigures> linkedPayphoneCalls(const std::string& where) {
    return byScan([&] {
        const TableDef* calls = projectDatabase().tableDefs().find("TblTeleItem");
        const Field* payphone = calls ? calls->findField("PayPhone") : nullptr;
        if (!payphone || !isText(payphone->type))
            throw DatabaseError(3265, "The project does not know calls from payphones");
        if (!where.empty() && !standsBehindAnd(where))
            throw DatabaseError(5, "The selection means something else behind an And:" + where);
        const auto columns = projectCalls();
        const ScanSelection selection(columns.get(), where);
        const std::vector<CallSums> sums = sumPayphoneCalls(*columns, selection.predicate());
        SpecialRowFigures figures;
        for (std::size_t ind = 0; ind < sums.size(); ++ind) {
            const Value& answerInd = columns->valuesOf(CallField::AnswerInd)[ind];
            addCalls(figures, answerInd, sums[ind]);
            if (answerInd.isNull())
                figures.totalCalls -= sums[ind].calls;
        }
        return figures;
    });
}

std::optional<AnsweredTotals> linkedAnsweredTotals() {
    return byScan([] {
        const auto columns = projectCalls();
        if (!columns)
            throw DatabaseError(5, whyNoProjectCalls());
        AnsweredTotals totals;
        bool callerCounted = true;
        for (std::size_t call = 0; call < columns->size(); ++call) {
            if (columns->callerFlags[call] & CallColumns::firstOfCaller)
                callerCounted = false;
            if (columns->answerKinds[columns->answerInd[call]] != AnswerKind::Answered)
                continue;
            ++totals.calls;
            totals.callers += !callerCounted;
            callerCounted = true;
        }
        return totals;
    });
}
