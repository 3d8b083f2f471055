#include "groups/editor/OpenGroupTools.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/AccountGroups.h"
#include "groups/ChangedGroups.h"
#include "groups/GroupSetup.h"
#include "groups/ModData_CopyGroupsFromProject.h"
#include "groups/ModUtilities_DetermineProbableGroupDefinition.h"

#include <string>

namespace {

constexpr long tvRegions = 2, postcodeDistricts = 3;

/// The user says what the account's groups are made of, which is kept.
long askForStoredType() {
    const bool districts = prompts().getOption(OptionsMode::GroupType) == 0;
    const std::string type = std::to_string(districts ? postcodeDistricts : tvRegions);
    const std::string account = ::quoted(gsAccount), ofAccount = " WHERE TallyAccount = " + account;
    const long rows =
        countOf(systemDatabase(), "SELECT COUNT(*) AS RowCount FROM tblMappingGroupSetup_Link" + ofAccount);
    if (rows == 0)
        systemDatabase().execute("INSERT INTO tblMappingGroupSetup_Link (TallyAccount, DataType, Status) VALUES (" +
                                 account + ", " + type + ", False)");
    else
        systemDatabase().execute("UPDATE tblMappingGroupSetup_Link SET DataType = " + type + ofAccount);
    return districts ? postcodeDistricts : tvRegions;
}

/// Also where the link to the members has not been made yet.
bool hasGroups() {
    bool some = false;
    ignoreErrors([&] { some = accountHasGroups(); });
    return some;
}

/// Asks about what Callscope has changed, and finds out what groups are made of. False where the user stopped.
bool decide(GroupSetup& setup) {
    if (!setup.changed) {
        if (!setup.stored && hasGroups())
            setup.DataType = askForStoredType();
        return true;
    }
    if (!agreeToChanges())
        return false;
    if (setup.DataType != 0)
        return true;
    if (ModUtilities_DetermineProbableGroupDefinition() == GroupDefinition::Refused)
        return false;
    setup.changed = false;
    return true;
}

long open(const GroupStatus& status, long& DataType) {
    if (!customerGroupsExist() || tooManyGroups())
        return UserStopped;
    GroupSetup setup = readGroupSetup();
    if (!decide(setup))
        return UserStopped;
    ResetChangedGroups();
    if (ModData_CopyGroupsFromProject(setup.DataType) == UserStopped)
        return UserStopped;
    DataType = setup.DataType;
    if (!setup.changed)
        return 0;
    const std::string names = "SELECT DISTINCT TOP " + std::to_string(MaxCustomerGroups) +
                              " Name FROM tblTempName WHERE Name <> '' ORDER BY Name";
    return saveChangedGroups(names, DataType, status);
}

} // namespace

long OpenGroupTools(const FrameVisibility& Frame, const Caption& SaveStatusLabel, const Caption& GroupStatusLabel,
                    long& DataType) {
    const CurrentProcedure procedure("FrmMap_cmdGroup_Click");
    const GroupStatus status{Frame, SaveStatusLabel, GroupStatusLabel};
    const Hourglass hourglass;
    long result = -1;
    logAndGoOn([&] { result = open(status, DataType); });
    status.setVisible(false);
    return result;
}
