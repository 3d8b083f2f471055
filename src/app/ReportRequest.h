#pragma once

class FrmMain;

/// What a report button of the main window does: counts what its parameters select for its boundary and says how that
/// went. The figures are ready then; a window to show them on a map has not been built into the program.
void runRequestedReport(FrmMain& window, int index);
