#include "groups/editor/GroupEditor.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/ChangedGroups.h"
#include "groups/DeleteAllGroups.h"
#include "groups/EditTables.h"
#include "groups/GroupSetup.h"
#include "groups/ModData_SaveCustomerGroups.h"
#include "groups/editor/GroupColours.h"

namespace {

constexpr long notSet = 0, toBeAsked = 6;

/// Of the account whose groups are saved already; nothing where the user closes the group tools instead.
std::optional<long> askForTypeOrClose() {
    for (;;) {
        if (const auto answer = askForGroupType())
            return answer;
        if (askYesNo("If you cancel at this point, the Group Tools form must be closed.  Do you wish to continue, and "
                     "close the Group Tools form?"))
            return std::nullopt;
    }
}

bool hasNames() {
    long count = 0;
    onSystemDatabase([&] { count = countOf(systemDatabase(), "SELECT Count(*) AS CountOfGroups FROM tblTempName"); });
    return count >= 1;
}

/// Once the edit tables have been made again. False where the group tools are to be closed.
bool decideTypeAgain(long& DataType) {
    const bool open = DataType == notSet || DataType == toBeAsked;
    const auto stored = open ? storedGroupType() : std::nullopt;
    if (!hasNames() || (stored && DataType == toBeAsked)) {
        const auto answer = askForTypeOrClose();
        if (!answer)
            return false;
        DataType = *answer;
    } else if (open) {
        DataType = stored.value_or(3);
    }
    return isGroupType(DataType) ||
           askYesNo("Groups are not currently saved against TV, Postcode Regions or CSGs.  If you continue, previous "
                    "groups must be deleted.  Do you wish to continue?");
}

} // namespace

GroupEditor::GroupEditor(long type) : DataType(type) {
    ResetChangedGroups();
    populate();
}

void GroupEditor::select(int place) {
    selected_ = place >= 0 && static_cast<std::size_t>(place) < groups_.size() ? place : -1;
}

std::string GroupEditor::selectedName() const {
    return selected_ < 0 ? std::string() : groups_[static_cast<std::size_t>(selected_)].name;
}

void GroupEditor::populate() {
    const CurrentProcedure procedure("frmGroups_PopulateGroupList");
    selected_ = -1;
    groups_.clear();
    onSystemDatabase([&] {
        groups_.clear();
        const auto rows = systemDatabase().openRecordset("SELECT DISTINCT TOP " + std::to_string(MaxCustomerGroups) +
                                                         " Name FROM tblTempName WHERE Name <> '' ORDER BY Name");
        for (; !rows->EOF_(); rows->MoveNext())
            groups_.push_back({rows->value(0).asText(), groupColour(groups_.size())});
    });
}

EditorStep GroupEditor::deleteGroup() {
    if (selected_ < 0) {
        showMessage("Please select a Customer Group that you want to delete from the list");
        return EditorStep::Stay;
    }
    if (!askYesNo("This will delete all references to this group.  Do you want to continue?"))
        return EditorStep::Stay;
    const CurrentProcedure procedure("frmGroups_cmdDeleteGroup_Click");
    const std::string name = ::quoted(selectedName()), ofAccount = " TallyAccount = " + ::quoted(gsAccount);
    onSystemDatabase([&] {
        systemDatabase().execute("UPDATE tblTempGroups SET Groupname = '' WHERE GroupName = " + name + " AND" +
                                 ofAccount);
    });
    onSystemDatabase(
        [&] { systemDatabase().execute("DELETE FROM tblTempName WHERE" + ofAccount + " AND Name = " + name); });
    populate();
    Unsaved = changed_ = true;
    return EditorStep::Rebuild;
}

EditorStep GroupEditor::deleteAll() {
    if (!askYesNo("This will permanently delete any groups you have set up.  Do you want to continue?"))
        return EditorStep::Stay;
    const CurrentProcedure procedure("frmGroups_cmdDeleteAll_Click");
    if (DeleteAllGroups(DataType) != 0)
        showMessage("Could not copy settings to Customer Groups database");
    ResetChangedGroups();
    populate();
    Unsaved = changed_ = false;
    const auto type = askForGroupType();
    if (!type)
        return EditorStep::Close;
    DataType = *type;
    return EditorStep::Rebuild;
}

bool GroupEditor::save(const SaveDisplay& display) {
    if (!agreeToSave())
        return false;
    const CurrentProcedure procedure("frmGroups_cmdSave_Click");
    const GroupStatus status{display.frame, display.saveStatus, display.groupStatus};
    status.setVisible(true);
    const bool unsavedBefore = Unsaved;
    bool saved = false;
    {
        const Hourglass hourglass;
        long stored = DataType; // 0 where no group is left; the map still shows the areas of this kind
        saved = ModData_SaveCustomerGroups(stored, display.saveStatus, display.groupStatus, &Unsaved) == 0;
    }
    show(display.saveStatus, "");
    show(display.groupStatus, "");
    showMessage(saved ? "Save completed successfully" : "Errors were encountered during save operation");
    if (saved) {
        ResetChangedGroups();
        changed_ = false;
    } else {
        Unsaved = unsavedBefore;
    }
    status.setVisible(false);
    return saved;
}

EditorStep GroupEditor::cancel() {
    const CurrentProcedure procedure("frmGroups_cmdCancel_Click");
    makeEditTables(Ireland::Kept);
    ResetChangedGroups();
    bool stays = true;
    logAndGoOn([&] { stays = decideTypeAgain(DataType); });
    populate();
    Unsaved = changed_ = false;
    return stays ? EditorStep::Rebuild : EditorStep::Close;
}

bool GroupEditor::mayLeave() const {
    return !Unsaved || askYesNo("You have made unsaved changes to Customer Groups which will be lost if you exit now.  "
                                "Do you want to Quit and lose these changes?");
}

void GroupEditor::decideType() {
    if (DataType != notSet)
        return;
    const CurrentProcedure procedure("frmGroups_CreateMap");
    bool hasMembers = false;
    onSystemDatabase([&] {
        hasMembers =
            firstValue(systemDatabase(),
                       "SELECT DISTINCT GroupName FROM tblTempGroups WHERE GroupName <> '' AND TallyAccount = " +
                           ::quoted(gsAccount))
                .has_value();
    });
    if (hasMembers)
        return;
    const int button = prompts().getOption(OptionsMode::GroupTypeOrCancel);
    DataType = button == 0 ? 3 : button == 1 ? 2 : 1;
}
