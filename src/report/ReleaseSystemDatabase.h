#pragma once

/// What closing the program lets go: the shared recordsets grsData1 to grsData3 and then the system map database
/// gdbSystem. Errors are ignored, as nothing could be done about them any more; all four globals are null afterwards.
void releaseSystemDatabase();
