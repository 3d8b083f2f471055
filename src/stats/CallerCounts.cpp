#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/StatisticsRun.h"

namespace {

/// How an area that is not found forward is looked for from the first row.
enum class Fallback { UpperArea, AreaAsItIs };

void writeCallers(StatisticsRun& run, CallerKind kind, Measure measure, Fallback fallback) {
    TargetTable& target = run.target;
    onSystemDatabase([&] {
        systemDatabase().execute("UPDATE " + target.name() + " SET " + measureColumn(measure, target.period()) +
                                 " = 0 ");
    });
    onSystemDatabase([&] { target.read(); });
    const std::vector<CallerCount> counts = run.figures->callersByArea(kind);
    for (std::size_t i = 0; i < counts.size(); ++i) {
        run.display.position(counts.size(), i);
        if (!counts[i].area)
            continue;
        const std::string& area = *counts[i].area;
        onSystemDatabase([&] {
            const std::string upper = target.upperAreaIs(area);
            if (target.findForward(upper) ||
                target.findFirst(fallback == Fallback::UpperArea ? upper : target.areaIs(area)))
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
    writeCallers(run, CallerKind::Lost, Measure::LostCallers, Fallback::UpperArea);
}

void countAnsweredCallers(StatisticsRun& run) {
    writeCallers(run, CallerKind::Answered, Measure::AnsweredCallers, Fallback::AreaAsItIs);
    run.display.stepDone();
}
