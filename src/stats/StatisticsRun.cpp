#include "stats/StatisticsRun.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"

#include <optional>

StatisticsRun::StatisticsRun(const BoundaryTraits& traits, const std::string& table, int period)
    : StatisticsRun(traits, table, period, newFigureSource(traits)) {}

StatisticsRun::StatisticsRun(const BoundaryTraits& traits, const std::string& table, int period,
                             std::unique_ptr<FigureSource> source)
    : boundary(traits), isMain(equalText(table, traits.mainTable)), target(table, traits, period),
      figures(std::move(source)), display(isMain || traits.alwaysShowsTexts, isMain) {}

void runStatistics(std::string_view procedure, StatisticsRun& run, const std::function<void()>& steps) {
    gsCurrentProc = procedure;
    for (const auto* slot : {&grsData1, &grsData2}) {
        if (*slot)
            ignoreErrors([&] { (*slot)->Close(); });
    }
    onSystemDatabase(reopenProject);
    if (run.target.period() == 1)
        StatsProgressStep = 1;

    std::optional<WorkspaceTransaction> transaction;
    logAndGoOn([&] { transaction.emplace(*defaultWorkspace()); });
    steps();
    run.target.close();
    if (transaction)
        logAndGoOn([&] { transaction->commit(); });
}

void selectCalls(StatisticsRun& run) {
    run.display.task(run.boundary.texts.selection);
    CallSelection selection;
    selection.where = SelectionSql;
    selection.withoutUnplacedCalls =
        run.boundary.laterPeriodsPlacedOnly && run.target.period() != 1 && !isAnimatedTable(run.target.name());
    run.figures->makeSelectedData(selection);
    run.display.stepDone();
}
