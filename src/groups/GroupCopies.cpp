#include "groups/GroupCopies.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/GroupLinks.h"
#include "groups/GroupType.h"

namespace {

/// All of the step or nothing.
int inOneGo(const std::function<void()>& step) {
    const bool done = logAndGoOn([&] {
        customerGroupsDatabase(); // opened before the transaction: no file can come in during one
        WorkspaceTransaction transaction(*defaultWorkspace());
        step();
        transaction.commit();
    });
    return done ? 0 : -1;
}

std::string ofAccount() {
    return " WHERE TallyAccount = " + quoted(gsAccount);
}

void copyToMaster(const std::string& table) {
    const std::string link = table + "_Link";
    systemDatabase().execute("DELETE FROM " + link + ofAccount());
    systemDatabase().execute("INSERT INTO " + link + " SELECT * FROM " + table + ofAccount());
}

} // namespace

int ModData_TransferGroupsToCustomerDB() {
    const CurrentProcedure procedure("ModData_TransferGroupsToCustomerDB");
    return inOneGo([] {
        const GroupLink polygons("PGN_GROUPS_Link", "PGN_GROUPS");
        const GroupLink labels("PNT_GROUPS_Link", "PNT_GROUPS");
        copyToMaster("PGN_GROUPS");
        copyToMaster("PNT_GROUPS");
    });
}

int ModData_CopyGroupsToProject(long DataType) {
    const CurrentProcedure procedure("ModData_CopyGroupsToProject");
    return inOneGo([&] {
        dropTable(systemDatabase(), "TblProjectName_Link");
        {
            const GroupLink project("TblProjectGroup_Link", "TblGroups", projectLinkConnect(projectDatabase()));
            systemDatabase().execute("DELETE FROM TblProjectGroup_Link" + ofAccount());
            systemDatabase().execute("INSERT INTO TblProjectGroup_Link SELECT TallyAccount, Reference, GroupName FROM "
                                     "tblGroup_Link WHERE tblGroup_Link.TallyAccount = " +
                                     quoted(gsAccount));
        }
        customerGroupsDatabase().execute("DELETE FROM tblFieldIndicator" + ofAccount());
        customerGroupsDatabase().execute("INSERT INTO tblFieldIndicator (TallyAccount, JoinedBy) VALUES (" +
                                         quoted(gsAccount) + ", " + std::to_string(joinedByOf(DataType)) + ")");
    });
}
