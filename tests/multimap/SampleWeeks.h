#pragma once

#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "report/CaptureProject.h"
#include "report/OpenInstallation.h"
#include "report/ReportRun.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/support/TemporaryFolder.h"

/// A captured sample project, whose weeks are mapped side by side.
class SampleWeeks {
public:
    SampleWeeks() {
        const auto sample = sample::makeSampleInstallation({.folder = folder_.text(), .calls = 5'000, .seed = 2});
        openInstallation(folder_.text());
        gsFontName = "Calibri";
        openProject(sample.projectPath);
        captureProject();
    }
    ~SampleWeeks() {
        resetGlobals();
        resetDefaultWorkspace();
    }
    SampleWeeks(const SampleWeeks&) = delete;
    SampleWeeks& operator=(const SampleWeeks&) = delete;

    std::string pathOf(const std::string& file) const { return folder_.text() + "/" + file; }

    /// A week for each map, from the first day on. `optPeriods`: 0 two maps, 1 four, 2 six.
    static MultiMapParameters weeks(int optPeriods) {
        MultiMapParameters ranges{.OptPeriods = optPeriods};
        const Date first = wholeProject().DTStart;
        for (std::size_t n = 0; n < 6; ++n) {
            Date* picked = &ranges.DTPicker1[4 * n];
            picked[0].days = first.days + 7.0 * static_cast<double>(n);
            picked[2].days = picked[0].days + 6;
            picked[3].days = 86399.0 / 86400;
        }
        return ranges;
    }

private:
    TemporaryFolder folder_;
};
