#include "stats/GroupsOfCodes.h"

#include "data/engine/Database.h"
#include "stats/AreasOfCodes.h"
#include "stats/GroupQueries.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>

namespace {

/// A name of TblGroups: null, empty, or a group.
struct Membership {
    bool isNull = false;
    std::string name;
    bool isNamed() const { return !isNull && !equalText(name, ""); }
};

struct ByName {
    bool operator()(const std::string& a, const std::string& b) const { return compareText(a, b) < 0; }
};

std::unordered_map<std::string, std::vector<Membership>> readMembers(Database& project) {
    std::unordered_map<std::string, std::vector<Membership>> members;
    const auto rows = project.openRecordset("SELECT Reference, GroupName FROM TblGroups");
    for (; !rows->EOF_(); rows->MoveNext()) {
        const Value& name = rows->value(1);
        const std::string reference =
            rows->value(0).isNull() ? std::string("\0", 1) : foldText(rows->value(0).asText());
        members[reference].push_back({name.isNull(), name.isNull() ? std::string() : name.asText()});
    }
    return members;
}

} // namespace

GroupsOfCodes::GroupsOfCodes(Database& project, GroupAreas areas, const CallColumns& columns) {
    expectText(project, "TblGroups", {"Reference", "GroupName"});
    expectText(project, "TblTempGIS", {"1141", groupAreaColumn(areas), columnOfAreasWithoutCalls(areas)});
    const auto members = readMembers(project);
    std::map<std::string, std::uint32_t, ByName> groups;
    for (const auto& [reference, memberships] : members) {
        for (const Membership& membership : memberships) {
            if (!membership.isNull)
                groups.try_emplace(membership.name, 0);
        }
    }
    for (auto& [name, number] : groups) {
        number = static_cast<std::uint32_t>(names.size());
        names.push_back(name);
    }
    const auto add = [&](std::vector<std::uint32_t>& list, const std::string& name) {
        if (const auto group = groups.find(name); group != groups.end())
            list.push_back(group->second);
    };

    struct Lists {
        std::vector<std::uint32_t> calls, named, unnamed;
    };
    std::unordered_map<std::string, Lists> byCode;
    std::set<std::uint32_t> asAreas;
    const auto rows = project.openRecordset("SELECT [1141], [" + groupAreaColumn(areas) + "], [" +
                                            columnOfAreasWithoutCalls(areas) + "] AS Added FROM TblTempGIS");
    for (; !rows->EOF_(); rows->MoveNext()) {
        const Value& area = rows->value(1);
        if (const Value& added = rows->value(2); !added.isNull()) {
            std::vector<std::uint32_t> group;
            add(group, added.asText());
            asAreas.insert(group.begin(), group.end());
        }
        if (rows->value(0).isNull() || area.isNull())
            continue;
        Lists& lists = byCode[foldText(rows->value(0).asText())];
        const auto found = members.find(foldText(area.asText()));
        if (found == members.end()) {
            add(lists.calls, area.asText());
            continue;
        }
        for (const Membership& membership : found->second) {
            add(lists.calls, membership.isNamed() ? membership.name : area.asText());
            if (membership.isNamed())
                add(lists.named, membership.name);
            else if (!membership.isNull)
                add(lists.unnamed, area.asText());
        }
    }
    namedAsAreas.assign(asAreas.begin(), asAreas.end());
    for (ScanBoundary* boundary : {&calls, &namedMembers, &unnamedMembers})
        boundary->areas = static_cast<std::uint32_t>(names.size());
    for (const Value& code : columns.valuesOf(CallField::Code)) {
        const auto found = code.isNull() ? byCode.end() : byCode.find(foldText(code.asText()));
        const Lists lists = found == byCode.end() ? Lists() : found->second;
        calls.areasOfCode.push_back(lists.calls);
        namedMembers.areasOfCode.push_back(lists.named);
        unnamedMembers.areasOfCode.push_back(lists.unnamed);
    }
}
