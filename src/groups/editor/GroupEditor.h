#pragma once

#include "core/Caption.h"
#include "groups/UpdateCustomerGroups.h"
#include "groups/editor/MembershipQuery.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// A group of the list (a node of tvGroups).
struct EditedGroup {
    std::string name;
    std::uint32_t colour = 0xFFFFFF; ///< 0xRRGGBB
};

/// One of the four areas without a place on the map, which have a bar beside it.
struct CallArea {
    std::string name;                ///< "Mobile", "International", "VOIP", "Other", in this order
    std::string group;               ///< empty: in none
    std::uint32_t colour = 0xFFFFFF; ///< of its group; white where it is in none. 0xRRGGBB
};

/// What an operation asks of the window.
enum class EditorStep {
    Stay,    ///< nothing has changed
    Rebuild, ///< show the list anew and call GroupMap::CreateMap
    Close    ///< close without a further question
};

/// Where a save shows itself. The frame is made visible when the user has agreed, and invisible when the save is over
/// and the user has read its result; in between the window keeps its controls and its surface disabled. The captions
/// are cleared at the end.
struct SaveDisplay {
    FrameVisibility frame; ///< fraSaveStatus
    Caption saveStatus;    ///< lblSaveStatus
    Caption groupStatus;   ///< lblGroupStatus
};

/// What frmGroups decides, without its widgets. It edits tblTempGroups and TblTempName of ukmap.mdb, which
/// ModData_CopyGroupsFromProject has made; nothing reaches the master copies before save(), but for deleteAll().
///
/// Questions and messages go through prompts(). Statements that fail are logged and passed over; a change that could
/// not be written leaves ChangedGroups as it was. The window reads groups(), selected(), canSave() and canDelete()
/// after every call. Main thread.
class GroupEditor {
public:
    /// Begins on tables just made, with nothing to save: reads the list. `type` becomes DataType.
    explicit GroupEditor(long type);

    long DataType;        ///< what groups are made of: 3 postcode districts, 1 CSGs, 2 TV regions; 0 not known
    bool Unsaved = false; ///< there is something to lose

    const std::vector<EditedGroup>& groups() const { return groups_; }
    int selected() const { return selected_; } ///< place in groups(); -1: none
    void select(int place);                    ///< a place that the list has not got selects none
    std::string selectedName() const;          ///< empty: none

    bool canSave() const { return changed_; }           ///< cmdSave, cmdCancel and their captions
    bool canDelete() const { return !groups_.empty(); } ///< cmdDeleteGroup, cmdDeleteAll

    /// frmGroups_PopulateGroupList: reads the list anew; none is selected then.
    void populate();
    /// frmGroups_cmdAddGroup_Click. True: a group has come, in the last place, and is selected.
    bool addGroup();
    EditorStep deleteGroup();
    /// Acts at once, without a save. Asks which areas are grouped from then on.
    EditorStep deleteAll();
    /// Asks, saves and tells the result. False where the user refused or the save failed.
    bool save(const SaveDisplay& display);
    /// Puts back what was saved last.
    EditorStep cancel();
    /// Asks where changes would be lost. True: the window may close.
    bool mayLeave() const;

    /// Tells the user where no group is selected: before an area is changed, and at a press of the mouse in tool 7.
    bool requireSelection() const;
    /// MapEntityInfo: the area that was clicked, for which the window pops up mnuGroup; then changeArea(). Nothing
    /// where there is none, no group is selected or it cannot be grouped; the user is told why.
    std::optional<std::string> areaClicked(long EntityID) const;
    /// Puts an area into the selected group, or takes it out of its group; also one of the call areas. The map is to be
    /// redrawn (GroupMap::redraw) whether or not there was anything to change.
    void changeArea(GroupAction action, const std::string& area, const MembershipQuery& query);

    /// MapGeoQuery: the names of the polygons of a drawing, for frmGroupSelection; asked for when mnuGroup has ended on
    /// an action. Empty where none of them can be grouped; the user has been told.
    std::vector<std::string> areasDrawn(GroupAction action, const std::vector<long>& EntityIDs) const;
    /// frmGroupSelection_cmdOK_Click: changes the areas with a check mark; an answer to all holds for the rest of them.
    /// Tells the user when it is done. The map is to be redrawn.
    void changeAreas(GroupAction action, const std::vector<std::string>& checkedAreas, const MembershipQuery& query);

    /// The four call areas as they stand.
    std::array<CallArea, 4> callAreas() const;

    /// For a map of an unknown kind of areas: asks for it where no group has a member.
    void decideType();

private:
    std::vector<EditedGroup> groups_;
    int selected_ = -1;
    bool changed_ = false;
};

/// The text of frmGroupSelection.
std::string groupSelectionText(GroupAction action);
