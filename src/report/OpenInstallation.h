#pragma once

#include "stats/ReportParameters.h"

#include <string>

/// Opens an installation without a window: reads Paths.txt of `folder` into gPaths and opens ukmap.mdb into gdbSystem.
/// Delivered files are looked for in the folder "system" below it where there is one. Nothing is made or changed on
/// disk. Throws RuntimeError 53 where there is no Paths.txt, and what Workspace::openDatabase throws; the texts name
/// the path.
void openInstallation(const std::string& folder);

/// Opens a project as the main window does: the file is proved to be one before anything in it is changed, then
/// OpenProjectDatabase, the account and its groups, the links to the system map database and the population flags.
/// Throws DatabaseError naming the path, or RuntimeError where the file is no project or holds no calls.
void openProject(const std::string& path);

/// The parameters of a report over the whole project: its first and last day, all hours, no filter.
ReportParameters wholeProject();
