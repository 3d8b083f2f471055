#pragma once

#include "stats/calls/CallColumns.h"

#include <memory>
#include <string>

/// The calls of gdbProject as columns: those in memory, else those kept in the project file, else built from the rows
/// and kept. Null where the calls do not fit columns, which is logged once under gsCurrentProc; their figures come from
/// statements.
///
/// Columns in memory belong to the open file and go with it, whatever handles are closed and opened meanwhile. They are
/// known to fit by the mark of calls/CallMark.h; in a file that cannot be written, by its not having changed at all,
/// and there they live in memory only. Where the project says that its data have changed (UpdateMapping in Tbl50 is 1)
/// they are built anew, once until that is taken back.
///
/// Loading and building yield at least every 100 ms. Throws DatabaseError 3420 where no project is open, and for faults
/// of the file in looking whether the columns fit. Main thread.
std::shared_ptr<const CallColumns> projectCalls();

/// The project's data are said to have changed: neither the columns in memory nor those in the file are used any more.
/// Throws DatabaseError as changing the file does.
void forgetProjectCalls();

/// Why the last projectCalls() of the open project was null; empty where it was not.
std::string whyNoProjectCalls();
