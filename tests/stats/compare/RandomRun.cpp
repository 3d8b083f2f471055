#include "tests/stats/compare/RandomRun.h"

#include "stats/ModData_SelectedCustomerGroups.h"
#include "stats/ModData_Setup_SQLSelection.h"

namespace {

struct BoundaryTables {
    RunBoundary boundary;
    const char* main;
    const char* selected;
    std::vector<std::string> animated;
};

const std::vector<BoundaryTables> allTables{
    {RunBoundary::Exchange, "TblExchangeArea", "TblSelectedDataForExchangeArea", {}},
    {RunBoundary::Csg, "TblCSG", "TblSelectedDataForCSG", {}},
    {RunBoundary::TVRegion, "TblTV", "TblSelectedDataForTV", {"TblAnimatedTV1", "TblAnimatedTV2"}},
    {RunBoundary::PostcodeDistrict,
     "TblPostCodeDistrict",
     "TblSelectedDataForPostCodeDistrict",
     {"TblAnimatedPostCodeDistrict1", "TblAnimatedPostCodeDistrict2"}},
    {RunBoundary::CustomerGroups, "TblCustomerGroups", "TblSelectedDataForCustomerGroups", {}},
};

Date randomDay(Random& random) {
    return Date{static_cast<double>(firstCallDay + random.below(callDays))};
}

Date randomTime(Random& random) {
    if (random.oneIn(6))
        return Date{86399.0 / 86400.0};
    return Date{random.oneOf<int>({0, 360, 719, random.below(1440)}) / 1440.0};
}

void addRun(Random& random, std::vector<RandomRun>& runs, RunBoundary boundary, const std::string& table, int period,
            int unfilteredChance) {
    RandomRun run{boundary, table, period, {}, {}};
    if (!random.oneIn(unfilteredChance))
        run.parameters = makeParameters(random);
    if (random.oneIn(10))
        run.callBefore = makeCall(random);
    runs.push_back(std::move(run));
}

} // namespace

ReportParameters makeParameters(Random& random) {
    ReportParameters parameters;
    parameters.DTStart = random.oneIn(3) ? Date{static_cast<double>(firstCallDay)} : randomDay(random);
    parameters.DTEnd = random.oneIn(3) ? Date{static_cast<double>(firstCallDay + callDays)} : randomDay(random);
    if (random.oneIn(2))
        parameters.DTStartTime = {randomTime(random), randomTime(random)};
    parameters.ChkOverNight = random.oneIn(3);
    if (random.oneIn(2)) {
        parameters.OptInbound = random.below(3);
        parameters.CmbInbound = random.oneOf<std::string>({"", "0800", "0800 ", "08*", "ab?", "08??", "*", "zz"});
        parameters.cmbCG = random.oneOf<std::string>({"", "Sales", "Not Allocated", "Nobody"});
    }
    if (random.oneIn(2)) {
        parameters.OptAnswer = random.below(3);
        parameters.CmbAnswer = random.oneOf<std::string>({"", "Leeds", "l*", "*ull", "B?th"});
        if (random.oneIn(20))
            parameters.CmbAnswer = "O'Hare";
        parameters.CmbAnswerGroup = random.oneOf<std::string>({"", "North", "Not Allocated", "Nobody"});
    }
    if (random.oneIn(4))
        parameters.cmbDestinationNo = random.oneOf<std::string>({"D1", "d?", "D2"});
    return parameters;
}

std::vector<RandomRun> makeRuns(Random& random) {
    std::vector<RandomRun> runs;
    for (const BoundaryTables& tables : allTables) {
        addRun(random, runs, tables.boundary, tables.main, 1, 1);
        if (!random.oneIn(4))
            addRun(random, runs, tables.boundary, tables.selected, 1, 4);
        for (int period = 2; period <= 7; ++period) {
            if (random.oneIn(2))
                addRun(random, runs, tables.boundary, tables.selected, period, 4);
        }
        if (random.oneIn(2))
            addRun(random, runs, tables.boundary, tables.selected, 1, 4);
        for (const std::string& animated : tables.animated) {
            for (int frame = 1; frame <= 5; ++frame) {
                if (random.oneIn(2))
                    addRun(random, runs, tables.boundary, animated, frame, 4);
            }
        }
    }
    return runs;
}

std::string RandomRun::text() const {
    return table + ", period " + std::to_string(period) + (parameters ? ":" + SelectionSql : ", all calls");
}

void perform(const RandomRun& run) {
    SelectionSql.clear();
    if (run.parameters) {
        Date start = run.parameters->DTStart;
        Date end = run.parameters->DTEnd;
        ModData_Setup_SQLSelection(*run.parameters, SelectionSql, start, end, run.parameters->DTStartTime[0],
                                   run.parameters->DTStartTime[1], 0);
    }
    switch (run.boundary) {
    case RunBoundary::Exchange:
        return ModData_SelectedExchangeData(run.table, run.period);
    case RunBoundary::Csg:
        return ModData_SelectedCSGData(run.table, run.period);
    case RunBoundary::TVRegion:
        return ModData_SelectedTVArea(run.table, run.period);
    case RunBoundary::PostcodeDistrict:
        return ModData_SelectedPostCodeData(run.table, run.period);
    case RunBoundary::CustomerGroups:
        return ModData_SelectedCustomerGroups(run.table, run.period);
    }
}

bool countsCallers(const RandomRun& run) {
    return run.period == 1 || run.boundary == RunBoundary::TVRegion ||
           (run.period == 2 && run.table == "TblSelectedDataForPostCodeDistrict");
}

bool canBeRead(const RandomRun& run) {
    return !run.parameters || run.parameters->OptAnswer != 1 ||
           run.parameters->CmbAnswer.find('\'') == std::string::npos;
}
