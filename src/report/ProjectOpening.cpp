#include "report/ProjectOpening.h"

#include "core/CallHistory.h"
#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "groups/FrmMain_TransferGroups.h"
#include "report/CaptureProject.h"

bool projectHasCalls() {
    const auto rows = projectDatabase().openRecordset("Select Top 1 * From Tblteleitem");
    return !rows->EOF_();
}

void leaveProject(ProjectWindow& window, const std::string& message) {
    if (gdbProject) {
        ignoreErrors([] { gdbProject->close(); });
        gdbProject.reset();
    }
    gsProjectPath.clear();
    window.readHistory();
    window.showProjectName("Please select a file");
    window.DisableForm();
    if (!message.empty())
        showMessage(message);
}

void bringProjectIn(ProjectWindow& window) {
    FrmMain_TransfergroupstoProject();
    FrmMain_TransferGroupsToMap();
    window.Setup_Dates();
    window.Setup_Location_List();
    window.Setup_Inbound_List();
}

void showInHistory(ProjectWindow& window) {
    window.showProjectName(CallHistory::shortName(gsProjectPath));
    ModUtilities_SaveHistory();
    window.readHistory();
}

void restoreMultiMaps(ProjectWindow& window) {
    const auto settings = capturedMultiMapSettings();
    if (!settings)
        return;
    gsBoundaryType = settings->boundaryType;
    window.restoreMultiMaps(*settings);
}

void captureInWindow(ProjectWindow& window) {
    window.showCapture(captureProject);
    recordCapture();
}
