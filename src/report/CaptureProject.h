#pragma once

/// Counts the whole of the open project into the main tables of the system map database, boundary by boundary, with the
/// measures that are derived from them. Errors are logged and passed over; a project that cannot be linked is told to
/// the user. Shows its progress and yields. Main thread.
void captureProject();

/// The same, with its stamp, unless the main tables hold the project's figures already. Throws DatabaseError where the
/// project cannot be stamped.
void captureUnlessCaptured();
