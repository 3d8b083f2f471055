#pragma once

#include "stats/calls/CallColumns.h"
#include "stats/calls/YieldingTasks.h"

#include <optional>

class Database;

/// The columns as they are kept in the project file, in table MSysCallColumns, so that they are built once: compressed
/// pieces of a megabyte with checksums, and a stamp by which they are known to fit the calls: the mark of CallMark.h,
/// which goes with any change of a call, and beside it format, number of calls, lowest and highest row number and a
/// sample of the rows. Main thread, which does the reading and writing; `progress` must not use the project.

/// Writes the columns in place of those kept before, in one transaction. A file opened for reading only is left alone,
/// as it is where `progress` stopped the work. Throws DatabaseError for faults of the file.
void saveCallColumns(Database& project, const CallColumns& columns, const CallProgress& progress);

/// The kept columns; nothing where there are none, where they do not fit the calls or are damaged in any way, or where
/// `progress` stopped the work.
std::optional<CallColumns> loadCallColumns(Database& project, const CallProgress& progress);

void removeKeptCallColumns(Database& project);
