#pragma once

#include "stats/ReportParameters.h"
#include "tests/stats/compare/RandomProject.h"

#include <optional>
#include <string>
#include <vector>

enum class RunBoundary { Exchange, Csg, TVRegion, PostcodeDistrict, CustomerGroups };

/// One filling of one period of a statistics table.
struct RandomRun {
    RunBoundary boundary{};
    std::string table;
    int period = 1;
    std::optional<ReportParameters> parameters; ///< nothing: every call of the project
    std::optional<ProjectCall> callBefore;      ///< a call that the project gets just before

    std::string text() const;
};

ReportParameters makeParameters(Random& random);

/// The main, selected and animated tables of all boundaries, with the later periods of the last two in their order.
std::vector<RandomRun> makeRuns(Random& random);

/// Sets SelectionSql as a report does and fills the table.
void perform(const RandomRun& run);

/// Whether the run finds its callers anew.
bool countsCallers(const RandomRun& run);

/// Whether the selection of a run is a statement: an apostrophe in a text breaks it.
bool canBeRead(const RandomRun& run);
