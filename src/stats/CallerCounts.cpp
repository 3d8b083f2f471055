#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/StatisticsRun.h"

namespace {

/// How an area that is not found forward is looked for from the first row.
enum class Fallback { UpperArea, AreaAsItIs };

void zeroColumn(const TargetTable& target, Measure measure) {
    onSystemDatabase([&] {
        systemDatabase().execute("UPDATE " + target.name() + " SET " + measureColumn(measure, target.period()) +
                                 " = 0 ");
    });
}

bool findArea(TargetTable& target, const std::string& area, CallerSearch search, Fallback fallback) {
    if (search == CallerSearch::ForwardOnly)
        return target.findForward(target.areaIs(area));
    const std::string upper = target.upperAreaIs(area);
    return target.findForward(upper) || target.findFirst(fallback == Fallback::UpperArea ? upper : target.areaIs(area));
}

void writeCallers(StatisticsRun& run, CallerKind kind, Measure measure, Fallback fallback) {
    const CallerSearch search = run.boundary.callerSearch;
    TargetTable target(run.target.name(), run.boundary, run.boundary.callersInPeriodOne ? 1 : run.target.period());
    if (search == CallerSearch::AnyPlace)
        zeroColumn(target, measure);
    onSystemDatabase([&] { target.read(); });
    const std::vector<CallerCount> counts = run.figures->callersByArea(kind);
    for (std::size_t i = 0; i < counts.size(); ++i) {
        run.display.position(counts.size(), i);
        if (!counts[i].area)
            continue;
        onSystemDatabase([&] {
            if (findArea(target, *counts[i].area, search, fallback))
                target.write({{measure, counts[i].callers}});
        });
    }
}

} // namespace

void findAnsweredCallers(StatisticsRun& run) {
    run.display.task(run.boundary.texts.answeredCallers);
    run.figures->makeCallers(CallerKind::Answered, SelectionSql);
}

void findLostCallers(StatisticsRun& run) {
    run.display.task(run.boundary.texts.lostCallers);
    run.figures->makeCallers(CallerKind::Lost, SelectionSql);
}

void countLostCallers(StatisticsRun& run) {
    run.display.task(run.boundary.texts.lostCounts);
    writeCallers(run, CallerKind::Lost, Measure::LostCallers, Fallback::UpperArea);
}

void countAnsweredCallers(StatisticsRun& run) {
    run.display.task(run.boundary.texts.answeredCounts);
    writeCallers(run, CallerKind::Answered, Measure::AnsweredCallers, Fallback::AreaAsItIs);
    run.display.stepDone();
}

void countCallers(StatisticsRun& run) {
    findAnsweredCallers(run);
    findLostCallers(run);
    countLostCallers(run);
    countAnsweredCallers(run);
}
