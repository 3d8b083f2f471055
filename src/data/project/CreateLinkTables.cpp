#include "data/project/CreateLinkTables.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/UpdateMappingGISTable.h"

#include <string>

namespace {

void attachProject(Database& system, const Database& project) {
    for (const char* old : {"TblGIS_Link", "TblTeleItem_Link", "TblGroup_Link"})
        ignoreErrors([&] { system.execute("DROP TABLE " + std::string(old)); });
    system.tableDefs().refresh();
    attachTable(system, "TblGIS_Link", "TblMappingGIS", projectLinkConnect(project));
    attachTable(system, "TblTeleItem_Link", "TblTeleItem", projectLinkConnect(project));
    attachTable(system, "TblGroup_Link", "TblGroups", customerGroupsConnect());
    system.execute("UPDATE TblGIS_LINK INNER JOIN TblLookup1141 ON TblGIS_Link.[1141] = TblLookup1141.[1141] "
                   "SET TblGIS_Link.Exchange = TblLookup1141.[Exchange]");
}

} // namespace

int ModUtilities_CreateLinkTables() {
    gsCurrentProc = "ModUtilities_CreateLinkTables";
    int updated = -1;
    logAndGoOn([&] { updated = ModUtilities_UpdateMappingGISTable(projectDatabase()); });
    if (updated != 0)
        showMessage("An error occurred updating the Mapping GIS table");
    gsCurrentProc = "ModUtilities_CreateLinkTables";
    return logAndGoOn([] { attachProject(systemDatabase(), projectDatabase()); }) ? 0 : -1;
}
