#include "groups/ChangedGroups.h"

#include <algorithm>

std::vector<std::string> ChangedGroups(1);

void ResetChangedGroups() {
    ChangedGroups.assign(1, std::string());
}

void AddChangedGroup(const std::string& name) {
    if (std::ranges::find(ChangedGroups, name) != ChangedGroups.end())
        return;
    ChangedGroups.back() = name;
    ChangedGroups.emplace_back();
}
