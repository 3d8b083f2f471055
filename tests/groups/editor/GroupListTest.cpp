#include "groups/editor/GroupColours.h"
#include "tests/groups/editor/EditorTest.h"

namespace {

class GroupList : public EditorTest {};

const std::string tooMany =
    "A maximum of 128 groups may be saved.  To add a new group, you must first delete an existing group";
const std::string blank = "The Group name may not be blank.  Click 'OK' to enter a Group Name, or 'Cancel' to go back "
                          "to the Group Screen";
const std::string reserved =
    "The chosen name is a reserved word, used by Callscope Mapping.  Please choose another name.";
const std::string tooLong = "The chosen group name is too long.  Please limit the name to 30 characters";
const std::string taken = "The chosen group name already exists.  Please choose another";

TEST_F(GroupList, ShowsTheAccountsNamesInOrderWithNothingToSave) {
    setUpTwoGroups();
    AddChangedGroup("LEFT OVER");
    enter();
    EXPECT_EQ(names(), (Rows{"NORTH", "SOUTH"}));
    EXPECT_EQ(editor_->groups()[1].colour, 0xFFFF00U);
    EXPECT_EQ(editor_->selectedName(), "");
    EXPECT_FALSE(editor_->canSave());
    EXPECT_TRUE(editor_->canDelete());
    EXPECT_FALSE(editor_->Unsaved);
    EXPECT_EQ(changed(), Rows{});
}

TEST_F(GroupList, ANewGroupIsStoredInCapitalsSelectedAndLast) {
    setUpTwoGroups();
    enter();
    prompts_.entries = {" Midlands "};
    EXPECT_TRUE(editor_->addGroup());
    ASSERT_EQ(prompts_.questions.size(), 1U);
    EXPECT_EQ(prompts_.questions[0].caption, "Add New Group");
    EXPECT_EQ(prompts_.questions[0].instructions, "Please enter name for the new Customer Group (max 30 characters)");
    EXPECT_EQ(prompts_.questions[0].limit, 30);
    EXPECT_EQ(names(), (Rows{"NORTH", "SOUTH", "MIDLANDS"}));
    EXPECT_EQ(editor_->selectedName(), "MIDLANDS");
    EXPECT_EQ(editor_->groups()[2].colour, 0x00FF00U);
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TallyAccount, Name FROM TblTempName ORDER BY Name"),
              (Rows{"ACC|MIDLANDS", "ACC|NORTH", "ACC|SOUTH"}));
    EXPECT_EQ(changed(), Rows{"MIDLANDS"});
    EXPECT_TRUE(editor_->canSave());
    EXPECT_TRUE(editor_->Unsaved);
}

TEST_F(GroupList, AsksAgainUntilANameCanBeTaken) {
    setUpTwoGroups();
    enter();
    prompts_.answers = {PromptAnswer::Ok};
    prompts_.entries = {"   ", std::string(31, 'x'), "International", "oTHER", "north", "Mobile"};
    EXPECT_TRUE(editor_->addGroup());
    EXPECT_EQ(prompts_.texts, (Rows{blank, tooLong, reserved, reserved, taken}));
    EXPECT_EQ(editor_->selectedName(), "MOBILE") << "not reserved, as VOIP is not";
    add({"VOIP", std::string(30, 'x')});
    std::string accented;
    for (int letter = 0; letter < 30; ++letter)
        accented += "é";
    add({accented});
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(GroupList, EitherCancelLeavesNothingBehind) {
    setUpTwoGroups();
    enter();
    prompts_.entries = {std::nullopt};
    EXPECT_FALSE(editor_->addGroup());
    prompts_.entries = {"", "UNREAD"};
    prompts_.answers = {PromptAnswer::Cancel};
    EXPECT_FALSE(editor_->addGroup());
    EXPECT_EQ(prompts_.texts, Rows{blank});
    EXPECT_EQ(names(), (Rows{"NORTH", "SOUTH"}));
    EXPECT_FALSE(editor_->Unsaved);
    EXPECT_FALSE(editor_->canSave());
}

TEST_F(GroupList, A129thGroupIsRefusedByTheList) {
    enter(2);
    WorkspaceTransaction adding(*defaultWorkspace());
    for (int group = 0; group < 128; ++group)
        add({"G" + std::to_string(group)});
    adding.commit();
    EXPECT_EQ(editor_->groups()[32].colour, editor_->groups()[0].colour);
    prompts_.questions.clear();
    EXPECT_FALSE(editor_->addGroup());
    EXPECT_EQ(prompts_.texts.back(), tooMany);
    EXPECT_TRUE(prompts_.questions.empty());
    gdbSystem->execute("INSERT INTO TblTempName (TallyAccount, Name) VALUES ('ACC', 'HIDDEN')");
    editor_->populate();
    EXPECT_EQ(editor_->groups().size(), 128U);
    select("G5");
    prompts_.answers = {PromptAnswer::Yes};
    EXPECT_EQ(editor_->deleteGroup(), EditorStep::Rebuild);
    EXPECT_EQ(editor_->groups().size(), 128U) << "129 names were stored";
}

TEST_F(GroupList, ADeletedGroupLosesNameAndMembersAndLaterColoursMove) {
    setUpTwoGroups();
    enter();
    EXPECT_EQ(editor_->deleteGroup(), EditorStep::Stay);
    EXPECT_EQ(prompts_.texts, Rows{"Please select a Customer Group that you want to delete from the list"});
    select("NORTH");
    EXPECT_EQ(editor_->deleteGroup(), EditorStep::Stay) << "the careful answer";
    EXPECT_FALSE(editor_->Unsaved);
    prompts_.answers = {PromptAnswer::Yes};
    EXPECT_EQ(editor_->deleteGroup(), EditorStep::Rebuild);
    EXPECT_EQ(prompts_.texts.back(), "This will delete all references to this group.  Do you want to continue?");
    EXPECT_EQ(names(), Rows{"SOUTH"});
    EXPECT_EQ(editor_->groups()[0].colour, groupColour(0));
    EXPECT_EQ(members(), Rows{"F|SOUTH"});
    EXPECT_EQ(changed(), Rows{});
    EXPECT_EQ(editor_->selected(), -1);
    EXPECT_TRUE(editor_->canSave());
    EXPECT_TRUE(editor_->Unsaved);
    select("SOUTH");
    prompts_.answers = {PromptAnswer::Yes};
    editor_->deleteGroup();
    EXPECT_FALSE(editor_->canDelete());
}

TEST_F(GroupList, ANameWithAnApostropheIsLoggedAndLosesNothing) {
    setUpTwoGroups();
    installation_.addToMaster("C", "LEEDS");
    customerGroupsDatabase().execute("UPDATE TblName SET Name = \"KING'S\" WHERE Name = 'LEEDS'");
    enter();
    prompts_.entries = {"Queen's"};
    EXPECT_FALSE(editor_->addGroup());
    EXPECT_EQ(prompts_.texts, Rows{"Could not update new group name"});
    EXPECT_EQ(installation_.logLinesWith("frmGroups_cmdAddGroup_Click\",3075"), 1);
    EXPECT_EQ(names(), (Rows{"KING'S", "NORTH", "SOUTH"}));
    EXPECT_FALSE(editor_->Unsaved);

    select("KING'S");
    editor_->changeArea(GroupAction::Add, "D", {});
    editor_->changeAreas(GroupAction::Add, {"D", "E"}, {});
    EXPECT_FALSE(editor_->Unsaved);
    EXPECT_EQ(changed(), Rows{}) << "a later save must not stumble over the name";
    editor_->callAreas();
    prompts_.answers = {PromptAnswer::Yes};
    editor_->deleteGroup();
    EXPECT_EQ(names(), (Rows{"KING'S", "NORTH", "SOUTH"})) << "could not be deleted";

    add({"SAVED"});
    editor_->changeArea(GroupAction::Add, "E", {});
    prompts_.answers = {PromptAnswer::Yes};
    EXPECT_TRUE(editor_->save({}));
    EXPECT_EQ(StoreInstallation::masterMembers(), (Rows{"A|NORTH", "B|NORTH", "C|LEEDS", "E|SAVED", "F|SOUTH"}));
}

} // namespace
