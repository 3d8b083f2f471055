#include "groups/DeleteAllGroups.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/GroupCopies.h"

#include <optional>

int DeleteAllGroups(long DataType) {
    const CurrentProcedure procedure("frmGroups_cmdDeleteAll_Click");
    const std::string ofAccount = " WHERE TallyAccount = " + quoted(gsAccount);
    logAndGoOn([] { customerGroupsDatabase(); }); // opened before the transaction: no file can come in during one
    std::optional<WorkspaceTransaction> transaction;
    logAndGoOn([&] { transaction.emplace(*defaultWorkspace()); });
    for (const std::string& statement :
         {std::string("DELETE FROM tblTempGroups"), std::string("DELETE FROM tblTempName"),
          std::string("DELETE FROM PGN_GROUPS"), std::string("DELETE FROM PNT_GROUPS"),
          "UPDATE tblGroup_link SET GroupName = NULL" + ofAccount, "DELETE FROM tblMappingGroupSetup_Link" + ofAccount,
          "INSERT INTO tblMappingGroupSetup_Link (TallyAccount, DataType, Status) VALUES (" + quoted(gsAccount) + ", " +
              std::to_string(DataType) + ", False)",
          std::string("DELETE FROM TblCustomerGroups"), "DELETE FROM TblName_Link" + ofAccount})
        onSystemDatabase([&] { systemDatabase().execute(statement); });
    const int result = ModData_TransferGroupsToCustomerDB();
    if (transaction)
        logAndGoOn([&] { transaction->commit(); });
    return result;
}
