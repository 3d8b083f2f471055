// A new group, and the question for its name.
#include "core/CurrentProcedure.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/ChangedGroups.h"
#include "groups/editor/GroupColours.h"
#include "groups/editor/GroupEditor.h"

#include <algorithm>

namespace {

constexpr int longestName = 30; ///< characters

/// One entry of the user.
std::optional<std::string> askForText() {
    TextQuestion question;
    question.caption = "Add New Group";
    question.instructions = "Please enter name for the new Customer Group (max 30 characters)";
    question.limit = longestName;
    return prompts().getText(question);
}

/// Why a name, in capitals, cannot be taken; empty: it can.
std::string objectionTo(const std::string& name, const std::vector<EditedGroup>& groups) {
    if (firstCharacters(name, longestName) != name)
        return "The chosen group name is too long.  Please limit the name to 30 characters";
    if (name == "INTERNATIONAL" || name == "OTHER")
        return "The chosen name is a reserved word, used by Callscope Mapping.  Please choose another name.";
    if (std::ranges::any_of(groups, [&](const EditedGroup& group) { return equalText(group.name, name); }))
        return "The chosen group name already exists.  Please choose another";
    return {};
}

/// A name that can be taken, in capitals, without blanks at its ends; nothing where the user cancels.
std::optional<std::string> askForName(const std::vector<EditedGroup>& groups) {
    while (const auto entered = askForText()) {
        const std::string name = upperText(trimmedText(*entered));
        if (name.empty()) {
            if (prompts().messageBox("The Group name may not be blank.  Click 'OK' to enter a Group Name, or 'Cancel' "
                                     "to go back to the Group Screen",
                                     PromptStyle::Plain, PromptButtons::OkCancel) == PromptAnswer::Cancel)
                return std::nullopt;
            continue;
        }
        const std::string objection = objectionTo(name, groups);
        if (objection.empty())
            return name;
        showMessage(objection);
    }
    return std::nullopt;
}

} // namespace

bool GroupEditor::addGroup() {
    if (groups_.size() >= static_cast<std::size_t>(MaxCustomerGroups)) {
        showMessage("A maximum of " + std::to_string(MaxCustomerGroups) +
                    " groups may be saved.  To add a new group, you must first delete an existing group");
        return false;
    }
    const auto name = askForName(groups_);
    if (!name)
        return false;
    const CurrentProcedure procedure("frmGroups_cmdAddGroup_Click");
    const bool stored = onSystemDatabase([&] {
        systemDatabase().execute("INSERT INTO tblTempName (TallyAccount, Name) VALUES (" + ::quoted(gsAccount) + "," +
                                 ::quoted(*name) + ")");
    });
    if (!stored) { // a name that no statement can carry would break every later one
        showMessage("Could not update new group name");
        return false;
    }
    groups_.push_back({*name, groupColour(groups_.size())});
    selected_ = static_cast<int>(groups_.size()) - 1;
    AddChangedGroup(*name);
    Unsaved = changed_ = true;
    return true;
}
