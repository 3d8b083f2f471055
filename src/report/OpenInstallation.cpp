#include "report/OpenInstallation.h"

#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "data/project/CreateLinkTables.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/OpenProjectDatabase.h"
#include "data/project/SetPopulationFlags.h"
#include "data/schema/Vocabulary.h"
#include "data/types/DatabaseError.h"
#include "groups/FrmMain_TransferGroups.h"
#include "report/ProjectPeriod.h"

#include <filesystem>

namespace {

/// The tables without which a file is no project.
void requireProjectTables(Database& database, const std::string& path) {
    for (const std::string_view table : {"TblTeleItem", "TblGIS", "Tbl50", "TblCallSummary1"}) {
        if (!database.tableDefs().find(table))
            throw RuntimeError(3078, "'" + path + "' is no project: it has no table " + std::string(table));
    }
    if (database.openRecordset("Select Top 1 * From Tblteleitem")->EOF_())
        throw RuntimeError(5, "'" + path +
                                  "': This is an invalid project file. Only files containing ERD data can be used.");
}

/// An error of a file's contents names the file.
template<typename Step>
void namingFile(const std::string& path, Step step) {
    try {
        step();
    } catch (const DatabaseError& error) {
        if (error.description().find(path) != std::string::npos)
            throw;
        throw DatabaseError(error.number(), "'" + path + "': " + error.description());
    }
}

} // namespace

void openInstallation(const std::string& folder) {
    const std::string paths = joinPath(folder, "Paths.txt");
    if (!std::filesystem::is_regular_file(toPath(paths)))
        throw RuntimeError(53, "There is no installation in '" + folder + "': '" + paths + "' is missing");
    gPaths = std::make_shared<cPathControl>(folder, folder);
    if (const std::string system = portableSystemFolder(folder); !system.empty())
        gPaths->SystemDataPath = system;
    gsSystemDBPath = joinPath(gPaths->ApplicationDataPath, "ukmap.mdb");
    reopenSystemDatabase();
    namingFile(gsSystemDBPath, [] { firstValue(systemDatabase(), "SELECT TOP 1 Version FROM TblVersion"); });
}

void openProject(const std::string& path) {
    namingFile(path, [&] {
        const auto database = defaultWorkspace()->openDatabase(path, Workspace::Access::ReadOnly, ProjectConnect);
        requireProjectTables(*database, path);
    });
    gsProjectPath = path;
    if (!OpenProjectDatabase(path))
        throw RuntimeError(5, "Unable to open Project Database '" + path + "'");
    FrmMain_TransfergroupstoProject();
    FrmMain_TransferGroupsToMap();
    if (ModUtilities_CreateLinkTables() != 0)
        throw RuntimeError(5, "Could not link to project database '" + path + "'");
    SetPopulationFlags();
}

ReportParameters wholeProject() {
    const auto period = projectPeriod();
    if (!period)
        throw RuntimeError(3021, "'" + gsProjectPath + "' does not tell its period: TblCallSummary1 has no row");
    ReportParameters parameters;
    parameters.DTStart = period->start;
    parameters.DTEnd = period->end;
    return parameters;
}
