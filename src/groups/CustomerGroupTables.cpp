#include "groups/CustomerGroupTables.h"

#include "core/CurrentProcedure.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/schema/Vocabulary.h"

void FrmMain_CreateCustomerGroupDBPolygonTables() {
    const CurrentProcedure procedure("FrmMain_CreateCustomerGroupDBPolygonTables");
    Database& groups = customerGroupsDatabase();
    for (const char* table : {"PGN_GROUPS", "PNT_GROUPS"}) {
        if (!groups.tableDefs().find(table))
            createVocabularyTable(groups, DatabaseKind::CustomerGroups, table);
    }
}

void FrmMain_CreateMappingGroupSetupTable() {
    const CurrentProcedure procedure("FrmMain_CreateMappingGroupSetupTable");
    Database& groups = customerGroupsDatabase();
    createVocabularyTable(groups, DatabaseKind::CustomerGroups, "tblMappingGroupSetup");
    if (countOf(groups, "SELECT COUNT(*) AS RecordCount FROM tblGroups") != 0)
        groups.execute("INSERT INTO tblMappingGroupSetup (TallyAccount, Status) VALUES (" + quoted(gsAccount) +
                       ", True)");
}
