#include "stats/ModData_CreateDataCaptureTable.h"

#include "core/LogAndGoOn.h"
#include "core/Prompts.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "data/project/UpdateMappingGISTable.h"
#include "data/schema/Vocabulary.h"
#include "stats/CurrentProcedure.h"

namespace {

void makeTable() {
    const auto system =
        defaultWorkspace()->openDatabase(gsSystemDBPath, Workspace::Access::Exclusive, SystemMapConnect);
    createVocabularyTable(*system, DatabaseKind::SystemMap, "TblDataCapture");
    system->close();
}

} // namespace

void ModData_CreateDataCaptureTable() {
    const CurrentProcedure procedure("ModData_CreateDataCaptureTable");
    if (gdbSystem)
        gdbSystem->close();
    logAndGoOn(makeTable);
    logAndGoOn(reopenSystemDatabase);
    if (!logAndGoOn(reopenProject)) {
        showMessage("Unable to open Project Database");
        return;
    }
    int updated = -1;
    logAndGoOn([&] { updated = ModUtilities_UpdateMappingGISTable(projectDatabase()); });
    if (updated != 0)
        showMessage("An error occurred updating the Exchange GIS data");
}
