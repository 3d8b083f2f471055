#pragma once

#include "data/types/Value.h"

#include <optional>

/// The first and last day of a project's calls.
struct ProjectPeriod {
    Date start;
    Date end;
};

/// That of the open project, from its call summary. Nothing where no project is open or its summary is empty or
/// missing.
std::optional<ProjectPeriod> projectPeriod();
