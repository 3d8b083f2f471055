#include "groups/FrmMain_TransferGroups.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/CustomerGroupTables.h"
#include "groups/GroupLinks.h"

namespace {

void readAccount() {
    if (const auto account = firstValue(projectDatabase(), "SELECT * FROM Tbl50"))
        gsAccount = trimmedText(account->asText());
}

void copyToProject() {
    const auto master = customerGroupsDatabase().openRecordset(
        "SELECT TallyAccount, Reference, GroupName FROM TblGroups Where TallyAccount =" + quoted(gsAccount));
    if (master->EOF_())
        return;
    WorkspaceTransaction copying(*defaultWorkspace());
    projectDatabase().execute("DELETE FROM TblGroups");
    const auto rows = projectDatabase().openRecordset("SELECT * FROM TblGroups");
    for (; !master->EOF_(); master->MoveNext()) {
        rows->AddNew();
        for (const char* column : {"TallyAccount", "Reference", "GroupName"})
            rows->set(column, master->value(column).asText());
        rows->Update();
    }
    copying.commit();
}

/// The account's rows of a master table, in place of all rows of ukmap.mdb.
void copyToMap(const std::string& table) {
    Database& system = systemDatabase();
    const GroupLink link(table + "_Link", table);
    WorkspaceTransaction copying(*defaultWorkspace());
    system.execute("DELETE FROM " + table);
    system.execute("INSERT INTO " + table + " SELECT * FROM " + table +
                   "_Link WHERE TallyAccount = " + quoted(gsAccount));
    copying.commit();
}

} // namespace

void FrmMain_TransfergroupstoProject() {
    const CurrentProcedure procedure("FrmMain_TransfergroupstoProject");
    logAndGoOn(readAccount);
    logAndGoOn(copyToProject);
}

void FrmMain_TransferGroupsToMap() {
    const CurrentProcedure procedure("FrmMain_TransferGroupsToMap");
    logAndGoOn([] {
        customerGroupsDatabase().tableDefs().refresh();
        if (!customerGroupsDatabase().tableDefs().find("PGN_GROUPS"))
            FrmMain_CreateCustomerGroupDBPolygonTables();
    });
    logAndGoOn([] { copyToMap("PGN_GROUPS"); });
    logAndGoOn([] { copyToMap("PNT_GROUPS"); });
    logAndGoOn([] {
        if (!customerGroupsDatabase().tableDefs().find("tblMappingGroupSetup"))
            FrmMain_CreateMappingGroupSetupTable();
        linkGroupTable("tblMappingGroupSetup_Link", "tblMappingGroupSetup");
    });
}
