#pragma once

#include <string>

class StartActions;

/// Where an installation lies.
struct InstallationFolders {
    std::string programFolder;    ///< of the program file; holds Paths.txt
    std::string commonDataFolder; ///< machine-wide data; empty: the system's
    std::string systemFolder;     ///< delivered files; empty: below the machine-wide data
};

enum class StartResult {
    Running, ///< FrmMain is shown; the program lives on in its message loop
    Ended    ///< a failure was shown; the process ends
};

/// The start of the program: sets up the globals, brings the system map database up to date and opens it, shows FrmMain
/// and opens the latest project. Speaks to the user through prompts(). Throws nothing: errors that end nothing go to
/// the error log.
StartResult ModUtilities_Main(const InstallationFolders& folders, StartActions& actions);
