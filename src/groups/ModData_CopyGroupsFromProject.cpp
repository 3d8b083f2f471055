#include "groups/ModData_CopyGroupsFromProject.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "data/types/DatabaseError.h"
#include "groups/ChangedGroups.h"
#include "groups/GroupLinks.h"

namespace {

constexpr long tableExists = 3010;
constexpr long notSet = 0, toBeAsked = 6;

/// Makes a table by a statement; one of that name that is in the way goes first.
void makeTable(const std::string& table, const std::string& statement) {
    onSystemDatabase([&] {
        try {
            systemDatabase().execute(statement);
        } catch (const DatabaseError& error) {
            if (error.number() != tableExists)
                throw;
            systemDatabase().execute("DROP TABLE " + table);
            systemDatabase().execute(statement);
        }
    });
}

void makeTables() {
    for (const char* table : {"TblGroup_Link", "tblTempGroups", "TblName_Link", "TblTempName"})
        ignoreErrors([&] { systemDatabase().execute("DROP TABLE " + std::string(table)); });
    onSystemDatabase([] { linkGroupTable("TblGroup_Link", "TblGroups"); });
    onSystemDatabase([] { linkGroupTable("TblName_Link", "TblName"); });
    makeTable("tblTempGroups",
              "SELECT TblGroup_Link.TallyAccount, TblGroup_Link.Reference, TblGroup_Link.GroupName INTO "
              "tblTempGroups FROM TblGroup_Link WHERE TblGroup_Link.TallyAccount = " +
                  quoted(gsAccount) + " AND TblGroup_Link.Reference <> 'Republic Of Ireland'");
    makeTable("TblTempName",
              "SELECT TblName_Link.* INTO TblTempName FROM TblName_Link WHERE TblName_Link.TallyAccount = " +
                  quoted(gsAccount));
}

/// False where the user cancelled.
bool askForType(long& DataType) {
    constexpr long byButton[] = {3, 2, 1};
    const int button = prompts().getOption(OptionsMode::GroupTypeOrCancel);
    if (button < 0 || button > 2)
        return false;
    DataType = byButton[button];
    return true;
}

bool hasMembers() {
    long count = 0;
    onSystemDatabase([&] { count = countOf(systemDatabase(), "SELECT Count(*) AS CountOfGroups FROM tblTempGroups"); });
    return count >= 1;
}

/// The kind that is stored; 3 where there are groups but no kind.
std::optional<long> storedType() {
    std::optional<Value> stored;
    onSystemDatabase([&] {
        stored = firstValue(systemDatabase(),
                            "SELECT DataType FROM tblMappingGroupSetup_Link WHERE TallyAccount = " + quoted(gsAccount));
    });
    if (!stored || stored->isNull())
        return std::nullopt;
    return static_cast<long>(stored->asInteger());
}

/// False where the user cancelled.
bool decideType(long& DataType) {
    if (!hasMembers())
        return askForType(DataType);
    if (DataType != notSet && DataType != toBeAsked)
        return true;
    const auto stored = storedType();
    if (stored && DataType == toBeAsked)
        return askForType(DataType);
    DataType = stored.value_or(3);
    return true;
}

} // namespace

long ModData_CopyGroupsFromProject(long& DataType) {
    const CurrentProcedure procedure("ModData_CopyGroupsFromProject");
    makeTables();
    bool decided = false;
    const bool sound = logAndGoOn([&] { decided = decideType(DataType); });
    if (sound && !decided)
        return UserStopped;
    if (DataType < 1 || DataType > 3)
        showMessage("Groups are not currently saved against TV, Postcode Regions or CSGs.  If you continue, previous "
                    "groups must be deleted.  Do you wish to continue?",
                    PromptStyle::Question);
    return 0;
}
