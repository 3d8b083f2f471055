#include "core/cPathControl.h"
#include "help/GuideFiles.h"
#include "sample/installation/SampleInstallation.h"
#include "tools/callscope-tool/Commands.h"
#include "tools/callscope-tool/Painting.h"

#include <CLI/CLI.hpp>

#include <chrono>
#include <iomanip>
#include <iostream>
#include <memory>

namespace {

void show(const sample::SampleReport& report, std::int64_t calls, double seconds) {
    std::cout << "An invented installation: no call, caller or figure in it is real.\n"
              << "settings          " << report.pathsFilePath << '\n'
              << "system map        " << report.systemMapPath << '\n'
              << "customer groups   " << report.customerGroupsPath << '\n'
              << "community groups  " << report.communityGroupsPath << '\n'
              << "delivered files   " << report.systemFolder << '\n'
              << "project           " << report.projectPath << '\n'
              << "areas             " << report.postcodeDistricts << " postcode districts, " << report.exchangeAreas
              << " exchange areas, " << report.csgs << " CSGs, " << report.tvRegions << " TV regions\n"
              << "codes             " << report.codes << '\n'
              << "calls             " << calls << '\n'
              << std::fixed << std::setprecision(1) << "made in           " << seconds << " s\n";
}

} // namespace

void addSampleCommand(CLI::App& app, Action& action) {
    auto options = std::make_shared<sample::SampleOptions>();
    CLI::App* command =
        app.add_subcommand("sample", "Makes an invented installation: maps, groups and a project of calls");
    command->add_option("--dir", options->folder, "The folder to make it in")->required();
    command->add_option("--calls", options->calls, "Number of calls")
        ->check(CLI::Range(sample::leastSampleCalls, sample::mostSampleCalls))
        ->capture_default_str();
    command->add_option("--seed", options->seed, "The same seed gives the same data")->capture_default_str();
    command->add_flag("--overwrite", options->overwrite, "Replace an installation that is there already");
    command->callback([options, &action] {
        action = [options] {
            const auto start = std::chrono::steady_clock::now();
            const sample::SampleReport report = sample::makeSampleInstallation(*options);
            startPainting();
            writeGuideFiles(toText(toPath(report.systemMapPath).parent_path()));
            show(report, options->calls,
                 std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
            return Done;
        };
    });
}
