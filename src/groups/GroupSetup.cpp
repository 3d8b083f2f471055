#include "groups/GroupSetup.h"

#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/ChangedGroups.h"
#include "groups/ModData_SaveCustomerGroups.h"

#include <filesystem>

GroupSetup readGroupSetup() {
    const auto row = systemDatabase().openRecordset(
        "SELECT DataType, Status FROM tblMappingGroupSetup_Link WHERE TallyAccount = " + ::quoted(gsAccount));
    GroupSetup setup;
    setup.stored = !row->EOF_();
    if (!setup.stored) {
        setup.changed = countOf(projectDatabase(), "SELECT COUNT(*) AS RowCount FROM tblGroups") != 0;
        return setup;
    }
    setup.changed = !row->value("Status").isNull() && row->value("Status").asBoolean();
    if (!row->value("DataType").isNull())
        setup.DataType = static_cast<long>(row->value("DataType").asInteger());
    return setup;
}

bool customerGroupsExist() {
    std::error_code fault;
    if (std::filesystem::exists(toPath(customerGroupsPath()), fault))
        return true;
    showMessage("No Customer Groups have been set up.  Please do this in Callscope before attempting to update Groups "
                "with Callscope Mapping");
    return false;
}

bool agreeToChanges() {
    return askYesNo("Changes have been made to Customer Groups in Callscope.  These changes must be applied to "
                    "Callscope Mapping before you proceed.  Do you wish to continue?");
}

bool agreeToSave() {
    return askYesNo("Saving group changes can take a considerable amount of time, depending on the number, size and "
                    "complexity of groups.  Do you wish to continue?");
}

void GroupStatus::setVisible(bool visible) const {
    if (frame)
        frame(visible);
}

long saveChangedGroups(const std::string& namesQuery, long DataType, const GroupStatus& status) {
    const auto rows = systemDatabase().openRecordset(namesQuery);
    for (; !rows->EOF_(); rows->MoveNext())
        AddChangedGroup(rows->value(0).asText());
    progress().setHourglass(false);
    const bool agreed = agreeToSave();
    progress().setHourglass(true);
    if (!agreed)
        return UserStopped;
    status.setVisible(true);
    bool unsaved = true;
    return ModData_SaveCustomerGroups(DataType, status.saveStatus, status.groupStatus, &unsaved);
}
