#include "groups/EditTables.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "data/types/DatabaseError.h"
#include "groups/GroupLinks.h"

#include <string>

namespace {

constexpr long tableExists = 3010;

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

} // namespace

void makeEditTables(Ireland ireland) {
    for (const char* table : {"TblGroup_Link", "tblTempGroups", "TblName_Link", "TblTempName"})
        ignoreErrors([&] { systemDatabase().execute("DROP TABLE " + std::string(table)); });
    onSystemDatabase([] { linkGroupTable("TblGroup_Link", "TblGroups"); });
    onSystemDatabase([] { linkGroupTable("TblName_Link", "TblName"); });
    makeTable("tblTempGroups",
              "SELECT TblGroup_Link.TallyAccount, TblGroup_Link.Reference, TblGroup_Link.GroupName INTO "
              "tblTempGroups FROM TblGroup_Link WHERE TblGroup_Link.TallyAccount = " +
                  quoted(gsAccount) +
                  (ireland == Ireland::LeftOut ? " AND TblGroup_Link.Reference <> 'Republic Of Ireland'" : ""));
    makeTable("TblTempName",
              "SELECT TblName_Link.* INTO TblTempName FROM TblName_Link WHERE TblName_Link.TallyAccount = " +
                  quoted(gsAccount));
}

bool isGroupType(long DataType) {
    return DataType >= 1 && DataType <= 3;
}

std::optional<long> askForGroupType() {
    constexpr long byButton[] = {3, 2, 1};
    const int button = prompts().getOption(OptionsMode::GroupTypeOrCancel);
    if (button < 0 || button > 2)
        return std::nullopt;
    return byButton[button];
}

std::optional<long> storedGroupType() {
    std::optional<Value> stored;
    onSystemDatabase([&] {
        stored = firstValue(systemDatabase(),
                            "SELECT DataType FROM tblMappingGroupSetup_Link WHERE TallyAccount = " + quoted(gsAccount));
    });
    if (!stored || stored->isNull())
        return std::nullopt;
    return static_cast<long>(stored->asInteger());
}
