#include "data/project/UpgradeTeleItemTable.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/types/DatabaseError.h"

namespace {

/// Whether anything was added.
bool addMissingColumns(Database& project) {
    const TableDef* calls = project.tableDefs().find("TblTeleItem");
    if (!calls)
        throw DatabaseError(3265, "The project has no table 'TblTeleItem'");
    const bool hasPayPhone = calls->findField("PayPhone") != nullptr;
    const bool hasTotalAnswerTime = calls->findField("TotalAnswerTime") != nullptr;
    if (hasPayPhone && hasTotalAnswerTime)
        return false;

    WorkspaceTransaction upgrade(*project.workspace());
    if (!hasPayPhone) {
        Field payPhone;
        payPhone.name = "PayPhone";
        payPhone.type = FieldType::Text;
        payPhone.size = 1;
        project.tableDefs().appendField("TblTeleItem", payPhone);
    }
    if (!hasTotalAnswerTime) {
        Field total;
        total.name = "TotalAnswerTime";
        total.type = FieldType::Single;
        project.tableDefs().appendField("TblTeleItem", total);
        UpdateTotalAnswerTime();
    }
    upgrade.commit();
    return true;
}

} // namespace

void UpgradeTeleItemTable(const std::string& path, const std::string& password) {
    gsCurrentProc = "ModUtilities_UpgradeTeleItemTable";
    bool added = false;
    logAndGoOn([&] { added = addMissingColumns(projectDatabase()); });
    if (!added)
        return;
    logAndGoOn([&] {
        gdbProject->close();
        gdbProject = defaultWorkspace()->openDatabase(path, Workspace::Access::Shared, ";pwd=" + password);
    });
}

int UpdateTotalAnswerTime() {
    gsCurrentProc = "ModUtilities_UpdateTotalAnswerTime";
    int status = 0;
    for (const char* statement :
         {"UPDATE TblTeleItem SET TotalAnswerTime = AnswerTime WHERE Legs = 1 OR Legs = 0 ",
          "UPDATE TblTeleItem SET TotalAnswerTime = ActualDuration - Duration1 WHERE Legs > 1 ",
          "UPDATE TblTeleItem SET TotalAnswerTime = AnswerTime WHERE TotalAnswerTime IS NULL "}) {
        if (!logAndGoOn([&] { projectDatabase().execute(statement); }))
            status = -1;
    }
    return status;
}
