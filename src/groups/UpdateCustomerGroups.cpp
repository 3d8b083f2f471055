#include "groups/UpdateCustomerGroups.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/ChangedGroups.h"
#include "groups/GroupSetup.h"
#include "groups/ModData_CopyGroupsFromProject.h"
#include "groups/ModUtilities_DetermineProbableGroupDefinition.h"

namespace {

long namesOfAccount() {
    return customerGroupsDatabase()
        .openRecordset("SELECT DISTINCT TblName.Name FROM TblName WHERE TallyAccount = " + ::quoted(gsAccount) +
                       " AND TblName.Name IS NOT NULL")
        ->RecordCount();
}

std::string tooManyText() {
    const std::string limit = std::to_string(MaxCustomerGroups);
    return "Callscope Mapping can display a maximum of " + limit + " Customer Groups.  Currently, more than " + limit +
           " groups exist for this project.  If the Customer Groups for this project are to be viewed or amended in "
           "Callscope Mapping, please use the 'Manage Customer Groups' facility in Callscope to reduce the number of "
           "groups to " +
           limit + " or fewer.\r\n\r\nNo changes have been made to the Customer Groups for this project.";
}

/// The user agrees to what Callscope has changed; without names there is nothing to ask. Finds out the kind of areas
/// where it is not known. False where the user stopped.
bool agreeToChange(GroupSetup& setup, const GroupStatus& status) {
    if (tooManyGroups())
        return false;
    if (namesOfAccount() > 0 && !agreeToChanges())
        return false;
    status.setVisible(true);
    show(status.saveStatus, "");
    show(status.groupStatus, "");
    if (setup.DataType != 0)
        return true;
    if (ModUtilities_DetermineProbableGroupDefinition() == GroupDefinition::Refused)
        return false;
    setup.changed = false;
    return true;
}

long update(const GroupStatus& status) {
    if (!customerGroupsExist())
        return UserStopped;
    GroupSetup setup = readGroupSetup();
    if (setup.changed && !agreeToChange(setup, status))
        return UserStopped;
    ResetChangedGroups();
    if (ModData_CopyGroupsFromProject(setup.DataType) == UserStopped)
        return UserStopped;
    if (!setup.changed)
        return 0;
    return saveChangedGroups("SELECT DISTINCT GroupName FROM tblTempGroups WHERE GroupName <> '' ORDER BY GroupName",
                             setup.DataType, status);
}

long UpdateCustomerGroups(const GroupStatus& status) {
    long result = -1;
    const Hourglass hourglass;
    logAndGoOn([&] { result = update(status); });
    status.setVisible(false);
    return result;
}

} // namespace

bool tooManyGroups() {
    if (namesOfAccount() <= MaxCustomerGroups)
        return false;
    showMessage(tooManyText());
    return true;
}

long ModData_UpdateCustomerGroups(const FrameVisibility& Frame, const Caption& SaveStatusLabel,
                                  const Caption& GroupStatusLabel) {
    const CurrentProcedure procedure("ModData_UpdateCustomerGroups");
    return UpdateCustomerGroups({Frame, SaveStatusLabel, GroupStatusLabel});
}

void FrmMain_UpdateCustomerGroups(long& Result, const FrameVisibility& Frame, const Caption& SaveStatusLabel,
                                  const Caption& GroupStatusLabel) {
    const CurrentProcedure procedure("FrmMain_UpdateCustomerGroups");
    Result = UpdateCustomerGroups({Frame, SaveStatusLabel, GroupStatusLabel});
}
