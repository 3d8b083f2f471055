#include "app/ModUtilities_Main.h"

#include "app/StartActions.h"
#include "core/CallHistory.h"
#include "core/CommandLine.h"
#include "core/FileNames.h"
#include "core/LogAndGoOn.h"
#include "core/LogError.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "core/RuntimeError.h"
#include "core/Version.h"
#include "core/WriteLine.h"
#include "core/cPathControl.h"
#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "ui/cColours_CS.h"

#include <fstream>
#include <iostream>

namespace {

constexpr const char* procedure = "ModUtilities_Main";
constexpr long inputPastEndOfFile = 62;
constexpr long fileAccessError = 75;
constexpr long objectNotSet = 91;

/// The folders of the installation. Where they could not be read, whoever asks fails and says so in the log.
cPathControl& paths() {
    if (!gPaths)
        throw RuntimeError(objectNotSet, "The folders of the installation are not known");
    return *gPaths;
}

/// For who starts the program from a console: the message boxes do not tell the reason.
void tellConsole(const std::exception& error) {
    std::cerr << programTitle << ": " << error.what() << '\n';
}

void createPathsAndColours(const InstallationFolders& folders) {
    try {
        gPaths = std::make_shared<cPathControl>(folders.programFolder, folders.commonDataFolder);
        if (!folders.systemFolder.empty())
            gPaths->SystemDataPath = folders.systemFolder;
    } catch (const std::exception& error) {
        logCurrentError();
        tellConsole(error);
    }
    gColours = std::make_shared<cColours_CS>();
}

void loadInterfaceFont(StartActions& actions) {
    gsFontName = "Calibri";
    logAndGoOn([&] {
        if (actions.addFontFile(fileInFolder(paths().SystemDataPath, "OstelCurve_Rg.ttf")))
            gsFontName = "Ostel Curve";
    });
}

/// False where the delivered map data could not be brought in, and the program must not run on what is there.
bool systemDatabaseIsUpToDate(StartActions& actions) {
    int failure = 0;
    logAndGoOn([&] { failure = actions.ModUtilities_CheckForNewUKMapDB(); });
    return failure == 0;
}

void resetProjectState(StartActions& actions) {
    logAndGoOn([&] { gsProjectPath = splitCommandLine(actions.commandLine())[2]; });
    gbPostCodePopulation = false;
    gbTVPopulation = false;
    gcCampaignSpend = 0.0;
    logAndGoOn([] {
        if (fileExists(paths().SystemDataPath, "OstelReportLogo.jpg"))
            gbReportLogo = true;
    });
}

bool installationFolderHasDot() {
    return gPaths && gPaths->ApplicationRootPath.find('.') != std::string::npos;
}

StartResult endWith(const std::string& message, PromptStyle style = PromptStyle::Plain) {
    showMessage(message, style);
    return StartResult::Ended;
}

/// Everything before the system map database is needed. An error is logged and the next step runs.
StartResult prepare(const InstallationFolders& folders, StartActions& actions) {
    gsVersion = programVersion();
    bool secondInstance = false;
    logAndGoOn([&] { secondInstance = actions.anotherInstanceRunning(); });
    if (secondInstance)
        return endWith("Another instance of this application is already running.");
    createPathsAndColours(folders);
    loadInterfaceFont(actions);
    if (!systemDatabaseIsUpToDate(actions))
        return endWith("Could not update system with new UKMap.BAK.  Program must shut down", PromptStyle::Stop);
    resetProjectState(actions);
    if (installationFolderHasDot())
        return endWith("Program installed in invalid folder, folder names must not include dots",
                       PromptStyle::Information);
    return StartResult::Running;
}

/// Opens the system map database and shows the main window; without either the program does not live.
StartResult openSystemDatabaseAndShow(StartActions& actions) {
    try {
        gsSystemDBPath = fileInFolder(paths().ApplicationDataPath, "ukmap.mdb");
        gdbSystem = defaultWorkspace()->openDatabase(gsSystemDBPath, Workspace::Access::Shared, SystemMapConnect);
        actions.showMainWindow();
        return StartResult::Running;
    } catch (const std::exception& error) {
        // The message cannot tell a missing file from a locked or damaged one: the log and the console can.
        LogError(procedure, currentError().number, error.what());
        tellConsole(error);
        return endWith("Mapping database cannot be found");
    }
}

std::string readLine(std::ifstream& in, const std::string& path) {
    std::string line;
    if (!std::getline(in, line))
        throw RuntimeError(inputPastEndOfFile, "Input past end of file: " + path);
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

/// The first project of the history goes to gsProjectPath and so overrules the command line. False where there is no
/// history.
bool readProjectPathFromHistory() {
    if (!fileExists(paths().ApplicationDataPath, CallHistory::fileName))
        return false;
    const std::string path = fileInFolder(paths().ApplicationDataPath, CallHistory::fileName);
    std::ifstream history(toPath(path));
    if (!history)
        throw RuntimeError(fileAccessError, "Path/File access error: cannot read " + path);
    gsProjectPath = readLine(history, path); // "More files .."
    gsProjectPath = readLine(history, path);
    gsProjectPath = StripQuotes(gsProjectPath);
    return true;
}

void openLatestProject(StartActions& actions) {
    if (!readProjectPathFromHistory() || gsProjectPath.empty())
        return;
    if (!actions.OpenProjectDatabase(gsProjectPath)) {
        showMessage("Unable to open Project Database", PromptStyle::Information);
        return;
    }
    if (!gdbProject)
        throw RuntimeError(objectNotSet, "The project is not open: " + gsProjectPath);
    if (actions.ModUtilities_UpdateMappingGISTable(*gdbProject) != 0)
        showMessage("An error occurred updating the Exchange GIS data");
    actions.ModUtilities_OpenMap();
}

} // namespace

StartResult ModUtilities_Main(const InstallationFolders& folders, StartActions& actions) {
    gsCurrentProc = procedure;
    if (prepare(folders, actions) == StartResult::Ended || openSystemDatabaseAndShow(actions) == StartResult::Ended)
        return StartResult::Ended;
    logAndGoOn([&] { openLatestProject(actions); });
    return StartResult::Running;
}
