#include "groups/UpdateCustomerGroups.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/ChangedGroups.h"
#include "groups/ModData_CopyGroupsFromProject.h"
#include "groups/ModData_SaveCustomerGroups.h"
#include "groups/ModUtilities_DetermineProbableGroupDefinition.h"

#include <filesystem>
#include <optional>

namespace {

struct Places {
    const FrameVisibility& frame;
    const Caption& saveStatus;
    const Caption& groupStatus;
};

void setVisible(const FrameVisibility& frame, bool visible) {
    if (frame)
        frame(visible);
}

/// What is known of the account's groups.
struct Setup {
    bool changed = false; ///< by Callscope, and not yet applied
    long DataType = 0;    ///< 0: not known
};

Setup readSetup() {
    const auto row = systemDatabase().openRecordset(
        "SELECT DataType, Status FROM tblMappingGroupSetup_Link WHERE TallyAccount = " + ::quoted(gsAccount));
    Setup setup;
    if (row->EOF_()) {
        setup.changed = countOf(projectDatabase(), "SELECT COUNT(*) AS RowCount FROM tblGroups") != 0;
        return setup;
    }
    setup.changed = !row->value("Status").isNull() && row->value("Status").asBoolean();
    if (!row->value("DataType").isNull())
        setup.DataType = static_cast<long>(row->value("DataType").asInteger());
    return setup;
}

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
bool agreeToChange(Setup& setup, const Places& places) {
    if (tooManyGroups())
        return false;
    if (namesOfAccount() > 0 &&
        !askYesNo("Changes have been made to Customer Groups in Callscope.  These changes must be applied to Callscope "
                  "Mapping before you proceed.  Do you wish to continue?"))
        return false;
    setVisible(places.frame, true);
    show(places.saveStatus, "");
    show(places.groupStatus, "");
    if (setup.DataType != 0)
        return true;
    if (ModUtilities_DetermineProbableGroupDefinition() == GroupDefinition::Refused)
        return false;
    setup.changed = false;
    return true;
}

/// Every group counts as changed.
void markAllGroups() {
    const auto rows = systemDatabase().openRecordset(
        "SELECT DISTINCT GroupName FROM tblTempGroups WHERE GroupName <> '' ORDER BY GroupName");
    for (; !rows->EOF_(); rows->MoveNext())
        AddChangedGroup(rows->value(0).asText());
}

long applyChange(Setup& setup, const Places& places) {
    markAllGroups();
    progress().setHourglass(false);
    const bool agreed =
        askYesNo("Saving group changes can take a considerable amount of time, depending on the number, size and "
                 "complexity of groups.  Do you wish to continue?");
    progress().setHourglass(true);
    if (!agreed)
        return UserStopped;
    bool unsaved = true;
    return ModData_SaveCustomerGroups(setup.DataType, places.saveStatus, places.groupStatus, &unsaved);
}

long update(const Places& places) {
    std::error_code fault;
    if (!std::filesystem::exists(toPath(customerGroupsPath()), fault)) {
        showMessage("No Customer Groups have been set up.  Please do this in Callscope before attempting to update "
                    "Groups with Callscope Mapping");
        return UserStopped;
    }
    Setup setup = readSetup();
    if (setup.changed && !agreeToChange(setup, places))
        return UserStopped;
    ResetChangedGroups();
    if (ModData_CopyGroupsFromProject(setup.DataType) == UserStopped)
        return UserStopped;
    return setup.changed ? applyChange(setup, places) : 0;
}

long UpdateCustomerGroups(const Places& places) {
    long result = -1;
    const Hourglass hourglass;
    logAndGoOn([&] { result = update(places); });
    setVisible(places.frame, false);
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
