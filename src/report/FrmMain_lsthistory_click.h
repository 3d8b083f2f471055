#pragma once

class ProjectWindow;

/// Opens the project of a row of LstHistory, or one that the user chooses in the first row ("More files .."), proves
/// that it is usable, brings it up to date, and counts it unless its figures are still there. `row` counts from 1. What
/// is wrong is told in a message, and the window then offers no reports. Main thread.
void FrmMain_lsthistory_click(ProjectWindow& window, int row);
