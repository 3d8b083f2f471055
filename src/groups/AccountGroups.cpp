#include "groups/AccountGroups.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"

bool accountHasGroups() {
    return countOf(systemDatabase(),
                   "SELECT COUNT(*) AS RowCount FROM TblGroup_Link WHERE TallyAccount = " + ::quoted(gsAccount) +
                       " AND ((GroupName IS NOT NULL) AND (GroupName <> ''))") > 0;
}
