#include "app/DesktopStart.h"
#include "app/ModUtilities_Main.h"
#include "bench/BenchSupport.h"
#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/engine/Workspace.h"
#include "report/CaptureRow.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/support/TemporaryFolder.h"
#include "ui/MessageBoxPrompts.h"
#include "ui/Skin.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdlib>
#include <fstream>
#include <memory>

namespace {

/// An installation whose latest project is the sample.
class Installation {
public:
    Installation() {
        applySkin(offscreenApplication<QApplication>());
        const auto sample =
            sample::makeSampleInstallation({.folder = folder_.text(), .calls = wantedCalls(), .seed = 1});
        std::ofstream history(folder_.file("app/CallHistory.csv"));
        history << "\"More files ..\"\n\"" << sample.projectPath << "\"\n";
    }

    /// The program is started; it opens the project and shows its map.
    void start() {
        actions_ = std::make_unique<DesktopStart>(folder_.text(), std::vector<std::string>());
        if (ModUtilities_Main({folder_.text(), {}, folder_.file("system")}, *actions_) == StartResult::Ended)
            std::abort();
        QApplication::processEvents();
    }
    void end() {
        actions_.reset();
        QApplication::processEvents();
        resetGlobals();
        resetDefaultWorkspace();
    }

private:
    TemporaryFolder folder_;
    MessageBoxPrompts prompts_;
    std::unique_ptr<DesktopStart> actions_;
};

Installation& installation() {
    static Installation instance;
    return instance;
}

/// From the start of the program to the map of its latest project, which is captured.
void startToMap(benchmark::State& state) {
    Installation& here = installation();
    here.start(); // captures
    here.end();
    for ([[maybe_unused]] auto _ : state) {
        here.start();
        state.PauseTiming();
        here.end();
        state.ResumeTiming();
    }
}
BENCHMARK(startToMap)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The same with a project whose figures have to be counted; its calls are already in columns.
void startToMapWithCapture(benchmark::State& state) {
    Installation& here = installation();
    for ([[maybe_unused]] auto _ : state) {
        here.start();
        state.PauseTiming();
        forgetCapture();
        here.end();
        state.ResumeTiming();
    }
}
BENCHMARK(startToMapWithCapture)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

} // namespace
