#include "stats/StatisticsRun.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"

StatisticsRun::StatisticsRun(const BoundaryTraits& traits, const std::string& table, int period)
    : boundary(traits), isMain(equalText(table, traits.mainTable)), target(table, traits.areaColumn, period),
      figures(newFigureSource(traits)), display(isMain) {}

void openForRun(const StatisticsRun& run) {
    for (const auto* slot : {&grsData1, &grsData2}) {
        if (*slot)
            ignoreErrors([&] { (*slot)->Close(); });
    }
    onSystemDatabase(reopenProject);
    if (run.target.period() == 1)
        StatsProgressStep = 1;
}

void selectCalls(StatisticsRun& run) {
    run.display.task(run.boundary.texts.areas);
    CallSelection selection;
    selection.where = SelectionSql;
    selection.withoutUnplacedCalls = run.target.period() != 1 && !isAnimatedTable(run.target.name());
    run.figures->makeSelectedData(selection);
    run.display.stepDone();
}
