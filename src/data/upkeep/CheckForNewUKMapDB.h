#pragma once

/// Replaces the working system map database, ukmap.mdb of ApplicationDataPath, by the delivered UKMap.BAK of
/// SystemDataPath where that one is newer, and carries the user's population figures and drawn groups across. To be
/// called before ukmap.mdb is opened for use.
///
/// Returns 0 when the program may go on, else -1: the error is in the log, with the line of the procedure where it
/// happened, and ukmap.mdb is as it was.
int ModUtilities_CheckForNewUKMapDB();
