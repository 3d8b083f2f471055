#pragma once

/// Makes TblDataCapture in the system map database, empty, and opens that database and the project anew. For
/// installations whose system map database came without it. Errors are logged; where the project cannot be opened, or
/// its geography not brought up to date, the user is told.
void ModData_CreateDataCaptureTable();
