#include "animation/Animation.h"
#include "animation/AnimationSetup.h"
#include "animation/playback/Playback.h"
#include "animation/playback/PlaybackMap.h"
#include "bench/BenchSupport.h"
#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "map/ThematicMap.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "report/OpenInstallation.h"
#include "report/ReportRun.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

namespace {

constexpr QSize mapSize(1400, 1000);

/// The sample with its project open, and a map for it.
class Scene : public PlaybackMap {
public:
    Scene() {
        offscreenApplication<QGuiApplication>();
        resetGlobals();
        resetDefaultWorkspace();
        const auto made =
            sample::makeSampleInstallation({.folder = folder_.text(), .calls = 100'000, .seed = 1}).projectPath;
        openInstallation(folder_.text());
        gsFontName = "Calibri";
        openProject(made);
        report_ = wholeProject();
        surface_.setPixelSize(mapSize);
    }
    ~Scene() override {
        resetGlobals();
        resetDefaultWorkspace();
    }

    /// Ten frames of twelve hours, playing and past the first ticks.
    bool play(long boundary) {
        boundary_ = boundary;
        runReport(boundary, report_);
        form_.extentCaptured = form_.keepView = false;
        AnimationSettings settings;
        settings.startDate = report_.DTStart;
        settings.CmbDataPeriod = "12hr";
        settings.CmbFrames = "10";
        settings.CmbInterval = "1";
        AnimationForm form;
        if (!AnimationSetup(report_, form_.periods).CmdApply_Click(settings, form))
            return false;
        playback.begin();
        playback.framesReady();
        playback.animate();
        for (int tick = 0; tick < 3; ++tick)
            playback.tick();
        return true;
    }

    long mapType() const override { return 1; }
    const ReportParameters& parameters() const override { return report_; }
    void build(long mapType, int dataSet) override { map_.CreateMap(boundary_, mapType, dataSet); }

private:
    TemporaryFolder folder_;
    ReportParameters report_;
    MapFormState form_;
    MapSurface surface_;
    MapKey key_{surface_};
    ThematicMap map_{surface_, key_, form_, currentTables, mapMaxima};
    long boundary_ = 0;

public:
    Playback playback{*this, form_};
};

/// From the beat of the clock to the drawn map.
void oneFrame(benchmark::State& state) {
    static Scene scene;
    if (!scene.play(state.range(0)))
        state.SkipWithError("no animation");
    for ([[maybe_unused]] auto _ : state)
        scene.playback.tick();
    state.SetLabel(gsBoundaryType);
}
BENCHMARK(oneFrame)
    ->Arg(animatedTVRegions)
    ->Arg(animatedPostCodeDistricts)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
