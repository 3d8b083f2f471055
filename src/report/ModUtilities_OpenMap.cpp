#include "report/ModUtilities_OpenMap.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/project/CreateLinkTables.h"
#include "data/project/SetPopulationFlags.h"
#include "report/ProjectOpening.h"

namespace {

constexpr const char* procedure = "ModUtilities_OpenMap";

void countAndShow(ProjectWindow& window) {
    captureInWindow(window);
    SetPopulationFlags();
    if (!window.DrawPieChart())
        showMessage("Could not produce pie chart for Line / Mobile / International / Other splits");
    window.CmdReport_Click();
    progress().yield();
    window.CreateMap();
}

/// False where the project is no longer open.
bool open(ProjectWindow& window) {
    if (!projectHasCalls()) {
        leaveProject(window, "This is an invalid project file. Only files containing ERD data can be used.");
        return false;
    }
    bringProjectIn(window);
    showInHistory(window);
    gsCurrentProc = procedure;
    if (ModUtilities_CreateLinkTables() != 0)
        showMessage("Could not link to project database");
    window.resetChoices();
    window.Setup_Dates();
    return true;
}

} // namespace

void ModUtilities_OpenMap(ProjectWindow& window) {
    gsCurrentProc = procedure;
    const Hourglass hourglass;
    try {
        if (!open(window))
            return;
        window.EnableForm();
        if (!isCaptured()) {
            countAndShow(window);
            return;
        }
        restoreMultiMaps(window);
        SetPopulationFlags();
        window.CmdReport_Click();
    } catch (...) {
        showMessage(currentError().description);
        logCurrentError();
        window.DisableForm();
    }
}
