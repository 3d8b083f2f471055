#include "data/project/SystemDatabaseStep.h"
#include "stats/CallTally.h"
#include "stats/StatisticsRun.h"

namespace {

/// Moves to the area's row, adding one where there is none. False where the name cannot be searched for; the area then
/// keeps its zeros.
bool moveToArea(StatisticsRun& run, const std::string& area) {
    return onSystemDatabase([&] {
        if (!run.target.findFirst(run.target.areaIs(area)))
            run.target.addArea(area);
    });
}

void writeTally(StatisticsRun& run, const CallTally& tally) {
    onSystemDatabase([&] {
        run.target.write({{Measure::TotalCalls, tally.total()},
                          {Measure::Answered, tally.answered},
                          {Measure::Ineffective, tally.ineffective},
                          {Measure::Engaged, tally.engaged},
                          {Measure::RTNR, tally.rtnr},
                          {Measure::Other, tally.other}});
    });
}

} // namespace

void countCalls(StatisticsRun& run) {
    run.display.task(run.boundary.texts.calls);
    onSystemDatabase([&] { run.target.fromStart(); });
    const std::vector<CallCount> counts = run.figures->callsByArea();
    AreaName previous;
    bool placed = false;
    CallTally tally;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        run.display.position(counts.size(), i);
        const AreaName& area = counts[i].area;
        if (!area || !run.boundary.countedAreas.takes(*area))
            continue;
        if (!previous || !equalText(*previous, *area)) {
            if (placed)
                writeTally(run, tally);
            placed = moveToArea(run, *area);
            tally = {};
            previous = area;
        }
        onSystemDatabase([&] { tally.add(outcomeOf(counts[i].answerInd), counts[i].calls); });
    }
    if (placed)
        writeTally(run, tally);
    run.display.stepDone();
}
