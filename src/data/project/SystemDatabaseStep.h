#pragma once

#include <functional>

/// Runs one step of a procedure that works on the system map database and must finish whatever happens.
///
/// DatabaseError 3420 means that the handle of the system map database has died: it is opened anew into gdbSystem and
/// the step is run once more. Any other error, also one of the second run, is written to the error log under
/// gsCurrentProc. Returns whether the step ran to its end; the caller goes on with its next step either way.
///
/// A step should be one statement or one row, so that what is repeated or passed over is no more than that.
bool onSystemDatabase(const std::function<void()>& step);
