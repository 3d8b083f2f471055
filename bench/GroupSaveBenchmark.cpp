#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "groups/ChangedGroups.h"
#include "groups/ModData_CopyGroupsFromProject.h"
#include "groups/ModData_SaveCustomerGroups.h"
#include "report/CaptureProject.h"
#include "report/OpenInstallation.h"
#include "sample/installation/SampleInstallation.h"
#include "stats/ModData_SelectedCustomerGroups.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int groups = 30;
constexpr int districtsOfAGroup = 25;
constexpr long postcodeDistricts = 3;

std::string groupOf(int district) {
    return "Group " + std::to_string(district / districtsOfAGroup);
}

/// Every group changed; its districts follow each other by name, so that most of them are neighbours.
void editGroups() {
    long dataType = postcodeDistricts;
    ModData_CopyGroupsFromProject(dataType);
    WorkspaceTransaction editing(*defaultWorkspace());
    systemDatabase().execute("DELETE FROM tblTempGroups");
    systemDatabase().execute("DELETE FROM TblTempName");
    ResetChangedGroups();
    const auto districts = systemDatabase().openRecordset(
        "SELECT TOP " + std::to_string(groups * districtsOfAGroup) +
        " NAME FROM PGN_POSTCODEDISTRICT WHERE NAME <> 'Republic Of Ireland' ORDER BY NAME");
    for (int district = 0; !districts->EOF_(); districts->MoveNext(), ++district) {
        systemDatabase().execute("INSERT INTO tblTempGroups (TallyAccount, Reference, GroupName) VALUES ('" +
                                 gsAccount + "', '" + districts->value(0).asText() + "', '" + groupOf(district) + "')");
        AddChangedGroup(groupOf(district));
    }
    for (int group = 0; group < groups; ++group)
        systemDatabase().execute("INSERT INTO TblTempName (TallyAccount, Name) VALUES ('" + gsAccount + "', '" +
                                 groupOf(group * districtsOfAGroup) + "')");
    editing.commit();
}

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// A save of 30 groups of 25 districts, without the statistics that end it.
void saveOfGroups(benchmark::State& state) {
    const TemporaryFolder folder;
    const auto sample = sample::makeSampleInstallation({.folder = folder.text(), .calls = 2'000, .seed = 1});
    openInstallation(folder.text());
    openProject(sample.projectPath);
    captureProject();
    double statistics = 0;
    for ([[maybe_unused]] auto _ : state) {
        editGroups();
        long dataType = postcodeDistricts;
        bool unsaved = true;
        const auto start = Clock::now();
        if (ModData_SaveCustomerGroups(dataType, {}, {}, &unsaved) != 0)
            state.SkipWithError("not saved");
        const double whole = secondsSince(start);
        const auto again = Clock::now();
        ModData_SelectedCustomerGroups("TblCustomerGroups", 1);
        const double counting = secondsSince(again);
        state.SetIterationTime(whole - counting);
        statistics += counting;
    }
    state.counters["statistics_ms"] = benchmark::Counter(statistics * 1000, benchmark::Counter::kAvgIterations);
    resetGlobals();
    resetDefaultWorkspace();
}

BENCHMARK(saveOfGroups)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

} // namespace
