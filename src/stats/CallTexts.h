#pragma once

#include "stats/calls/CallColumns.h"

#include <optional>
#include <string>
#include <vector>

/// The texts that a field of the project's calls holds, in their order; of those that compare equal only one, and no
/// null. Loads or builds the columns of the calls, which every report needs, and yields meanwhile. Nothing where
/// statements have to be asked: they are wanted, or the calls do not fit columns. Throws as projectCalls() does. Main
/// thread.
std::optional<std::vector<std::string>> callTexts(CallField field);
