#include "sample/installation/InstallationFacts.h"

#include "sample/installation/Customer.h"
#include "sample/installation/RowWriter.h"

namespace sample {

Date boundaryDate() {
    return dateOf({.year = 2025, .month = 1, .day = 15, .hour = 0});
}

std::vector<GroupMember> groupMembers(const Geography& geography) {
    std::vector<GroupMember> members;
    for (const Area& district : geography.postcodeDistricts)
        members.push_back({district.name, Value()});
    for (const BranchGroup& group : groupBranches(geography)) {
        for (const int district : group.districts)
            members[static_cast<std::size_t>(district)].group = group.name;
    }
    return members;
}

void writeCodes(Database& database, std::string_view table, std::span<const ReferenceCode> codes) {
    RowWriter rows(database, table);
    for (const ReferenceCode& code : codes)
        rows.add({code.code, code.exchange, code.csg, code.dmsu, code.postCode, code.tvArea});
}

} // namespace sample
