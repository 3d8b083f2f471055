#include "animation/Animation.h"
#include "animation/AnimationSetup.h"
#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "report/OpenInstallation.h"
#include "report/ReportRun.h"
#include "sample/installation/SampleInstallation.h"
#include "stats/CurrentTables.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

std::int64_t wantedCalls() {
    const char* text = std::getenv("CALLSCOPE_BENCH_CALLS");
    const std::int64_t wanted = text ? std::atoll(text) : 0;
    return wanted > 0 ? wanted : 1'000'000;
}

/// The sample with its project open.
struct Sample {
    Sample() {
        resetGlobals();
        resetDefaultWorkspace();
        sample::SampleOptions options;
        options.folder = folder.file("sample");
        options.calls = wantedCalls();
        const sample::SampleReport made = sample::makeSampleInstallation(options);
        openInstallation(options.folder);
        openProject(made.projectPath);
    }
    ~Sample() {
        resetGlobals();
        resetDefaultWorkspace();
    }
    Sample(const Sample&) = delete;
    Sample& operator=(const Sample&) = delete;

    TemporaryFolder folder;
};

/// Ten frames of twelve hours, from Apply to the scale: counted anew, or taken as they stand.
void tenFrames(benchmark::State& state) {
    static const Sample sample;
    const long boundary = state.range(0);
    const bool counted = state.range(1) != 0;
    const ReportParameters whole = wholeProject();
    currentTables.clear();
    *currentTables.of(boundary) = mainTable(boundary);
    gsBoundaryType = boundary == animatedTVRegions ? "TVRegion" : "PostcodeDistrict";
    MapPeriods periods;
    AnimationSetup setup(whole, periods);
    AnimationForm form;
    AnimationSettings settings;
    settings.startDate = whole.DTStart;
    settings.CmbDataPeriod = "12hr";
    settings.CmbFrames = "10";
    settings.CmbInterval = "1";
    setup.CmdApply_Click(settings, form); // a project that has just been opened reads its calls
    for ([[maybe_unused]] auto _ : state) {
        if (counted)
            settings.startDate.days += settings.startDate == whole.DTStart ? 1 : -1;
        if (!setup.CmdApply_Click(settings, form))
            state.SkipWithError("no animation");
    }
    state.SetLabel(gsBoundaryType + (counted ? ", counted" : ", as they stand"));
}
BENCHMARK(tenFrames)
    ->Args({animatedTVRegions, 1})
    ->Args({animatedPostCodeDistricts, 1})
    ->Args({animatedPostCodeDistricts, 0})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
