#include "bench/BenchSupport.h"
#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "map/session/MapSession.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "report/CaptureProject.h"
#include "report/CaptureRow.h"
#include "report/OpenInstallation.h"
#include "report/ReportRun.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

namespace {

constexpr long tvRegions = 2, postcodeDistricts = 3;
constexpr QSize mapSize(1400, 1000);

/// A sample project that has been captured, and a map for it.
class Scene {
public:
    Scene() {
        offscreenApplication<QGuiApplication>();
        resetGlobals();
        resetDefaultWorkspace();
        project_ =
            sample::makeSampleInstallation({.folder = folder_.text(), .calls = wantedCalls(), .seed = 1}).projectPath;
        openInstallation(folder_.text());
        gsFontName = "Calibri";
        openProject(project_);
        captureUnlessCaptured();
        surface.setPixelSize(mapSize);
    }
    ~Scene() {
        resetGlobals();
        resetDefaultWorkspace();
    }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    /// Days, hours and an inbound number; a different day each time, so that nothing is left from the last run.
    ReportParameters filter() {
        ReportParameters parameters = wholeProject();
        parameters.DTStart.days += 10 + turn_++ % 20;
        parameters.DTEnd.days -= 40;
        parameters.DTStartTime = {Date{8.0 / 24}, Date{18.0 / 24}};
        return parameters;
    }

    void report(long boundary, const ReportParameters& parameters) {
        runReport(boundary, parameters);
        session.begin(boundary, parameters);
        session.build();
    }

    MapSurface surface;
    MapKey key{surface};
    MapSession session{surface, key};

private:
    TemporaryFolder folder_;
    std::string project_;
    int turn_ = 0;
};

Scene& scene() {
    static Scene instance;
    return instance;
}

/// The file of a captured project is opened and its map drawn.
void openingToMap(benchmark::State& state) {
    Scene& here = scene();
    const std::string path = gsProjectPath;
    for ([[maybe_unused]] auto _ : state) {
        openProject(path);
        captureUnlessCaptured();
        here.report(tvRegions, wholeProject());
    }
}
BENCHMARK(openingToMap)->Unit(benchmark::kMillisecond)->UseRealTime();

/// From the button to the drawn map.
void filteredReport(benchmark::State& state) {
    Scene& here = scene();
    for ([[maybe_unused]] auto _ : state)
        here.report(state.range(0), here.filter());
    state.SetLabel(state.range(0) == tvRegions ? "TV regions" : "postcode districts");
}
BENCHMARK(filteredReport)->Arg(tvRegions)->Arg(postcodeDistricts)->Unit(benchmark::kMillisecond)->UseRealTime();

void changeOfMapType(benchmark::State& state) {
    Scene& here = scene();
    here.report(postcodeDistricts, wholeProject());
    long mapType = 1;
    for ([[maybe_unused]] auto _ : state) {
        mapType = mapType % 5 + 1;
        here.session.changeMapType(mapType);
    }
}
BENCHMARK(changeOfMapType)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The whole project into the tables of all boundaries.
void capture(benchmark::State& state) {
    scene();
    for ([[maybe_unused]] auto _ : state) {
        forgetCapture();
        captureUnlessCaptured();
    }
}
BENCHMARK(capture)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

} // namespace
