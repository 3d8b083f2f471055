// Areas that are put into groups and taken out of them.
#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/engine/Workspace.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/ChangedGroups.h"
#include "groups/GroupType.h"
#include "groups/editor/AreaChange.h"
#include "groups/editor/GroupEditor.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 4> callAreaNames{"Mobile", "International", "VOIP", "Other"};

bool isCallArea(const std::string& name) {
    return std::ranges::any_of(callAreaNames, [&](std::string_view callArea) { return equalText(callArea, name); });
}

bool isIreland(const std::string& name) {
    return equalText(trimmedText(name), "Republic of Ireland");
}

std::string shapeTableOf(long DataType) {
    return std::string(groupTypeOf(DataType).shapeTable);
}

/// "(1, 2, 3)".
std::string listOf(const std::vector<long>& entities) {
    std::string list;
    for (const long entity : entities)
        list += (list.empty() ? "" : ", ") + std::to_string(entity);
    return "(" + list + ")";
}

/// The call areas of a group take its colour.
void colourCallAreas(std::span<CallArea> areas, const EditedGroup& group) {
    const auto rows = systemDatabase().openRecordset(
        "SELECT Reference FROM TblTempGroups WHERE GroupName = " + ::quoted(group.name) +
        " AND Reference IN ('Mobile', 'International', 'Other', 'VOIP') and tallyaccount = " + ::quoted(gsAccount));
    for (; !rows->EOF_(); rows->MoveNext()) {
        const std::string name = rows->value(0).asText();
        const auto area =
            std::ranges::find_if(areas, [&](const CallArea& known) { return equalText(known.name, name); });
        if (area == areas.end())
            continue;
        area->group = group.name;
        area->colour = group.colour;
    }
}

/// One write to the disk for many statements. A question ends it, so that nothing is held while the user thinks.
class Batch {
public:
    Batch() { begin(); }
    ~Batch() { end(); }
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

    MembershipQuery around(const MembershipQuery& query) {
        return [this, &query](const std::string& area, const std::string& group, bool adding) {
            end();
            const MembershipAnswer answer = query ? query(area, group, adding) : MembershipAnswer::No;
            begin();
            return answer;
        };
    }
    void end() {
        if (transaction_)
            logAndGoOn([&] { transaction_->commit(); });
        transaction_.reset();
    }

private:
    void begin() {
        logAndGoOn([&] { transaction_.emplace(*defaultWorkspace()); });
    }

    std::optional<WorkspaceTransaction> transaction_;
};

} // namespace

bool GroupEditor::requireSelection() const {
    if (!selectedName().empty())
        return true;
    showMessage("Please select a group from, or add a new group to, the Group box before selecting an area to add or "
                "remove.");
    return false;
}

std::optional<std::string> GroupEditor::areaClicked(long EntityID) const {
    if (EntityID == -1 || !requireSelection())
        return std::nullopt;
    const CurrentProcedure procedure("frmGroups_MapSurface1_MapEntityInfo");
    std::optional<std::string> name;
    onSystemDatabase([&] {
        name = systemDatabase()
                   .openRecordset("SELECT NAME FROM " + shapeTableOf(DataType) +
                                  " WHERE POLYGONID = " + std::to_string(EntityID))
                   ->value(0)
                   .asText();
    });
    if (!name || trimmedText(*name).empty())
        return std::nullopt;
    if (isIreland(*name)) {
        showMessage("This area cannot be included in a Customer Group");
        return std::nullopt;
    }
    return name;
}

void GroupEditor::changeArea(GroupAction action, const std::string& area, const MembershipQuery& query) {
    if (!requireSelection())
        return;
    const CurrentProcedure procedure("frmGroups_MapSurface1_MapEntityInfo");
    const auto changedBefore = ChangedGroups;
    AddChangedGroup(selectedName());
    const auto result = AreaChange(action, selectedName(), query).change(area);
    if (result == AreaChange::Result::Failed)
        ChangedGroups = changedBefore;
    if (result == AreaChange::Result::Changed)
        Unsaved = true;
    changed_ = true;
}

std::vector<std::string> GroupEditor::areasDrawn(GroupAction action, const std::vector<long>& EntityIDs) const {
    const CurrentProcedure procedure("frmGroups_MapSurface1_MapGeoQuery");
    std::vector<std::string> names, all;
    if (!EntityIDs.empty())
        onSystemDatabase([&] {
            all.clear();
            const auto rows = systemDatabase().openRecordset("SELECT * FROM " + shapeTableOf(DataType) +
                                                             " WHERE POLYGONID IN " + listOf(EntityIDs));
            for (; !rows->EOF_(); rows->MoveNext())
                all.push_back(rows->value("NAME").asText());
        });
    for (const std::string& name : all) {
        if (trimmedText(name).empty() || isCallArea(trimmedText(name)))
            continue;
        if (isIreland(name))
            showMessage("Republic Of Ireland is not valid for use in Customer Groups");
        else
            names.push_back(name);
    }
    if (names.empty())
        showMessage(action == GroupAction::Add ? "No areas have been selected to add to the group"
                                               : "No areas have been selected to remove from the group");
    return names;
}

void GroupEditor::changeAreas(GroupAction action, const std::vector<std::string>& checkedAreas,
                              const MembershipQuery& query) {
    if (!requireSelection())
        return;
    const CurrentProcedure procedure("frmGroupSelection_cmdOK_Click");
    std::size_t failed = 0;
    {
        const Hourglass hourglass;
        Batch batch;
        AreaChange change(action, selectedName(), batch.around(query));
        for (const std::string& area : checkedAreas) {
            const auto result = change.change(area);
            failed += result == AreaChange::Result::Failed ? 1 : 0;
            if (result == AreaChange::Result::Changed)
                Unsaved = true;
        }
    }
    if (checkedAreas.empty() || failed < checkedAreas.size())
        AddChangedGroup(selectedName());
    changed_ = true;
    showMessage("Group boundary calculation completed");
}

std::array<CallArea, 4> GroupEditor::callAreas() const {
    const CurrentProcedure procedure("frmGroups_DisplayGroups");
    std::array<CallArea, 4> areas;
    for (std::size_t place = 0; place < areas.size(); ++place)
        areas[place].name = callAreaNames[place];
    for (const EditedGroup& group : groups_)
        onSystemDatabase([&] { colourCallAreas(areas, group); });
    return areas;
}

std::string groupSelectionText(GroupAction action) {
    return std::string("You have highlighted the areas listed below.  Please use the checkboxes displayed to select "
                       "which of these areas will be ") +
           (action == GroupAction::Add ? "added to your chosen Customer Group"
                                       : "removed from your chosen Customer Group");
}
