#include "groups/ModData_CopyGroupsFromProject.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/ChangedGroups.h"
#include "groups/EditTables.h"

namespace {

constexpr long notSet = 0, toBeAsked = 6;

bool hasMembers() {
    long count = 0;
    onSystemDatabase([&] { count = countOf(systemDatabase(), "SELECT Count(*) AS CountOfGroups FROM tblTempGroups"); });
    return count >= 1;
}

/// False where the user cancelled.
bool askForType(long& DataType) {
    const auto answer = askForGroupType();
    DataType = answer.value_or(DataType);
    return answer.has_value();
}

/// False where the user cancelled.
bool decideType(long& DataType) {
    if (!hasMembers())
        return askForType(DataType);
    if (DataType != notSet && DataType != toBeAsked)
        return true;
    const auto stored = storedGroupType();
    if (stored && DataType == toBeAsked)
        return askForType(DataType);
    DataType = stored.value_or(3);
    return true;
}

} // namespace

long ModData_CopyGroupsFromProject(long& DataType) {
    const CurrentProcedure procedure("ModData_CopyGroupsFromProject");
    makeEditTables(Ireland::LeftOut);
    bool decided = false;
    const bool sound = logAndGoOn([&] { decided = decideType(DataType); });
    if (sound && !decided)
        return UserStopped;
    if (!isGroupType(DataType))
        showMessage("Groups are not currently saved against TV, Postcode Regions or CSGs.  If you continue, previous "
                    "groups must be deleted.  Do you wish to continue?",
                    PromptStyle::Question);
    return 0;
}
