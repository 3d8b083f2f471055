#include "report/FrmMain_lsthistory_click.h"

#include "core/CallHistory.h"
#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SetPopulationFlags.h"
#include "data/project/UpdateMappingVersion.h"
#include "data/project/UpgradeProjectSchema.h"
#include "groups/AccountGroups.h"
#include "report/ProjectOpening.h"
#include "stats/SelectionState.h"

#include <filesystem>

namespace {

constexpr const char* procedure = "FrmMain_lsthistory_click";
constexpr int chosenByDialogue = 1;
constexpr const char* oldLayout =
    "This is an older version project file and is no longer valid.  Please select a valid "
    "project file.";

/// Sets gsProjectPath. False where the user cancelled.
bool takePath(ProjectWindow& window, int row) {
    if (gsProjectPath.find("More files") != std::string::npos)
        gsProjectPath.clear();
    if (row == chosenByDialogue) {
        const auto chosen = window.chooseProject(gsProjectPath);
        if (!chosen)
            return false;
        gsProjectPath = *chosen;
        window.showProjectName(CallHistory::shortName(gsProjectPath));
        return true;
    }
    const auto rows = ModUtilities_ReadHistory();
    const auto at = static_cast<std::size_t>(row - 1);
    gsProjectPath = at < rows.size() ? rows[at] : std::string();
    return true;
}

bool isFile(const std::string& path) {
    std::error_code fault;
    return !path.empty() && std::filesystem::is_regular_file(toPath(path), fault);
}

/// The layout of old projects shows in the name of one field, spelled in two ways.
bool hasOldLayout(int row) {
    constexpr int position = 11;
    const auto rows = projectDatabase().openRecordset("Select Top 1 * From Tblteleitem");
    return rows->fieldCount() > position &&
           rows->field(position).name == (row == chosenByDialogue ? "Predisc" : "PreDisc");
}

/// What keeps the project from being used; empty where nothing does. Leaves the project open in gdbProject.
std::string openAndTest(int row) {
    reopenProject();
    if (!projectHasCalls())
        return "No records found in this project";
    return hasOldLayout(row) ? oldLayout : "";
}

void warnOfIncompleteCalls() {
    const auto flags = firstValue(projectDatabase(), "SELECT Flags FROM Tbl50");
    if (flags && !flags->isNull() && flags->asDouble() == 1)
        showMessage("WARNING - The call records for this project are incomplete.\r\nCall reports may be inaccurate or "
                    "incomplete.\r\n");
}

/// The project is good: everything up to its figures.
void bringUpToDate(ProjectWindow& window, int row) {
    if (row != chosenByDialogue) {
        window.showProjectName(CallHistory::shortName(gsProjectPath));
        gcCampaignSpend = 0;
    }
    UpgradeProjectSchema();
    UpdateMappingVersion();
    bringProjectIn(window);
    showInHistory(window);
    gsCurrentProc = procedure;
    warnOfIncompleteCalls();
    window.EnableForm();
    window.resetChoices();
    window.Setup_Dates();
}

void showFigures(ProjectWindow& window) {
    SetPopulationFlags();
    if (isCaptured()) {
        restoreMultiMaps(window);
        return;
    }
    captureInWindow(window);
    if (!accountHasGroups())
        window.removeCustomerGroups();
}

void failed(ProjectWindow& window, const char* message) {
    logCurrentError();
    leaveProject(window, message);
}

} // namespace

void FrmMain_lsthistory_click(ProjectWindow& window, int row) {
    const Hourglass hourglass;
    FilterActive = false;
    gsCurrentProc = procedure;
    if (!takePath(window, row)) {
        window.DisableForm();
        return;
    }
    if (!isFile(gsProjectPath)) {
        leaveProject(window, "Project not found");
        return;
    }
    try {
        if (const std::string fault = openAndTest(row); !fault.empty()) {
            leaveProject(window, fault);
            return;
        }
    } catch (...) {
        failed(window, "Invalid project file selected");
        return;
    }
    try {
        bringUpToDate(window, row);
        showFigures(window);
    } catch (...) {
        failed(window, "Invalid file selected");
    }
}
