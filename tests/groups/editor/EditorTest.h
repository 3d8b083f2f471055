#pragma once

#include "groups/ModData_CopyGroupsFromProject.h"
#include "groups/editor/GroupEditor.h"
#include "tests/groups/StoreInstallation.h"
#include "tests/support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <deque>
#include <optional>

/// The group tools on six TV regions, A to F, identifiers 1 to 6. Beside them lie Ireland (7) and the shape that stands
/// for mobile calls (8).
class EditorTest : public testing::Test {
protected:
    EditorTest() {
        addPolygon(*gdbSystem, "PGN_TV", ireland, "Republic Of Ireland", square(600, 0, 100));
        addPolygon(*gdbSystem, "PGN_TV", mobile, "Mobile", square(700, 0, 10));
        for (const char* callArea : {"Mobile", "International", "VOIP", "Other"})
            gdbSystem->execute("INSERT INTO TblTV (TVRegion) VALUES ('" + std::string(callArea) + "')");
    }

    static constexpr long ireland = 7, mobile = 8;

    /// North of A and B, South of F in the master, as they were saved last.
    void setUpTwoGroups() {
        installation_.addToMaster("A", "NORTH");
        installation_.addToMaster("B", "NORTH");
        installation_.addToMaster("F", "SOUTH");
        installation_.setUpAs("2", false);
    }
    /// An account without any rows is said to group regions.
    GroupEditor& enter(long type = 0) {
        prompts_.options = {1};
        EXPECT_EQ(ModData_CopyGroupsFromProject(type), 0);
        prompts_.options.clear();
        prompts_.modes.clear();
        return editor_.emplace(type);
    }

    /// Adds groups by their names; the last one is selected.
    void add(const Rows& names) {
        for (const std::string& name : names) {
            prompts_.entries = {name};
            EXPECT_TRUE(editor_->addGroup()) << name;
        }
    }
    void select(const std::string& name) {
        editor_->select(-1);
        for (int place = 0; place < static_cast<int>(editor_->groups().size()); ++place) {
            if (editor_->groups()[static_cast<std::size_t>(place)].name == name)
                editor_->select(place);
        }
        EXPECT_EQ(editor_->selectedName(), name);
    }

    /// Answers of frmGroupSaveQuery in their order, No behind them, and what it was asked.
    MembershipQuery answering(std::deque<MembershipAnswer> answers) {
        memberAnswers_ = std::move(answers);
        questions_.clear();
        return [this](const std::string& area, const std::string& group, bool adding) {
            questions_.push_back(membershipQuestion(area, group, adding));
            if (memberAnswers_.empty())
                return MembershipAnswer::No;
            const auto answer = memberAnswers_.front();
            memberAnswers_.pop_front();
            return answer;
        };
    }

    Rows names() const {
        Rows names;
        for (const EditedGroup& group : editor_->groups())
            names.push_back(group.name);
        return names;
    }
    /// As they are being edited, members alone.
    static Rows members() {
        return rowsOf(*gdbSystem,
                      "SELECT Reference, GroupName FROM tblTempGroups WHERE GroupName <> '' ORDER BY Reference");
    }
    /// Without the empty name behind them.
    static Rows changed() { return {ChangedGroups.begin(), ChangedGroups.end() - 1}; }
    static Rows masterNames() {
        return rowsOf(customerGroupsDatabase(), "SELECT Name FROM TblName WHERE TallyAccount = 'ACC' ORDER BY Name");
    }

    StoreInstallation installation_;
    ScriptedPrompts prompts_;
    std::optional<GroupEditor> editor_;
    Rows questions_;

private:
    std::deque<MembershipAnswer> memberAnswers_;
};
