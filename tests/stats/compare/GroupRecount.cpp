#include "tests/stats/compare/PlainSelection.h"
#include "tests/stats/compare/RecountStep.h"

#include <algorithm>

/// The area of a row of the geography as groups know it.
OptionalText areaOfGroups(const ProjectPlace& place, const std::string& kind) {
    const bool overseas = place.code && place.code->starts_with('.');
    OptionalText area = kind == "3" ? place.postCode : kind == "1" ? place.csg : place.tvArea;
    if (overseas)
        area = "International";
    if (same(kind == "3" ? area : place.postCode, "MOBILE"))
        area = "Mobile";
    if (isOneOf(place.code, {"NO CLI", "OLO", "UNTRACEAB"}))
        area = "Other";
    return area;
}

namespace {

bool isNamed(const OptionalText& group) {
    return group && !plainFold(*group).empty();
}

} // namespace

std::vector<std::string> TableRecount::groupNames() const {
    std::vector<std::string> names;
    for (const GroupMember& member : content_.groups) {
        if (isNamed(member.group))
            names.push_back(plainFold(*member.group));
    }
    return names;
}

/// The calls with the groups of their areas in place of these, each as often as its area is a member of one.
/// `membersOnly`: members with a name, or with an empty one, whose calls keep the area. Otherwise calls in no group
/// keep it, too.
std::vector<PlacedCall> TableRecount::callsInGroups(const std::vector<PlacedCall>& calls, bool membersOnly,
                                                    bool named) const {
    std::vector<PlacedCall> found;
    const std::vector<std::string> names = groupNames();
    const auto add = [&](const PlacedCall& placed) {
        if (isOneOf(placed.area, names))
            found.push_back(placed);
    };
    for (const PlacedCall& placed : calls) {
        bool isMember = false;
        for (const GroupMember& member : content_.groups) {
            if (!same(placed.area, member.reference))
                continue;
            isMember = true;
            if (!membersOnly || (member.group && isNamed(member.group) == named))
                add({placed.call, isNamed(member.group) ? member.group : placed.area});
        }
        if (!isMember && !membersOnly)
            add(placed);
    }
    return found;
}

void TableRecount::countGroupCallers(Step& step) {
    CallerCounts answered, lost;
    for (const bool named : {true, false}) {
        for (const auto& [name, count] : answeredByArea(callsInGroups(step.ofCallers, true, named)))
            answered[name] += count;
        // Lost callers of groups are those of all dates.
        for (const auto& [name, count] : lostByArea(callsInGroups(step.all, true, named), calls_))
            lost[name] += count;
    }
    writeCallers(step, 1, AnsweredCallers, answered);
    writeCallers(step, 1, LostCallers, lost);
    callersOf_ = RunBoundary::CustomerGroups;
}

void TableRecount::performGroups(Step& step, const std::vector<ProjectPlace>& places) {
    const std::vector<std::string> names = groupNames();
    if (names.empty())
        return;
    makeRows(step, names);
    auto counts = countByArea(callsInGroups(step.selected, false, true));
    // An area without calls counts as a group of its name, but for the mobile callers, who are in a group.
    for (const ProjectPlace& place : places) {
        const OptionalText area = content_.groupKind == "7" ? place.postCode : areaOfGroups(place, content_.groupKind);
        if (canBeRead(step.run) && isOneOf(area, names) && !same(area, "Mobile"))
            counts.try_emplace(plainFold(*area));
    }
    writeCounts(step, counts);
    if (step.run.period == 1) {
        countGroupCallers(step);
        step.erase({"OTHER", "INTERNATIONAL", "NO CLI", "OLO", "UNTRACEAB"});
        std::erase_if(step.table, [](const auto& row) { return row.first.starts_with('.'); });
    } else {
        step.erase({"MOBILE", "OTHER", "INTERNATIONAL"});
    }
}
