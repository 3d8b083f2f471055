#include "groups/ModData_SaveCustomerGroups.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/ChangedGroups.h"
#include "groups/FrmMain_TransferGroups.h"
#include "groups/GroupCopies.h"
#include "groups/GroupLinks.h"
#include "groups/GroupType.h"
#include "groups/shapes/ModData_Merge.h"
#include "groups/shapes/ModData_UpdateGroupLabels.h"
#include "stats/ModData_SelectedCustomerGroups.h"

#include <optional>
#include <vector>

namespace {

/// A statement failed; the error is in the log.
struct Stopped {};

void must(const std::function<void()>& step) {
    if (!onSystemDatabase(step))
        throw Stopped{};
}

void run(const std::string& statement) {
    must([&] { systemDatabase().execute(statement); });
}

long count(const std::string& statement) {
    long result = 0;
    must([&] { result = countOf(systemDatabase(), statement); });
    return result;
}

std::string account() {
    return quoted(gsAccount);
}

/// The changed names, each in quotes, joined by commas.
std::string changedList() {
    std::string list;
    for (std::size_t at = 0; at + 1 < ChangedGroups.size(); ++at) {
        if (!ChangedGroups[at].empty())
            list += (list.empty() ? "" : ", ") + quoted(ChangedGroups[at]);
    }
    return list;
}

/// One above the passes that the merge makes: the last of the steps it speaks of is never reached.
std::int16_t stepsFor(long polygons) {
    std::int16_t steps = 1;
    for (; polygons > 1; polygons /= 2)
        ++steps;
    return steps;
}

std::vector<std::string> groupsWithMembers(const std::string& list) {
    std::vector<std::string> names;
    must([&] {
        names.clear();
        const auto rows = systemDatabase().openRecordset(
            "SELECT DISTINCT GroupName FROM TblTempGroups WHERE GroupName in (" + list + ") ORDER BY GroupName");
        for (; !rows->EOF_(); rows->MoveNext())
            names.push_back(rows->value(0).asText());
    });
    return names;
}

void fillMergeTable(const std::string& name, std::string_view shapeTable) {
    const std::string shapes(shapeTable);
    run("DELETE FROM PGN_TEMP");
    run("INSERT INTO PGN_TEMP ( POLYGONID, NUMVERT, BOUNDLOWX, BOUNDLOWY, BOUNDUPPX, BOUNDUPPY, CENTERX, CENTERY, "
        "VERTICES, NUMPARTS, PARTS ) SELECT POLYGONID, NUMVERT, BOUNDLOWX, BOUNDLOWY, BOUNDUPPX, BOUNDUPPY, CENTERX, "
        "CENTERY, VERTICES, NUMPARTS, PARTS FROM TblTempGroups INNER JOIN " +
        shapes + " ON TblTempGroups.Reference = " + shapes + ".Name WHERE (((TblTempGroups.GroupName)=" + quoted(name) +
        ")) ORDER BY TblTempGroups.GroupName, " + shapes + ".Name");
}

void mergeGroup(const std::string& name, const Caption& SaveStatusLabel) {
    const long polygons = count("SELECT COUNT(*) AS RowCount FROM PGN_TEMP");
    if (polygons == 0) {
        run("DELETE FROM PGN_GROUPS WHERE GroupName = " + quoted(name));
        run("DELETE FROM PNT_GROUPS WHERE Name = " + quoted(name));
        return;
    }
    must([] {
        const auto first = firstValue(systemDatabase(), "SELECT TOP 1 POLYGONID FROM PGN_TEMP");
        MergePolygonID = static_cast<std::int16_t>(first.value().asInteger());
    });
    MergeGroupName = name;
    MergeStepTotal = stepsFor(count("SELECT COUNT(*) AS CountOfPolygons FROM PGN_TEMP"));
    MergeStep = 0;
    progress().yield();
    ModData_Merge(SaveStatusLabel);
    progress().yield();
}

void mergeChangedGroups(const std::string& list, std::string_view shapeTable, const Caption& SaveStatusLabel,
                        const Caption& GroupStatusLabel) {
    show(SaveStatusLabel, "");
    show(GroupStatusLabel, "Retrieving affected groups...");
    for (const std::string& name : groupsWithMembers(list)) {
        progress().yield();
        show(GroupStatusLabel, "Processing Group: " + name);
        fillMergeTable(name, shapeTable);
        mergeGroup(name, SaveStatusLabel);
    }
}

void deleteAllGroups(const Caption& SaveStatusLabel, const Caption& GroupStatusLabel) {
    const std::string left = " NOT IN (SELECT GROUPNAME FROM tblTempGroups WHERE TallyAccount = " + account() + ")";
    show(SaveStatusLabel, "");
    show(GroupStatusLabel, "No groups found.  Deleting old groups...");
    progress().yield();
    run("DELETE FROM PGN_TEMP");
    run("DELETE FROM PNT_GROUPS WHERE TallyAccount = " + account() + " AND Name" + left);
    run("DELETE FROM PGN_GROUPS WHERE TallyAccount = " + account() + " AND GroupName" + left);
    run("DELETE FROM tblGroup_link WHERE TallyAccount = " + account());
}

/// Shapes of groups that have no member left.
void deleteForgottenShapes() {
    const std::string ofAccount = " WHERE TallyAccount = " + account();
    const std::string noMember = ofAccount + " AND NOT EXISTS (SELECT GROUPNAME FROM tblTempGroups" + ofAccount;
    run("DELETE FROM PNT_GROUPS" + noMember + " AND PNT_Groups.Name = GROUPNAME ) ");
    run("DELETE FROM PGN_GROUPS" + noMember + " AND PGN_Groups.GroupName = GROUPNAME ) ");
}

/// A row for every area, members and others alike; the others have no group.
void rewriteMembers(const GroupType& type) {
    const std::string table(type.referenceTable), column = table + "." + std::string(type.referenceColumn);
    run("INSERT INTO TblGroup_Link ( TallyAccount, Reference, GroupName, Found, Checked, Flag ) SELECT " + account() +
        ", " + column + ", tblTempGroups.GroupName, 'USER', 0, 0 FROM " + table + " LEFT JOIN tblTempGroups ON " +
        column + " = tblTempGroups.Reference");
}

void rewriteSetup(long DataType) {
    run("DELETE FROM tblMappingGroupSetup_Link WHERE TallyAccount = " + account());
    run("INSERT INTO tblMappingGroupSetup_Link (TallyAccount, DataType, Status) VALUES (" + account() + ", " +
        std::to_string(DataType) + ", False)");
}

void rewriteNames() {
    run("DELETE FROM tblName_Link WHERE TallyAccount = " + account());
    run("INSERT INTO TblName_Link ( TallyAccount, Name ) SELECT TblTempName.TallyAccount, TblTempName.Name From "
        "TblTempName");
}

/// The shapes in ukmap.mdb. An account without any member has no kind of groups from then on.
void saveShapes(long& DataType, const Caption& SaveStatusLabel, const Caption& GroupStatusLabel) {
    show(GroupStatusLabel, "Calculating affected groups...");
    if (const std::string list = changedList(); !list.empty()) {
        mergeChangedGroups(list, groupTypeOf(DataType).shapeTable, SaveStatusLabel, GroupStatusLabel);
    } else if (count("SELECT COUNT(*) AS RowCount FROM tblTempGroups WHERE TallyAccount = " + account()) == 0) {
        deleteAllGroups(SaveStatusLabel, GroupStatusLabel);
        DataType = 0;
    } else {
        deleteForgottenShapes();
    }
}

/// Members, names, labels and setup, and all of them to their copies.
void saveCopies(long DataType, const Caption& SaveStatusLabel, const Caption& GroupStatusLabel) {
    run("DELETE FROM tblGroup_link WHERE TallyAccount = " + account());
    if (DataType != 0)
        rewriteMembers(groupTypeOf(DataType));
    rewriteNames();
    ModData_UpdateGroupLabels(DataType);
    ModData_TransferGroupsToCustomerDB();
    show(SaveStatusLabel, "Transferring new customer group settings to Project...");
    show(GroupStatusLabel, "");
    FrmMain_TransfergroupstoProject();
    if (ModData_CopyGroupsToProject(DataType) != 0)
        showMessage("Could not save groups to project");
    rewriteSetup(DataType);
}

} // namespace

int ModData_SaveCustomerGroups(long& DataType, const Caption& SaveStatusLabel, const Caption& GroupStatusLabel,
                               bool* UnsavedFlag) {
    const CurrentProcedure procedure("ModData_SaveCustomerGroups");
    logAndGoOn([] { customerGroupsDatabase(); }); // opened before the transaction: no file can come in during one
    std::optional<WorkspaceTransaction> transaction;
    logAndGoOn([&] { transaction.emplace(*defaultWorkspace()); });
    bool saved = true;
    try {
        saveShapes(DataType, SaveStatusLabel, GroupStatusLabel);
        saveCopies(DataType, SaveStatusLabel, GroupStatusLabel);
        if (UnsavedFlag)
            *UnsavedFlag = false;
    } catch (const Stopped&) {
        saved = false;
    }
    if (transaction && !logAndGoOn([&] { transaction->commit(); }))
        saved = false;
    transaction.reset();
    if (!saved)
        return -1;
    show(SaveStatusLabel, "Calculating Customer Groups call statistics...");
    ModData_SelectedCustomerGroups("TblCustomerGroups", 1);
    return 0;
}
