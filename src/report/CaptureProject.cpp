#include "report/CaptureProject.h"

#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "data/project/CreateLinkTables.h"
#include "report/CaptureRow.h"
#include "stats/ModData_SelectedCSGData.h"
#include "stats/ModData_SelectedCustomerGroups.h"
#include "stats/ModData_SelectedExchangeData.h"
#include "stats/ModData_SelectedPostCodeData.h"
#include "stats/ModData_SelectedTVArea.h"
#include "stats/ModData_UpdateCallDataByPopulationDensity.h"
#include "stats/ModUtilities_CreateAverageCallsTables.h"
#include "stats/SelectionState.h"

void captureProject() {
    gsCurrentProc = "FrmMessage_Timer1_Timer";
    if (ModUtilities_CreateLinkTables() != 0)
        showMessage("Could not link to project database");
    FilterActive = false;
    SelectionSql.clear();
    ModData_SelectedTVArea("TblTV", 1);
    ModData_SelectedCSGData("TblCSG", 1);
    ModData_SelectedExchangeData("TblExchangeArea", 1);
    ModData_SelectedPostCodeData("TblPostCodeDistrict", 1);
    ModData_SelectedCustomerGroups("TblCustomerGroups", 1);
    ModData_UpdateCallDataByPopulationDensity();
    ModUtilities_CreateAverageCallsTables();
}

void captureUnlessCaptured() {
    if (isCaptured())
        return;
    captureProject();
    recordCapture();
}
