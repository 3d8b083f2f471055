#include "data/project/SystemDatabaseStep.h"
#include "stats/StatisticsRun.h"

namespace {

/// The sums come in the order of the areas, one for each AnswerInd of an area. The search goes on behind the row of a
/// hit, so that the area's first sum is written and the others find nothing.
void writeSums(StatisticsRun& run, const std::vector<MoneySum>& sums, Measure measure) {
    onSystemDatabase([&] { run.target.read(); });
    for (std::size_t i = 0; i < sums.size(); ++i) {
        run.display.position(sums.size(), i);
        if (!sums[i].area)
            continue;
        onSystemDatabase([&] {
            if (run.target.findForward(run.target.areaIs(*sums[i].area)))
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
