#include "groups/UpdateCustomerGroups.h"

#include "groups/ModData_CopyGroupsFromProject.h"
#include "groups/ModUtilities_DetermineProbableGroupDefinition.h"
#include "tests/groups/StoreInstallation.h"
#include "tests/support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

class UpdateGroups : public testing::Test {
protected:
    long update() {
        return ModData_UpdateCustomerGroups([this](bool visible) { frame_ = visible; }, {}, {});
    }
    /// Names of the account, without members.
    static void addNames(int count) {
        WorkspaceTransaction names(*defaultWorkspace());
        for (int name = 0; name < count; ++name)
            customerGroupsDatabase().execute("INSERT INTO TblName (TallyAccount, Name) VALUES ('ACC', 'G" +
                                             std::to_string(name) + "')");
        names.commit();
    }

    StoreInstallation installation_;
    ScriptedPrompts prompts_;
    bool frame_ = false;
};

constexpr auto Yes = PromptAnswer::Yes;
constexpr auto No = PromptAnswer::No;

TEST_F(UpdateGroups, WhatCallscopeChangedIsAppliedAfterTwoQuestions) {
    installation_.addToMaster("A", "North");
    installation_.addToMaster("B", "North");
    installation_.setUpAs("2", true);
    prompts_.answers = {Yes, Yes};
    EXPECT_EQ(update(), 0);
    ASSERT_EQ(prompts_.texts.size(), 2U);
    EXPECT_EQ(prompts_.texts[0], "Changes have been made to Customer Groups in Callscope.  These changes must be "
                                 "applied to Callscope Mapping before you proceed.  Do you wish to continue?");
    EXPECT_EQ(prompts_.texts[1],
              "Saving group changes can take a considerable amount of time, depending on the number, "
              "size and complexity of groups.  Do you wish to continue?");
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), Rows{"North|0|200"});
    EXPECT_EQ(StoreInstallation::setup(), Rows{"2|False"});
    EXPECT_FALSE(frame_);
    EXPECT_EQ(update(), 0) << "nothing to ask any more";
    EXPECT_EQ(prompts_.texts.size(), 2U);
}

TEST_F(UpdateGroups, EitherNoStopsAndChangesNothing) {
    installation_.addToMaster("A", "North");
    installation_.setUpAs("2", true);
    for (const auto& answers : {std::deque{No}, std::deque{Yes, No}}) {
        prompts_.answers = answers;
        EXPECT_EQ(update(), UserStopped);
        EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), Rows{});
        EXPECT_EQ(StoreInstallation::setup(), Rows{"2|True"});
        EXPECT_FALSE(frame_);
    }
}

TEST_F(UpdateGroups, A128thGroupPassesAndA129thIsTooMany) {
    installation_.setUpAs("2", true);
    addNames(128);
    prompts_.answers = {Yes, Yes};
    EXPECT_EQ(update(), UserStopped) << "no members: asked for their kind, and cancelled";
    EXPECT_EQ(prompts_.texts.size(), 1U);
    customerGroupsDatabase().execute("INSERT INTO TblName (TallyAccount, Name) VALUES ('ACC', 'one more')");
    customerGroupsDatabase().execute("INSERT INTO TblName (TallyAccount, Name) VALUES ('OTHER', 'of another account')");
    EXPECT_EQ(update(), UserStopped);
    EXPECT_EQ(
        prompts_.texts.back(),
        "Callscope Mapping can display a maximum of 128 Customer Groups.  Currently, more than 128 groups exist for "
        "this project.  If the Customer Groups for this project are to be viewed or amended in Callscope Mapping, "
        "please use the 'Manage Customer Groups' facility in Callscope to reduce the number of groups to 128 or "
        "fewer.\r\n\r\nNo changes have been made to the Customer Groups for this project.");
}

TEST_F(UpdateGroups, TablesThatAnOlderCallscopeLacksAreMade) {
    Database& master = customerGroupsDatabase();
    installation_.addToMaster("A", "North");
    for (const char* table : {"PGN_GROUPS", "PNT_GROUPS", "tblMappingGroupSetup"})
        master.execute("DROP TABLE " + std::string(table));
    FrmMain_TransferGroupsToMap();
    EXPECT_EQ(StoreInstallation::shapesIn(master), Rows{});
    EXPECT_EQ(StoreInstallation::setup(), Rows{"null|True"}) << "older groups are changes to apply";
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Status FROM tblMappingGroupSetup_Link"), Rows{"True"});
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(UpdateGroups, WithoutTheMasterFileThereIsNothingToUpdate) {
    gdbCustomerGroups->close();
    gdbCustomerGroups.reset();
    std::filesystem::remove(installation_.file("CustomerGroups.mdb"));
    EXPECT_EQ(update(), UserStopped);
    EXPECT_EQ(prompts_.texts,
              Rows{"No Customer Groups have been set up.  Please do this in Callscope before attempting "
                   "to update Groups with Callscope Mapping"});
}

TEST_F(UpdateGroups, TheEditTablesAreMadeOfTheAccountAndKnowTheirKind) {
    installation_.addToMaster("A", "North");
    installation_.addToMaster("Republic Of Ireland", "North");
    struct Case {
        const char* stored;
        long given, taken;
    };
    for (const Case& item : {Case{"2", 0, 2}, Case{"Null", 0, 3}, Case{"1", 3, 3}, Case{"Null", 6, 3}}) {
        customerGroupsDatabase().execute("DELETE FROM tblMappingGroupSetup");
        installation_.setUpAs(item.stored, false);
        long dataType = item.given;
        EXPECT_EQ(ModData_CopyGroupsFromProject(dataType), 0);
        EXPECT_EQ(dataType, item.taken) << item.stored;
    }
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Reference, GroupName FROM tblTempGroups"), Rows{"A|North"});
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Name FROM TblTempName"), Rows{"North"});
    EXPECT_TRUE(prompts_.texts.empty());
    long unusable = 7;
    EXPECT_EQ(ModData_CopyGroupsFromProject(unusable), 0);
    EXPECT_EQ(prompts_.texts.size(), 1U);
}

TEST_F(UpdateGroups, GroupsOfAnUnknownKindAreDeletedAfterAQuestionWhereTheMapCannotShowThem) {
    installation_.addPlaces({{"X1", "Granada", "WIGAN"}, {"X2", "Granada", "BURY"}});
    const auto groupBy = [&](const std::string& reference) {
        gdbProject->execute("DELETE FROM TblGroups");
        gdbProject->execute("INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '" + reference +
                            "', 'North')");
        prompts_.texts.clear();
    };
    groupBy("WIGAN");
    prompts_.answers = {No};
    EXPECT_EQ(ModUtilities_DetermineProbableGroupDefinition(), GroupDefinition::Refused);
    EXPECT_EQ(StoreInstallation::projectMembers(), Rows{"WIGAN|North"});
    ASSERT_EQ(prompts_.texts.size(), 1U);
    EXPECT_NE(prompts_.texts[0].find("set up for Exchanges. Groups within"), std::string::npos);
    prompts_.answers = {Yes};
    EXPECT_EQ(ModUtilities_DetermineProbableGroupDefinition(), GroupDefinition::NothingLeft);
    EXPECT_EQ(StoreInstallation::projectMembers(), Rows{});
    groupBy("Nowhere");
    prompts_.answers = {No};
    EXPECT_EQ(ModUtilities_DetermineProbableGroupDefinition(), GroupDefinition::Refused) << "taken for exchanges";
    groupBy("Granada");
    EXPECT_EQ(ModUtilities_DetermineProbableGroupDefinition(), GroupDefinition::NothingLeft);
    EXPECT_TRUE(prompts_.texts.empty()) << "regions are deleted without a question";
    EXPECT_EQ(StoreInstallation::projectMembers(), Rows{});
}

} // namespace
