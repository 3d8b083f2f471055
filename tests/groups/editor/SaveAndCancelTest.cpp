#include "tests/groups/editor/EditorTest.h"

namespace {

using enum GroupAction;
constexpr auto Yes = PromptAnswer::Yes;
constexpr auto No = PromptAnswer::No;
constexpr int districtsButton = 0, regionsButton = 1, csgsButton = 2, cancelButton = 3;

const std::string saveQuestion = "Saving group changes can take a considerable amount of time, depending on the "
                                 "number, size and complexity of groups.  Do you wish to continue?";
const std::string closeQuestion = "If you cancel at this point, the Group Tools form must be closed.  Do you wish to "
                                  "continue, and close the Group Tools form?";
const std::string unusableQuestion =
    "Groups are not currently saved against TV, Postcode Regions or CSGs.  If you continue, previous groups must be "
    "deleted.  Do you wish to continue?";

class SaveAndCancel : public EditorTest {
protected:
    SaveAndCancel() {
        setUpTwoGroups();
        enter();
    }
    /// What the frame and the captions have shown.
    SaveDisplay display() {
        const auto caption = [this](const std::string& text) { shown_.push_back(text); };
        return {[this](bool visible) { shown_.push_back(visible ? "frame" : "no frame"); }, caption, caption};
    }

    Rows shown_;
};

TEST_F(SaveAndCancel, ASaveReachesTheMasterAndTheNextOneBeginsAnew) {
    select("SOUTH");
    editor_->changeArea(Add, "E", {});
    editor_->changeArea(Add, "VOIP", {});
    EXPECT_FALSE(editor_->save(display())) << "the careful answer";
    EXPECT_EQ(shown_, Rows{});
    EXPECT_TRUE(editor_->canSave());
    prompts_.answers = {Yes};
    EXPECT_TRUE(editor_->save(display()));
    EXPECT_EQ(prompts_.texts, (Rows{saveQuestion, saveQuestion, "Save completed successfully"}));
    ASSERT_GT(shown_.size(), 4U);
    EXPECT_EQ(shown_.front(), "frame");
    EXPECT_EQ(Rows(shown_.end() - 3, shown_.end()), (Rows{"", "", "no frame"}));
    EXPECT_EQ(StoreInstallation::masterMembers(), (Rows{"A|NORTH", "B|NORTH", "E|SOUTH", "F|SOUTH", "VOIP|SOUTH"}));
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), Rows{"SOUTH|400|600"});
    EXPECT_FALSE(editor_->Unsaved);
    EXPECT_FALSE(editor_->canSave());
    EXPECT_EQ(changed(), Rows{});
    EXPECT_EQ(members().size(), 5U) << "stay where they are edited";
}

TEST_F(SaveAndCancel, AFailedSaveCanBeTriedAgain) {
    select("SOUTH");
    editor_->changeArea(Add, "E", {});
    gdbSystem->execute("DROP TABLE PGN_TEMP");
    prompts_.answers = {Yes, PromptAnswer::Ok, Yes};
    EXPECT_FALSE(editor_->save(display()));
    EXPECT_EQ(prompts_.texts.back(), "Errors were encountered during save operation");
    EXPECT_EQ(shown_.back(), "no frame");
    EXPECT_TRUE(editor_->Unsaved);
    EXPECT_TRUE(editor_->canSave());
    EXPECT_EQ(changed(), Rows{"SOUTH"});
    createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "PGN_TEMP");
    EXPECT_TRUE(editor_->save(display()));
    EXPECT_EQ(StoreInstallation::shapesIn(*gdbSystem), Rows{"SOUTH|400|600"});
}

TEST_F(SaveAndCancel, WithoutGroupsTheKindIsForgottenButNotInThisWindow) {
    for (const char* name : {"NORTH", "SOUTH"}) {
        select(name);
        prompts_.answers = {Yes};
        editor_->deleteGroup();
    }
    gdbSystem->execute("DELETE FROM tblTempGroups");
    prompts_.answers = {Yes};
    EXPECT_TRUE(editor_->save({}));
    EXPECT_EQ(StoreInstallation::setup(), Rows{"0|False"});
    EXPECT_EQ(masterNames(), Rows{});
    EXPECT_EQ(editor_->DataType, 2) << "the map still shows regions";
    EXPECT_EQ(prompts_.modes.size(), 0U);
    add({"AGAIN"});
    editor_->changeArea(Add, "C", {});
    prompts_.answers = {Yes};
    EXPECT_TRUE(editor_->save({}));
    EXPECT_EQ(StoreInstallation::setup(), Rows{"2|False"});
    EXPECT_EQ(StoreInstallation::masterMembers(), Rows{"C|AGAIN"});
}

TEST_F(SaveAndCancel, CancelPutsBackWhatWasSavedLast) {
    installation_.addToMaster("Republic Of Ireland", "NORTH");
    add({"EAST"});
    editor_->changeArea(Add, "C", {});
    select("NORTH");
    prompts_.answers = {Yes};
    editor_->deleteGroup();
    prompts_.texts.clear();
    EXPECT_EQ(editor_->cancel(), EditorStep::Rebuild);
    EXPECT_EQ(prompts_.texts, Rows{});
    EXPECT_EQ(names(), (Rows{"NORTH", "SOUTH"}));
    EXPECT_EQ(members(), (Rows{"A|NORTH", "B|NORTH", "F|SOUTH", "Republic Of Ireland|NORTH"})) << "Ireland, too";
    EXPECT_FALSE(editor_->Unsaved);
    EXPECT_FALSE(editor_->canSave());
    EXPECT_EQ(changed(), Rows{});
}

TEST_F(SaveAndCancel, CancelWithoutNamesAsksForTheKindUntilItIsToldOrTheToolsClose) {
    customerGroupsDatabase().execute("DELETE FROM TblName");
    prompts_.options = {cancelButton, csgsButton};
    prompts_.answers = {No};
    EXPECT_EQ(editor_->cancel(), EditorStep::Rebuild);
    EXPECT_EQ(prompts_.texts, Rows{closeQuestion});
    EXPECT_EQ(editor_->DataType, 1);
    add({"LOST"});
    prompts_.options = {cancelButton};
    prompts_.answers = {Yes};
    EXPECT_EQ(editor_->cancel(), EditorStep::Close);
    EXPECT_TRUE(editor_->mayLeave()) << "nothing is left to lose";
    EXPECT_EQ(prompts_.texts, (Rows{closeQuestion, closeQuestion}));
}

TEST_F(SaveAndCancel, CancelFindsOutTheKindOrAsks) {
    struct Case {
        const char* stored;
        long before;
        std::deque<int> buttons;
        std::deque<PromptAnswer> answers;
        long after;
        EditorStep step;
    };
    using enum EditorStep;
    for (const Case& item :
         {Case{"1", 0, {}, {}, 1, Rebuild}, Case{"Null", 0, {}, {}, 3, Rebuild}, Case{"Null", 6, {}, {}, 3, Rebuild},
          Case{"1", 6, {regionsButton}, {}, 2, Rebuild}, Case{"1", 2, {}, {}, 2, Rebuild},
          Case{"9", 0, {}, {Yes}, 9, Rebuild}, Case{"9", 0, {}, {No}, 9, Close}}) {
        customerGroupsDatabase().execute("DELETE FROM tblMappingGroupSetup");
        installation_.setUpAs(item.stored, false);
        editor_->DataType = item.before;
        prompts_.options = item.buttons;
        prompts_.answers = item.answers;
        prompts_.texts.clear();
        prompts_.modes.clear();
        EXPECT_EQ(editor_->cancel(), item.step) << item.stored;
        EXPECT_EQ(editor_->DataType, item.after) << item.stored;
        EXPECT_EQ(prompts_.modes.size(), item.buttons.size());
        EXPECT_EQ(prompts_.texts, item.answers.empty() ? Rows{} : Rows{unusableQuestion});
    }
}

TEST_F(SaveAndCancel, DeleteAllActsAtOnceAndAsksForAnotherKind) {
    EXPECT_EQ(editor_->deleteAll(), EditorStep::Stay);
    EXPECT_EQ(StoreInstallation::masterMembers().size(), 3U);
    add({"EAST"});
    prompts_.answers = {Yes};
    prompts_.options = {districtsButton};
    prompts_.texts.clear();
    EXPECT_EQ(editor_->deleteAll(), EditorStep::Rebuild);
    EXPECT_EQ(prompts_.texts,
              Rows{"This will permanently delete any groups you have set up.  Do you want to continue?"});
    EXPECT_EQ(prompts_.modes, std::vector{OptionsMode::GroupTypeOrCancel});
    EXPECT_EQ(editor_->DataType, 3);
    EXPECT_EQ(names(), Rows{});
    EXPECT_EQ(StoreInstallation::masterMembers(), Rows{});
    EXPECT_EQ(masterNames(), Rows{});
    EXPECT_EQ(StoreInstallation::setup(), Rows{"2|False"}) << "the new kind is stored by a save";
    EXPECT_FALSE(editor_->Unsaved);
    EXPECT_FALSE(editor_->canSave());
    EXPECT_FALSE(editor_->canDelete());
    EXPECT_EQ(changed(), Rows{});
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(SaveAndCancel, DeleteAllWithoutAnotherKindClosesTheTools) {
    add({"EAST"});
    prompts_.answers = {Yes};
    prompts_.options = {cancelButton};
    EXPECT_EQ(editor_->deleteAll(), EditorStep::Close);
    EXPECT_TRUE(editor_->mayLeave());
    EXPECT_EQ(prompts_.texts.size(), 1U);
}

TEST_F(SaveAndCancel, LeavingAsksWhereSomethingWouldBeLost) {
    EXPECT_TRUE(editor_->mayLeave());
    select("SOUTH");
    editor_->changeArea(Add, "F", {});
    EXPECT_TRUE(editor_->mayLeave()) << "F was a member before";
    EXPECT_EQ(prompts_.texts, Rows{});
    editor_->changeArea(Add, "E", {});
    EXPECT_FALSE(editor_->mayLeave());
    prompts_.answers = {Yes};
    EXPECT_TRUE(editor_->mayLeave());
    EXPECT_EQ(prompts_.texts.back(), "You have made unsaved changes to Customer Groups which will be lost if you exit "
                                     "now.  Do you want to Quit and lose these changes?");
}

TEST_F(SaveAndCancel, TheMapAsksForAnUnknownKindWhereNoGroupHasMembers) {
    editor_->DataType = 0;
    editor_->decideType();
    EXPECT_EQ(editor_->DataType, 0) << "there are members";
    gdbSystem->execute("UPDATE tblTempGroups SET GroupName = ''");
    for (const auto& [button, type] : {std::pair{districtsButton, 3L}, {regionsButton, 2L}, {cancelButton, 1L}}) {
        editor_->DataType = 0;
        prompts_.options = {button};
        editor_->decideType();
        EXPECT_EQ(editor_->DataType, type);
    }
    editor_->decideType();
    EXPECT_EQ(prompts_.modes.size(), 3U) << "not once it is known";
}

} // namespace
