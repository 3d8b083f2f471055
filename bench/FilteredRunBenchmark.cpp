#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "data/project/Databases.h"
#include "report/OpenInstallation.h"
#include "sample/installation/SampleInstallation.h"
#include "stats/FigureEngine.h"
#include "stats/ModData_SelectedCSGData.h"
#include "stats/ModData_SelectedExchangeData.h"
#include "stats/ModData_SelectedPostCodeData.h"
#include "stats/ModData_SelectedTVArea.h"
#include "stats/ModUtilities_CreateAverageCallsTables.h"
#include "stats/ProjectCalls.h"
#include "stats/SelectionState.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

struct BoundaryRun {
    const char* table;
    void (*count)(const std::string& table, int period);
    bool hasAverages;
};

const BoundaryRun runs[] = {{"TblSelectedDataForTV", &ModData_SelectedTVArea, true},
                            {"TblSelectedDataForCSG", &ModData_SelectedCSGData, false},
                            {"TblSelectedDataForExchangeArea", &ModData_SelectedExchangeData, false},
                            {"TblSelectedDataForPostCodeDistrict", &ModData_SelectedPostCodeData, true}};

std::int64_t wantedCalls() {
    const char* text = std::getenv("CALLSCOPE_BENCH_CALLS");
    const std::int64_t wanted = text ? std::atoll(text) : 0;
    return wanted > 0 ? wanted : 10'000'000;
}

/// The middle half of the project's days, office hours, inbound numbers that end in an odd digit.
std::string filter() {
    const ReportParameters whole = wholeProject();
    const double quarter = std::floor((whole.DTEnd.days - whole.DTStart.days) / 4);
    const auto day = [](double days) {
        const DateParts parts = partsOf(Date{days});
        return "#" + std::to_string(parts.month) + "/" + std::to_string(parts.day) + "/" + std::to_string(parts.year) +
               "#";
    };
    const std::string time = "CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2))";
    return " CallDate >= " + day(whole.DTStart.days + quarter) + " AND CallDate <= " + day(whole.DTEnd.days - quarter) +
           " AND " + time + " >= #08:00:00# AND " + time + " <= #18:00:00# AND CalledNo Like '*[13579]'";
}

/// The sample with its project open.
struct Installation {
    explicit Installation(std::int64_t calls) {
        resetGlobals();
        resetDefaultWorkspace();
        sample::SampleOptions options;
        options.folder = folder.file("sample");
        options.calls = calls;
        const sample::SampleReport made = sample::makeSampleInstallation(options);
        openInstallation(options.folder);
        openProject(made.projectPath);
        FilterActive = true;
        SelectionSql = filter();
    }
    ~Installation() {
        resetGlobals();
        resetDefaultWorkspace();
    }

    TemporaryFolder folder;
};

/// One project at a time; the next one takes its place.
Installation& installationOf(std::int64_t calls) {
    static std::unique_ptr<Installation> made;
    static std::int64_t madeCalls = 0;
    if (madeCalls != calls) {
        made.reset();
        made = std::make_unique<Installation>(calls);
        madeCalls = calls;
    }
    return *made;
}

double secondsOf(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The longest time between two yields.
class YieldGaps : public Progress {
public:
    YieldGaps() { setProgress(this); }
    ~YieldGaps() override { setProgress(nullptr); }
    void yield() override {
        const auto now = std::chrono::steady_clock::now();
        longest = std::max(longest, std::chrono::duration<double, std::milli>(now - last_).count());
        last_ = now;
    }
    double longest = 0;

private:
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

/// Highest memory of the process since the last reset, in megabytes; 0 where the system does not tell.
double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:"))
            return std::stod(line.substr(6)) / 1024;
    }
    return 0;
}
void resetPeak() {
#ifdef __GLIBC__
    malloc_trim(0); // what was freed before does not hide what is taken now
#endif
    std::ofstream("/proc/self/clear_refs") << "5";
}

/// The columns of a project just opened: built from its rows and kept in the file, or taken from there.
void takeColumns(benchmark::State& state) {
    const bool fromFile = state.range(0) != 0;
    installationOf(wantedCalls());
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        if (!fromFile)
            forgetProjectCalls();
        gdbProject.reset(); // lets go of columns and pages
        gdbSystem.reset();
        reopenSystemDatabase();
        reopenProject();
        resetPeak();
        const double before = peakMegabytes();
        const YieldGaps gaps;
        state.ResumeTiming();
        const auto columns = projectCalls();
        state.PauseTiming();
        state.counters["peak_MB"] = peakMegabytes() - before;
        state.counters["longest_gap_ms"] = gaps.longest;
        if (!columns)
            state.SkipWithError("no columns");
        state.ResumeTiming();
    }
    state.counters["calls"] = static_cast<double>(wantedCalls());
}
BENCHMARK(takeColumns)
    ->ArgName("from_file")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void countSelection(const BoundaryRun& run) {
    run.count(run.table, 1);
    if (run.hasAverages)
        ModUtilities_CreateAverageCallsTables();
}

/// A report's figures from the selection to the written table, averages included; warm.
void filteredRun(benchmark::State& state) {
    installationOf(wantedCalls());
    const BoundaryRun& run = runs[state.range(0)];
    setFigureEngine(FigureEngine::Scan);
    countSelection(run);
    const YieldGaps gaps;
    for ([[maybe_unused]] auto _ : state)
        countSelection(run);
    if (usedFigureEngine() != FigureEngine::Scan)
        state.SkipWithError("not scanned");
    state.counters["longest_gap_ms"] = gaps.longest;
    state.counters["calls"] = static_cast<double>(wantedCalls());
    state.SetLabel(run.table);
}
BENCHMARK(filteredRun)->DenseRange(0, 3)->Iterations(5)->UseRealTime()->Unit(benchmark::kMillisecond);

/// The same run by statements, on fewer calls; "ratio" is their time over that of a scan of the same calls.
void filteredRunByStatements(benchmark::State& state) {
    const std::int64_t calls = std::min<std::int64_t>(wantedCalls(), 500'000);
    installationOf(calls);
    const BoundaryRun& run = runs[state.range(0)];
    double statements = 0;
    double scans = 0;
    for (const FigureEngine engine : {FigureEngine::Scan, FigureEngine::Statements}) {
        setFigureEngine(engine);
        countSelection(run);
    }
    for ([[maybe_unused]] auto _ : state) {
        setFigureEngine(FigureEngine::Scan);
        scans += secondsOf([&] { countSelection(run); });
        setFigureEngine(FigureEngine::Statements);
        const double seconds = secondsOf([&] { countSelection(run); });
        statements += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = statements / scans;
    state.counters["calls"] = static_cast<double>(calls);
    state.SetLabel(run.table);
}
BENCHMARK(filteredRunByStatements)->DenseRange(0, 3)->Iterations(2)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
