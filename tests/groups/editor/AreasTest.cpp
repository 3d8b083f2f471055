#include "tests/groups/editor/EditorTest.h"

namespace {

using enum GroupAction;
using enum MembershipAnswer;

/// One click on an area with a group selected.
class Areas : public EditorTest {
protected:
    Areas() {
        setUpTwoGroups();
        enter();
    }
    static std::string groupOf(const std::string& area) {
        const auto row = rowsOf(*gdbSystem, "SELECT GroupName FROM tblTempGroups WHERE Reference = '" + area + "'");
        return row.size() == 1 ? row[0] : std::to_string(row.size()) + " rows";
    }
};

TEST_F(Areas, ChangeAsTheirPresentGroupAllows) {
    struct Case {
        const char* name;
        GroupAction action;
        const char* area;
        const char* before; ///< SQL; null: no row
        MembershipAnswer answer;
        const char* after;
        bool unsaved;
        Rows changed;
    };
    const Case cases[] = {
        {"a free area comes in", Add, "D", nullptr, None, "SOUTH", true, {"SOUTH"}},
        {"one with an empty group comes in", Add, "D", "''", None, "SOUTH", true, {"SOUTH"}},
        {"one with a null group comes in", Add, "D", "Null", None, "SOUTH", true, {"SOUTH"}},
        {"a member stays", Add, "D", "'SOUTH'", None, "SOUTH", false, {"SOUTH"}},
        {"a member in other letters stays", Add, "D", "'south'", None, "south", false, {"SOUTH"}},
        {"another group gives it up", Add, "D", "'NORTH'", Yes, "SOUTH", true, {"SOUTH", "NORTH"}},
        {"or to all", Add, "D", "'NORTH'", YesToAll, "SOUTH", true, {"SOUTH", "NORTH"}},
        {"another group keeps it", Add, "D", "'NORTH'", No, "NORTH", false, {"SOUTH"}},
        {"or all of them", Add, "D", "'NORTH'", NoToAll, "NORTH", false, {"SOUTH"}},
        {"a free area gets a row without group", Remove, "D", nullptr, None, "", true, {"SOUTH"}},
        {"one with an empty group stays", Remove, "D", "''", None, "", false, {"SOUTH"}},
        {"one with a null group stays", Remove, "D", "Null", None, "null", false, {"SOUTH"}},
        {"a member goes", Remove, "D", "'SOUTH'", None, "", true, {"SOUTH"}},
        {"a member of another group goes", Remove, "D", "'NORTH'", Yes, "", true, {"SOUTH", "NORTH"}},
        {"or stays", Remove, "D", "'NORTH'", No, "NORTH", false, {"SOUTH"}},
        {"a call area is an area", Add, "Mobile", nullptr, None, "SOUTH", true, {"SOUTH"}},
    };
    for (const Case& item : cases) {
        SCOPED_TRACE(item.name);
        gdbSystem->execute("DELETE FROM tblTempGroups WHERE Reference IN ('D', 'Mobile')");
        if (item.before)
            gdbSystem->execute("INSERT INTO tblTempGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'D', " +
                               std::string(item.before) + ")");
        editor_.emplace(2);
        select("SOUTH");
        editor_->changeArea(item.action, item.area, answering({item.answer}));
        EXPECT_EQ(groupOf(item.area), item.after);
        EXPECT_EQ(editor_->Unsaved, item.unsaved);
        EXPECT_EQ(changed(), item.changed);
        EXPECT_EQ(questions_.size(), item.answer == None ? 0U : 1U);
        EXPECT_TRUE(editor_->canSave()) << "after any choice of the menu";
    }
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(Areas, EachClickAsksAnew) {
    add({"EAST"});
    editor_->changeArea(Add, "A", answering({YesToAll, YesToAll}));
    EXPECT_EQ(questions_, Rows{"Reference A is already a member of Group NORTH.  Do you want to override this group "
                               "setting?"});
    editor_->changeArea(Remove, "B", answering({NoToAll}));
    EXPECT_EQ(questions_, Rows{"Reference B is a member of Group NORTH.  This is NOT the group you have selected from "
                               "the Groups list.  Do you want to remove the area from this group?"});
    EXPECT_EQ(members(), (Rows{"A|EAST", "B|NORTH", "F|SOUTH"}));
}

TEST_F(Areas, AClickNeedsAnAreaAndAGroup) {
    EXPECT_EQ(editor_->areaClicked(-1), std::nullopt);
    EXPECT_EQ(prompts_.texts, Rows{});
    EXPECT_EQ(editor_->areaClicked(2), std::nullopt);
    EXPECT_FALSE(editor_->requireSelection());
    editor_->changeArea(Add, "D", {});
    const std::string selectFirst = "Please select a group from, or add a new group to, the Group box before selecting "
                                    "an area to add or remove.";
    EXPECT_EQ(prompts_.texts, (Rows{selectFirst, selectFirst, selectFirst}));
    EXPECT_FALSE(editor_->canSave());
    select("SOUTH");
    EXPECT_EQ(editor_->areaClicked(2), "B");
    EXPECT_EQ(editor_->areaClicked(ireland), std::nullopt);
    EXPECT_EQ(prompts_.texts.back(), "This area cannot be included in a Customer Group");
    EXPECT_EQ(editor_->areaClicked(99), std::nullopt);
    EXPECT_EQ(installation_.logLinesWith("frmGroups_MapSurface1_MapEntityInfo"), 1);
    addPolygon(*gdbSystem, "PGN_TV", 98, " ", square(0, 0, 10));
    EXPECT_EQ(editor_->areaClicked(98), std::nullopt) << "without a name";
    addPolygon(*gdbSystem, "PGN_CSG", 2, "0113", square(0, 0, 10));
    addPolygon(*gdbSystem, "PGN_POSTCODEDISTRICT", 2, "LS1", square(0, 0, 10));
    editor_->DataType = 1;
    EXPECT_EQ(editor_->areaClicked(2), "0113");
    editor_->DataType = 3;
    EXPECT_EQ(editor_->areaClicked(2), "LS1");
}

TEST_F(Areas, CallAreasTakeTheColourOfTheirGroup) {
    const auto white = editor_->callAreas();
    for (const CallArea& area : white)
        EXPECT_EQ(area.colour, 0xFFFFFFU) << area.name;
    select("SOUTH");
    editor_->changeArea(Add, "VOIP", {});
    gdbSystem->execute("INSERT INTO tblTempGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'mobile', "
                       "'NORTH')");
    gdbSystem->execute("INSERT INTO tblTempGroups (TallyAccount, Reference, GroupName) VALUES ('OTHER', 'Other', "
                       "'NORTH')");
    Rows shown;
    for (const CallArea& area : editor_->callAreas())
        shown.push_back(area.name + "|" + area.group + "|" + std::to_string(area.colour));
    EXPECT_EQ(shown, (Rows{"Mobile|NORTH|" + std::to_string(0xFF0000), "International||" + std::to_string(0xFFFFFF),
                           "VOIP|SOUTH|" + std::to_string(0xFFFF00), "Other||" + std::to_string(0xFFFFFF)}));
}

class Drawing : public Areas {};

TEST_F(Drawing, GivesTheNamesThatCanBeGrouped) {
    EXPECT_EQ(editor_->areasDrawn(Add, {2, 4, 99}), (Rows{"B", "D"}));
    EXPECT_EQ(prompts_.texts, Rows{});
    const std::string notIreland = "Republic Of Ireland is not valid for use in Customer Groups";
    EXPECT_EQ(editor_->areasDrawn(Add, {1, ireland, mobile}), Rows{"A"});
    EXPECT_EQ(prompts_.texts, Rows{notIreland});
    EXPECT_EQ(editor_->areasDrawn(Remove, {mobile, ireland}), Rows{});
    EXPECT_EQ(editor_->areasDrawn(Add, {}), Rows{});
    EXPECT_EQ(prompts_.texts, (Rows{notIreland, notIreland, "No areas have been selected to remove from the group",
                                    "No areas have been selected to add to the group"}));
    std::vector<long> many(20000);
    for (std::size_t at = 0; at < many.size(); ++at)
        many[at] = static_cast<long>(at);
    EXPECT_EQ(editor_->areasDrawn(Add, many).size(), 6U);
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(Drawing, AnAnswerToAllHoldsForTheRest) {
    struct Case {
        GroupAction action;
        std::deque<MembershipAnswer> answers;
        Rows after, asked, changed;
    };
    const Case cases[] = {
        {Add, {Yes, No}, {"A|EAST", "B|NORTH", "C|EAST", "F|SOUTH"}, {"A", "B", "F"}, {"NORTH", "EAST"}},
        {Add, {No, YesToAll}, {"A|NORTH", "B|EAST", "C|EAST", "F|EAST"}, {"A", "B"}, {"NORTH", "SOUTH", "EAST"}},
        {Add, {Yes, NoToAll}, {"A|EAST", "B|NORTH", "C|EAST", "F|SOUTH"}, {"A", "B"}, {"NORTH", "EAST"}},
        {Add, {NoToAll}, {"A|NORTH", "B|NORTH", "C|EAST", "F|SOUTH"}, {"A"}, {"EAST"}},
        {Remove, {YesToAll}, {}, {"A"}, {"NORTH", "SOUTH", "EAST"}},
        {Remove, {No, Yes, No}, {"A|NORTH", "F|SOUTH"}, {"A", "B", "F"}, {"NORTH", "EAST"}},
    };
    for (const Case& item : cases) {
        enter();
        add({"EAST"});
        ResetChangedGroups();
        gdbSystem->execute("INSERT INTO tblTempGroups (TallyAccount, Reference) VALUES ('ACC', 'C')");
        prompts_.texts.clear();
        editor_->changeAreas(item.action, {"A", "B", "C", "F"}, answering(item.answers));
        EXPECT_EQ(members(), item.after);
        Rows asked;
        for (const std::string& question : questions_)
            asked.push_back(question.substr(std::string("Reference ").size(), 1));
        EXPECT_EQ(asked, item.asked);
        EXPECT_EQ(changed(), item.changed);
        EXPECT_EQ(prompts_.texts, Rows{"Group boundary calculation completed"});
        EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Reference FROM tblTempGroups").size(), 4U) << "one row for each area";
    }
    EXPECT_EQ(installation_.logLines(), Rows{});
}

TEST_F(Drawing, WhatIsWrittenBeforeAQuestionIsKept) {
    select("SOUTH");
    editor_->changeAreas(Add, {"C", "A"}, [](const std::string&, const std::string&, bool) {
        EXPECT_EQ(members(), (Rows{"A|NORTH", "B|NORTH", "C|SOUTH", "F|SOUTH"}));
        WorkspaceTransaction ofAnother(*defaultWorkspace()); // nothing is held while the user thinks
        return Yes;
    });
    EXPECT_EQ(members(), (Rows{"A|SOUTH", "B|NORTH", "C|SOUTH", "F|SOUTH"}));
}

TEST_F(Drawing, TheTextOfTheSelectionNamesTheAction) {
    EXPECT_EQ(groupSelectionText(Add),
              "You have highlighted the areas listed below.  Please use the checkboxes displayed to select which of "
              "these areas will be added to your chosen Customer Group");
    EXPECT_TRUE(groupSelectionText(Remove).ends_with("will be removed from your chosen Customer Group"));
}

} // namespace
