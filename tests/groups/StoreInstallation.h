#pragma once

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/schema/Vocabulary.h"
#include "groups/ChangedGroups.h"
#include "groups/FrmMain_TransferGroups.h"
#include "tests/groups/shapes/GroupInstallation.h"

#include <string>

/// An installation whose country is a row of six TV regions, squares of side 100 named A to F, with every table in
/// which groups are kept. No group exists.
class StoreInstallation : public GroupInstallation {
public:
    StoreInstallation() {
        WorkspaceTransaction setUp(*defaultWorkspace());
        createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "TblPostCodeDistrict");
        createVocabularyTable(*gdbProject, DatabaseKind::Project, "TblGroups");
        Database& master = customerGroupsDatabase();
        for (const char* table : {"PGN_GROUPS", "PNT_GROUPS", "tblFieldIndicator"})
            createVocabularyTable(master, DatabaseKind::CustomerGroups, table);
        for (int region = 0; region < regions; ++region) {
            const std::string name(1, static_cast<char>('A' + region));
            addPolygon(*gdbSystem, "PGN_TV", region + 1, name, square(region * 100.0, 0, 100));
            gdbSystem->execute("INSERT INTO TblTV (TVRegion) VALUES ('" + name + "')");
        }
        setUp.commit();
        ResetChangedGroups();
        FrmMain_TransferGroupsToMap(); // for its link
    }

    static constexpr int regions = 6;

    /// Puts a region into a group as Callscope does.
    void addToMaster(const std::string& region, const std::string& group) {
        customerGroupsDatabase().execute("INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '" +
                                         region + "', '" + group + "')");
        if (valueOf(customerGroupsDatabase(), "SELECT Count(*) FROM TblName WHERE Name = '" + group + "'") == "0")
            customerGroupsDatabase().execute("INSERT INTO TblName (TallyAccount, Name) VALUES ('ACC', '" + group +
                                             "')");
    }
    void setUpAs(const std::string& dataType, bool changed) {
        customerGroupsDatabase().execute("INSERT INTO tblMappingGroupSetup (TallyAccount, DataType, Status) VALUES "
                                         "('ACC', " +
                                         dataType + ", " + (changed ? "True" : "False") + ")");
    }

    /// Puts a region into a group, or out of any with an empty name, as the editor does.
    void edit(const std::string& region, const std::string& group) {
        gdbSystem->execute("DELETE FROM tblTempGroups WHERE Reference = '" + region + "'");
        gdbSystem->execute("INSERT INTO tblTempGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '" + region +
                           "', '" + group + "')");
        if (!group.empty())
            AddChangedGroup(group);
    }

    static Rows masterMembers() {
        return rowsOf(customerGroupsDatabase(),
                      "SELECT Reference, GroupName FROM TblGroups WHERE GroupName <> '' ORDER BY Reference");
    }
    static Rows projectMembers() {
        return rowsOf(*gdbProject,
                      "SELECT Reference, GroupName FROM TblGroups WHERE GroupName <> '' ORDER BY Reference");
    }
    /// Group, left and right edge of the shapes in a database.
    static Rows shapesIn(Database& database) {
        return rowsOf(database, "SELECT GROUPNAME, BOUNDLOWX, BOUNDUPPX FROM PGN_GROUPS ORDER BY GROUPNAME");
    }
    static Rows labelsIn(Database& database) {
        return rowsOf(database, "SELECT NAME, XCOORD, YCOORD FROM PNT_GROUPS ORDER BY NAME");
    }
    static Rows setup() {
        return rowsOf(customerGroupsDatabase(), "SELECT DataType, Status FROM tblMappingGroupSetup");
    }
};
