#include "stats/FigureEngine.h"
#include "stats/ModUtilities_CreateAverageCallsTables.h"
#include "stats/ModUtilities_GetPayphoneStatistics.h"
#include "stats/SelectionState.h"
#include "tests/stats/compare/AreaRecount.h"
#include "tests/stats/compare/PlainSelection.h"
#include "tests/stats/compare/RecountStep.h"

#include <gtest/gtest.h>

#include <set>

namespace {

class DerivedFigures : public testing::Test {
protected:
    void TearDown() override {
        setFigureEngine(FigureEngine::Automatic);
        FilterActive = false;
    }
};

/// The selected calls with their areas.
std::vector<PlacedCall> selectedCalls(const RandomRun& run, const std::vector<ProjectCall>& calls,
                                      const std::vector<ProjectPlace>& places) {
    std::vector<PlacedCall> selected;
    for (const ProjectCall& call : calls) {
        for (const ProjectPlace& place : places) {
            if (call.code && same(place.code, *call.code) && (!run.parameters || isSelected(call, *run.parameters)))
                selected.push_back({&call, areaOfPlace(place, run.boundary, {})});
        }
    }
    return selected;
}

/// Calls with a date for each known caller, by folded area.
std::map<std::string, double> averages(const std::vector<PlacedCall>& calls) {
    std::map<std::string, double> dated;
    std::map<std::string, std::set<std::string>> callers;
    for (const auto& [call, area] : calls) {
        if (!area)
            continue;
        dated[plainFold(*area)] += call->date ? 1 : 0;
        if (call->caller)
            callers[plainFold(*area)].insert(plainFold(*call->caller));
    }
    std::map<std::string, double> result;
    for (const auto& [area, found] : callers)
        result[area] = dated[area] / static_cast<double>(found.size());
    return result;
}

void expectAverages(const RandomRun& run, const std::vector<ProjectCall>& calls, const std::string& what) {
    const auto expected = averages(selectedCalls(run, calls, storedPlaces()));
    const auto rows = gdbSystem->openRecordset("SELECT * FROM " + run.table);
    for (; !rows->EOF_(); rows->MoveNext()) {
        const std::string area = plainFold(rows->value(0).asText());
        const auto found = expected.find(area);
        EXPECT_DOUBLE_EQ(rows->value("AverageCalls1").asDouble(), found == expected.end() ? 0.0 : found->second)
            << what << ", area " << area;
    }
}

/// The figures of calls from payphones under the names of the measures.
std::map<std::string, double> payphoneFigures(const RandomRun& run, const std::vector<ProjectCall>& calls) {
    std::vector<PlacedCall> fromPayphones;
    double withoutOutcome = 0;
    for (const ProjectCall& call : calls) {
        if (!same(call.payphone, "P") || (run.parameters && !isSelected(call, *run.parameters)))
            continue;
        fromPayphones.push_back({&call, "anywhere"});
        withoutOutcome += call.answerInd ? 0 : 1;
    }
    const Figures sums = sidePanel(fromPayphones, [](const std::string&) { return true; });
    const auto figure = [&](FigureColumn column) {
        return static_cast<double>(sums[column]) / static_cast<double>(one);
    };
    return {{"TotalCalls", figure(Total) - withoutOutcome},
            {"Answered", figure(Answered)},
            {"Ineffective", figure(Ineffective)},
            {"Cost", figure(Cost)},
            {"Revenue", figure(Revenue)},
            {"Engaged", figure(Engaged)},
            {"RTNR", figure(Rtnr)},
            {"Other", figure(Other)},
            {"LostCallers", figure(Ineffective)},
            {"AnsweredCallers", figure(Answered)}};
}

TEST_F(DerivedFigures, AveragesAndPayphonesAreThoseOfARecountByHand) {
    for (const unsigned seed : seeds(20)) {
        Random random(seed);
        const ProjectContent content = makeProjectContent(random);
        RandomRun regions{RunBoundary::TVRegion, "TblTV", 1, {}, {}};
        RandomRun districts{RunBoundary::PostcodeDistrict, "TblPostCodeDistrict", 1, {}, {}};
        FilterActive = !random.oneIn(4);
        if (FilterActive) {
            regions.table = "TblSelectedDataForTV";
            districts.table = "TblSelectedDataForPostCodeDistrict";
            do
                regions.parameters = makeParameters(random);
            while (!canBeRead(regions));
            districts.parameters = regions.parameters;
        }
        const RandomInstallation installation(content);
        const WorkspaceTransaction neverWritten(*defaultWorkspace());
        for (const FigureEngine engine : {FigureEngine::Scan, FigureEngine::Statements}) {
            setFigureEngine(engine);
            perform(regions);
            perform(districts);
            ModUtilities_CreateAverageCallsTables();
            const std::string what = std::string(engine == FigureEngine::Scan ? "scan" : "statements") + ", seed " +
                                     std::to_string(seed) + ", " + regions.text();
            expectAverages(regions, content.calls, what);
            expectAverages(districts, content.calls, what);
            for (const auto& [name, expected] : payphoneFigures(regions, content.calls)) {
                double value = -1;
                ModUtilities_GetPayphoneStatistics(name, value);
                EXPECT_NEAR(value, expected, 1e-9) << name << " by " << what;
            }
        }
        EXPECT_EQ(installation.logLinesWith("by a scan"), 0) << seed;
        ASSERT_FALSE(HasFailure());
    }
}

} // namespace
