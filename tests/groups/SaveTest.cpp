#include "groups/ModData_SaveCustomerGroups.h"

#include "groups/DeleteAllGroups.h"
#include "groups/GroupCopies.h"
#include "groups/ModData_CopyGroupsFromProject.h"
#include "tests/groups/StoreInstallation.h"
#include "tests/support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace {

class Save : public testing::Test {
protected:
    /// The master has North of A and B, South of F; opened and saved once.
    void setUpTwoGroups() {
        installation_.addToMaster("A", "North");
        installation_.addToMaster("B", "North");
        installation_.addToMaster("F", "South");
        installation_.setUpAs("2", false);
        FrmMain_TransfergroupstoProject();
        FrmMain_TransferGroupsToMap();
        enterTools();
        AddChangedGroup("North");
        AddChangedGroup("South");
        save();
        ResetChangedGroups();
    }
    void enterTools() {
        dataType_ = 0;
        EXPECT_EQ(ModData_CopyGroupsFromProject(dataType_), 0);
        ResetChangedGroups();
    }
    int save() { return ModData_SaveCustomerGroups(dataType_, record(), record(), &unsaved_); }
    Caption record() {
        return [this](const std::string& text) {
            if (!text.empty())
                captions_.push_back(text);
        };
    }

    StoreInstallation installation_;
    ScriptedPrompts prompts_;
    long dataType_ = 2;
    bool unsaved_ = true;
    Rows captions_;
};

const Rows twoGroups{"North|0|200", "South|500|600"};
const Rows twoGroupsMembers{"A|North", "B|North", "F|South"};

TEST_F(Save, CarriesShapesLabelsAndMembersToEveryCopy) {
    setUpTwoGroups();
    EXPECT_FALSE(unsaved_);
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), twoGroups);
    EXPECT_EQ(StoreInstallation::shapesIn(customerGroupsDatabase()), twoGroups);
    EXPECT_EQ(StoreInstallation::labelsIn(*gdbSystem), (Rows{"North|50|50", "South|550|50"}));
    EXPECT_EQ(StoreInstallation::labelsIn(customerGroupsDatabase()), (Rows{"North|50|50", "South|550|50"}));
    EXPECT_EQ(StoreInstallation::masterMembers(), twoGroupsMembers);
    EXPECT_EQ(StoreInstallation::projectMembers(), twoGroupsMembers);
    EXPECT_EQ(valueOf(customerGroupsDatabase(), "SELECT Count(*) FROM TblGroups"), "6") << "a row for every area";
    EXPECT_EQ(StoreInstallation::setup(), Rows{"2|False"});
    EXPECT_EQ(rowsOf(customerGroupsDatabase(), "SELECT JoinedBy FROM tblFieldIndicator"), Rows{"4"});
    EXPECT_EQ(captions_, (Rows{"Calculating affected groups...", "Retrieving affected groups...",
                               "Processing Group: North", "Step 1 of 2: Final merge", "Processing Group: South",
                               "Transferring new customer group settings to Project...",
                               "Calculating Customer Groups call statistics..."}));
    EXPECT_EQ(installation_.logLines(), Rows{});
    for (const char* link : {"PGN_GROUPS_Link", "PNT_GROUPS_Link", "TblProjectGroup_Link"})
        EXPECT_EQ(gdbSystem->tableDefs().find(link), nullptr) << link;
}

TEST_F(Save, EditsStayInTheirTablesUntilThenAndCancellingTakesThemBack) {
    setUpTwoGroups();
    enterTools();
    installation_.edit("C", "North");
    installation_.edit("F", "");
    EXPECT_EQ(StoreInstallation::masterMembers(), twoGroupsMembers);
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), twoGroups);
    enterTools();
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT GroupName FROM tblTempGroups WHERE Reference = 'F'"), "South");
    installation_.edit("C", "North");
    EXPECT_EQ(save(), 0);
    const Rows grown{"North|0|300", "South|500|600"};
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), grown);
    EXPECT_EQ(StoreInstallation::shapesIn(customerGroupsDatabase()), grown);
    EXPECT_EQ(StoreInstallation::projectMembers(), (Rows{"A|North", "B|North", "C|North", "F|South"}));
}

TEST_F(Save, OpeningAnotherProjectBringsTheAccountsGroups) {
    setUpTwoGroups();
    gdbSystem->execute("INSERT INTO PGN_GROUPS (TALLYACCOUNT, GROUPNAME) VALUES ('OTHER', 'Stranger')");
    gdbProject->execute("DELETE FROM TblGroups");
    gdbProject->execute("INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('OTHER', 'A', 'Stranger')");
    gsAccount.clear();
    FrmMain_TransfergroupstoProject();
    FrmMain_TransferGroupsToMap();
    EXPECT_EQ(gsAccount, "ACC");
    EXPECT_EQ(StoreInstallation::projectMembers(), twoGroupsMembers);
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), twoGroups);
    EXPECT_EQ(valueOf(*gdbProject, "SELECT Count(*) FROM TblGroups WHERE GroupName IS NULL"), "0")
        << "no group is an empty text in a project";
    customerGroupsDatabase().execute("DELETE FROM TblGroups");
    FrmMain_TransfergroupstoProject();
    EXPECT_EQ(StoreInstallation::projectMembers(), twoGroupsMembers) << "a master without groups leaves the project's";
}

TEST_F(Save, AForgottenGroupKeepsItsShapeUntilASaveWithoutChanges) {
    setUpTwoGroups();
    enterTools();
    gdbSystem->execute("DELETE FROM tblTempGroups WHERE GroupName = 'South'");
    installation_.edit("C", "North");
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), (Rows{"North|0|300", "South|500|600"}));
    ResetChangedGroups();
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), Rows{"North|0|300"});
    EXPECT_EQ(StoreInstallation::shapesIn(customerGroupsDatabase()), Rows{"North|0|300"});
}

TEST_F(Save, AChangedGroupWithoutAnyShapeLosesItsOwn) {
    setUpTwoGroups();
    enterTools();
    gdbSystem->execute("UPDATE tblTempGroups SET Reference = 'Nowhere' WHERE GroupName = 'South'");
    AddChangedGroup("South");
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), Rows{"North|0|200"});
    EXPECT_EQ(StoreInstallation::masterMembers(), (Rows{"A|North", "B|North"})) << "an area that is none is dropped";
}

TEST_F(Save, WithoutMembersEverythingOfTheAccountGoesAndItsKindIsAskedFor) {
    setUpTwoGroups();
    enterTools();
    gdbSystem->execute("DELETE FROM tblTempGroups");
    gdbSystem->execute("DELETE FROM TblTempName");
    unsaved_ = true;
    captions_.clear();
    EXPECT_EQ(save(), 0);
    EXPECT_FALSE(unsaved_);
    EXPECT_EQ(captions_[1], "No groups found.  Deleting old groups...");
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), Rows{});
    EXPECT_EQ(StoreInstallation::shapesIn(customerGroupsDatabase()), Rows{});
    EXPECT_EQ(StoreInstallation::labelsIn(customerGroupsDatabase()), Rows{});
    EXPECT_EQ(StoreInstallation::masterMembers(), Rows{});
    EXPECT_EQ(StoreInstallation::projectMembers(), Rows{});
    EXPECT_EQ(StoreInstallation::setup(), Rows{"0|False"});
    long dataType = 0;
    EXPECT_EQ(ModData_CopyGroupsFromProject(dataType), UserStopped) << "asked, and cancelled";
}

TEST_F(Save, DeletingAllGroupsActsAtOnceOnEveryCopyButTheProjects) {
    setUpTwoGroups();
    enterTools();
    EXPECT_EQ(DeleteAllGroups(2), 0);
    for (const char* table : {"tblTempGroups", "TblTempName", "PGN_GROUPS", "PNT_GROUPS", "TblCustomerGroups"})
        EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM " + std::string(table)), "0") << table;
    EXPECT_EQ(StoreInstallation::masterMembers(), Rows{});
    EXPECT_EQ(valueOf(customerGroupsDatabase(), "SELECT Count(*) FROM TblName"), "0");
    EXPECT_EQ(StoreInstallation::shapesIn(customerGroupsDatabase()), Rows{});
    EXPECT_EQ(StoreInstallation::setup(), Rows{"2|False"});
    EXPECT_EQ(StoreInstallation::projectMembers(), twoGroupsMembers);
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(Save, AnApostropheBreaksItsStatementAndEndsTheSave) {
    setUpTwoGroups();
    enterTools();
    gdbSystem->execute("UPDATE tblTempGroups SET GroupName = 'O''Neil' WHERE GroupName = 'South'");
    AddChangedGroup("O'Neil");
    unsaved_ = true;
    EXPECT_EQ(save(), -1);
    EXPECT_TRUE(unsaved_);
    EXPECT_EQ(installation_.logLinesWith("\"ModData_SaveCustomerGroups\""), 1);
    EXPECT_EQ(StoreInstallation::masterMembers(), twoGroupsMembers);
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), twoGroups);
}

TEST_F(Save, AFailureBehindTheDeletionLeavesTheMasterWithoutTheAccountsRows) {
    setUpTwoGroups();
    enterTools();
    gdbSystem->execute("DROP TABLE TblTV");
    EXPECT_EQ(save(), -1);
    EXPECT_EQ(StoreInstallation::masterMembers(), Rows{}) << "the tables are left as far as it came";
    EXPECT_EQ(StoreInstallation::projectMembers(), twoGroupsMembers);
}

TEST_F(Save, TellsCallscopeByWhatTheGroupsAreJoined) {
    const std::pair<long, const char*> cases[] = {{1, "1"}, {2, "4"}, {3, "3"}, {0, "3"}, {7, "3"}};
    for (const auto& [dataType, joinedBy] : cases) {
        EXPECT_EQ(ModData_CopyGroupsToProject(dataType), 0);
        EXPECT_EQ(rowsOf(customerGroupsDatabase(), "SELECT JoinedBy FROM tblFieldIndicator"), Rows{joinedBy})
            << dataType;
    }
}

TEST(ChangedGroupsList, HoldsEachNameOnceAndEndsWithAnEmptyElement) {
    ResetChangedGroups();
    EXPECT_EQ(ChangedGroups, Rows{""});
    AddChangedGroup("North");
    AddChangedGroup("South");
    AddChangedGroup("North");
    AddChangedGroup("");
    EXPECT_EQ(ChangedGroups, (Rows{"North", "South", ""}));
    ResetChangedGroups();
    EXPECT_EQ(ChangedGroups, Rows{""});
}

} // namespace
