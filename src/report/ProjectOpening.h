#pragma once

#include "report/ProjectWindow.h"

#include <string>

/// The steps that the two ways of opening a project share.

/// Whether TblTeleItem of the open project has a row.
bool projectHasCalls();

/// Closes the project, forgets its path and lets the window say that one is to be chosen; nothing can be reported until
/// then. The message, unless it is empty, is shown last.
void leaveProject(ProjectWindow& window, const std::string& message);

/// The groups of the project's account come to the map; the window's lists are filled for the project.
void bringProjectIn(ProjectWindow& window);

/// Label3 shows the short name of gsProjectPath, and LstHistory the project first.
void showInHistory(ProjectWindow& window);

/// The maps that were shown side by side last, where they were of this project.
void restoreMultiMaps(ProjectWindow& window);

/// Counts the project in FrmMessage and stamps it. Throws DatabaseError where it cannot be stamped.
void captureInWindow(ProjectWindow& window);
