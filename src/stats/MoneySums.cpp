#include "data/project/SystemDatabaseStep.h"
#include "stats/StatisticsRun.h"

namespace {

/// The search for an area goes on behind the row of the last hit, or starts from the first row again.
bool findArea(StatisticsRun& run, const std::string& area) {
    const std::string expression = run.target.areaIs(area);
    for (const std::string_view name : run.boundary.summedFromFirstRow) {
        if (equalText(area, name))
            return run.target.findFirst(expression);
    }
    return run.target.findForward(expression);
}

/// The sums come in the order of the areas, one for each AnswerInd of an area. Searching forward, the area's first sum
/// is written and the others find nothing.
void writeSums(StatisticsRun& run, const std::vector<MoneySum>& sums, Measure measure) {
    onSystemDatabase([&] { run.target.fromStart(); });
    for (std::size_t i = 0; i < sums.size(); ++i) {
        run.display.position(sums.size(), i);
        if (!sums[i].area || !run.boundary.summedAreas.takes(*sums[i].area))
            continue;
        onSystemDatabase([&] {
            if (findArea(run, *sums[i].area))
                run.target.write({{measure, sums[i].sum}});
        });
    }
}

} // namespace

void sumCost(StatisticsRun& run) {
    run.display.task(run.boundary.texts.cost);
    writeSums(run, run.figures->moneyByArea(CallMoney::Cost), Measure::Cost);
}

void sumRevenue(StatisticsRun& run) {
    run.display.task(run.boundary.texts.revenue);
    writeSums(run, run.figures->moneyByArea(CallMoney::Revenue), Measure::Revenue);
    run.display.stepDone();
}

void countCallsAndMoney(StatisticsRun& run) {
    countCalls(run);
    sumCost(run);
    sumRevenue(run);
}
