#pragma once

#include "stats/calls/CallColumns.h"
#include "stats/calls/YieldingTasks.h"

#include <optional>

class Database;

/// The calls of an open project as columns: read on the calling thread, encoded and sorted on others. A statement stays
/// open on the project meanwhile, so `progress` must not change it. Nothing where `progress` stopped the work.
///
/// Throws DatabaseError as CallReader does, and 3421 where a column holds more distinct values than ids: 255 for
/// AnswerInd, 65,535 for the others. The figures of such a project come from statements.
///
/// `done` is told the share of the work that is done, from 0 to 1, as `progress` is called.
std::optional<CallColumns> buildCallColumns(Database& project, const CallProgress& progress,
                                            const std::function<void(double)>& done = {});
