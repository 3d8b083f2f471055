#pragma once

#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "report/CaptureProject.h"
#include "report/OpenInstallation.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdint>

/// A sample installation in a folder of its own, with its project open and captured and the globals set to it. All is
/// let go at the end.
class CapturedSample {
public:
    CapturedSample(std::int64_t calls, std::uint64_t seed) {
        const auto made = sample::makeSampleInstallation({.folder = folder_.text(), .calls = calls, .seed = seed});
        openInstallation(folder_.text());
        gsFontName = "Calibri";
        openProject(made.projectPath);
        captureProject();
    }
    ~CapturedSample() {
        resetGlobals();
        resetDefaultWorkspace();
    }
    CapturedSample(const CapturedSample&) = delete;
    CapturedSample& operator=(const CapturedSample&) = delete;

private:
    TemporaryFolder folder_;
};
