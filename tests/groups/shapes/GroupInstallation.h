#pragma once

#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "data/schema/Vocabulary.h"
#include "tests/groups/shapes/Unions.h"
#include "tests/support/SmallInstallation.h"

#include <string>
#include <vector>

using Rows = std::vector<std::string>;

/// An installation whose system map database has the tables of customer groups, empty, and the link to their members.
class GroupInstallation : public SmallInstallation {
public:
    GroupInstallation() {
        WorkspaceTransaction setUp(*defaultWorkspace());
        for (const char* table : {"PGN_CSG", "PGN_POSTCODEDISTRICT", "PGN_TEMP", "PNT_GROUPS"})
            createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, table);
        TableDef link = gdbSystem->createTableDef("TblGroup_Link");
        link.connect = "MS Access;DATABASE=" + file("CustomerGroups.mdb");
        link.sourceTableName = "TblGroups";
        gdbSystem->tableDefs().append(link);
        setUp.commit();
    }

    /// A member of a group of the account.
    void addMember(const std::string& reference, const std::string& group, const std::string& account = "ACC") {
        gdbSystem->execute("INSERT INTO TblGroup_Link (TallyAccount, Reference, GroupName) VALUES ('" + account +
                           "', '" + reference + "', " + group + ")");
    }
};

/// The only shape of a table's rows that meet a condition.
inline Shape storedShape(const std::string& table, const std::string& condition) {
    const auto row =
        gdbSystem->openRecordset("SELECT NUMVERT, VERTICES, NUMPARTS, PARTS FROM " + table + " WHERE " + condition);
    if (row->RecordCount() != 1)
        return {};
    return std::get<Shape>(
        decodeShape(row->value(0).asLong(), row->value(1).asBytes(), row->value(2).asLong(), row->value(3).asBytes()));
}
