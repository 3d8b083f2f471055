#include "groups/editor/OpenGroupTools.h"

#include "groups/ModData_SaveCustomerGroups.h"
#include "tests/groups/editor/EditorTest.h"

#include <filesystem>

namespace {

constexpr auto Yes = PromptAnswer::Yes;
constexpr auto No = PromptAnswer::No;

class OpenTools : public EditorTest {
protected:
    long open() {
        dataType_ = -1;
        prompts_.texts.clear();
        prompts_.modes.clear();
        frames_.clear();
        return OpenGroupTools([this](bool visible) { frames_.push_back(visible ? "frame" : "no frame"); }, {}, {},
                              dataType_);
    }
    /// The project's groups, which tell that there is something to apply where nothing is known.
    static void addToProject(const std::string& reference) {
        gdbProject->execute("INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '" + reference +
                            "', 'NORTH')");
    }
    static bool asksAboutChanges(const std::string& text) {
        return text.starts_with("Changes have been made to Customer Groups in Callscope.");
    }
    static bool asksForSave(const std::string& text) { return text.starts_with("Saving group changes can take"); }

    long dataType_ = -1;
    Rows frames_;
};

TEST_F(OpenTools, WithoutChangesNothingIsAsked) {
    setUpTwoGroups();
    AddChangedGroup("LEFT OVER");
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(dataType_, 2);
    EXPECT_EQ(prompts_.texts, Rows{});
    EXPECT_EQ(frames_, Rows{"no frame"});
    EXPECT_EQ(members(), (Rows{"A|NORTH", "B|NORTH", "F|SOUTH"}));
    EXPECT_EQ(changed(), Rows{});
}

TEST_F(OpenTools, WithoutTheMasterFileTheyStayClosed) {
    gdbCustomerGroups->close();
    gdbCustomerGroups.reset();
    std::filesystem::remove(installation_.file("CustomerGroups.mdb"));
    EXPECT_EQ(open(), UserStopped);
    EXPECT_EQ(prompts_.texts, Rows{"No Customer Groups have been set up.  Please do this in Callscope before "
                                   "attempting to update Groups with Callscope Mapping"});
}

TEST_F(OpenTools, TooManyGroupsKeepThemClosedChangedOrNot) {
    setUpTwoGroups();
    WorkspaceTransaction names(*defaultWorkspace());
    for (int name = 0; name < 127; ++name)
        customerGroupsDatabase().execute("INSERT INTO TblName (TallyAccount, Name) VALUES ('ACC', 'G" +
                                         std::to_string(name) + "')");
    names.commit();
    EXPECT_EQ(open(), UserStopped);
    ASSERT_EQ(prompts_.texts.size(), 1U);
    EXPECT_TRUE(prompts_.texts[0].starts_with("Callscope Mapping can display a maximum of 128 Customer Groups."));
    customerGroupsDatabase().execute("DELETE FROM TblName WHERE Name = 'G0'");
    EXPECT_EQ(open(), 0) << "128 are as many as there may be";
}

TEST_F(OpenTools, WhatCallscopeChangedIsAppliedFirst) {
    setUpTwoGroups();
    customerGroupsDatabase().execute("UPDATE tblMappingGroupSetup SET Status = True");
    prompts_.answers = {No};
    EXPECT_EQ(open(), UserStopped);
    EXPECT_EQ(prompts_.texts.size(), 1U);
    prompts_.answers = {Yes, No};
    EXPECT_EQ(open(), UserStopped);
    EXPECT_EQ(frames_, Rows{"no frame"});
    EXPECT_EQ(StoreInstallation::setup(), Rows{"2|True"});
    prompts_.answers = {Yes, Yes};
    EXPECT_EQ(open(), 0);
    ASSERT_EQ(prompts_.texts.size(), 2U);
    EXPECT_TRUE(asksAboutChanges(prompts_.texts[0]));
    EXPECT_TRUE(asksForSave(prompts_.texts[1]));
    EXPECT_EQ(frames_, (Rows{"frame", "no frame"}));
    EXPECT_EQ(dataType_, 2);
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), (Rows{"NORTH|0|200", "SOUTH|500|600"}));
    EXPECT_EQ(StoreInstallation::setup(), Rows{"2|False"});
}

TEST_F(OpenTools, AFailedSaveIsTold) {
    setUpTwoGroups();
    customerGroupsDatabase().execute("UPDATE tblMappingGroupSetup SET Status = True");
    gdbSystem->execute("DROP TABLE PGN_TEMP");
    prompts_.answers = {Yes, Yes};
    EXPECT_EQ(open(), -1);
    EXPECT_EQ(frames_.back(), "no frame");
}

TEST_F(OpenTools, AnAccountWithoutGroupsIsAskedOnceAndMayCancel) {
    EXPECT_EQ(open(), UserStopped) << "Cancel";
    for (const auto& [button, type] : {std::pair{0, 3L}, {1, 2L}, {2, 1L}}) {
        prompts_.options = {button};
        EXPECT_EQ(open(), 0);
        EXPECT_EQ(dataType_, type);
        EXPECT_EQ(prompts_.modes, std::vector{OptionsMode::GroupTypeOrCancel});
        EXPECT_EQ(prompts_.texts, Rows{});
    }
}

TEST_F(OpenTools, GroupsOfAKindThatNobodyHasStoredAreAskedAbout) {
    installation_.addToMaster("A", "NORTH");
    prompts_.options = {0};
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(prompts_.modes, std::vector{OptionsMode::GroupType});
    EXPECT_EQ(dataType_, 3);
    EXPECT_EQ(StoreInstallation::setup(), Rows{"3|False"});
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(dataType_, 3);
    EXPECT_TRUE(prompts_.modes.empty());
}

TEST_F(OpenTools, ChangedGroupsOfAnUnknownKindGoAndTheKindIsAsked) {
    installation_.addPlaces({{"X1", "A", "WIGAN"}, {"X2", "B", "BURY"}});
    for (const char* stored : {"", "0", "Null"}) {
        SCOPED_TRACE(stored);
        customerGroupsDatabase().execute("DELETE FROM tblMappingGroupSetup");
        if (*stored)
            installation_.setUpAs(stored, true);
        addToProject("WIGAN");
        installation_.addToMaster("WIGAN", "NORTH");
        prompts_.answers = {Yes, No};
        EXPECT_EQ(open(), UserStopped) << "the groups are to stay";
        ASSERT_EQ(prompts_.texts.size(), 2U);
        EXPECT_TRUE(asksAboutChanges(prompts_.texts[0]));
        EXPECT_NE(prompts_.texts[1].find("set up for Exchanges. Groups within"), std::string::npos);
        EXPECT_EQ(StoreInstallation::masterMembers(), Rows{"WIGAN|NORTH"});
        prompts_.answers = {Yes, Yes};
        prompts_.options = {1};
        EXPECT_EQ(open(), 0);
        EXPECT_EQ(prompts_.texts.size(), 2U) << "nothing is saved";
        EXPECT_EQ(dataType_, 2);
        EXPECT_EQ(StoreInstallation::masterMembers(), Rows{});
        EXPECT_EQ(StoreInstallation::projectMembers(), Rows{});
    }
}

TEST_F(OpenTools, ErrorsAreLoggedUnderTheEntrysName) {
    setUpTwoGroups();
    gdbSystem->execute("DROP TABLE tblMappingGroupSetup_Link");
    EXPECT_EQ(open(), -1);
    EXPECT_EQ(installation_.logLinesWith("\"FrmMap_cmdGroup_Click\""), 1);
}

} // namespace
