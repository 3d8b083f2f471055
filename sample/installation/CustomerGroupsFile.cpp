#include "sample/installation/CustomerGroupsFile.h"

#include "data/engine/Database.h"
#include "data/engine/Workspace.h"
#include "data/schema/Vocabulary.h"
#include "sample/installation/Customer.h"
#include "sample/installation/InstallationFacts.h"
#include "sample/installation/RowWriter.h"

namespace sample {

namespace {

constexpr int postcodeDistricts = 3; ///< DataType and JoinedBy of groups of postcode districts

/// Null for a group that is none.
Value groupName(std::string_view name) {
    return name.empty() ? Value() : Value(name);
}

void writeAreaGroups(Database& database, const Geography& geography) {
    RowWriter groups(database, "TblGroups");
    for (const GroupMember& member : groupMembers(geography))
        groups.add({tallyAccount, member.district, member.group});
    RowWriter names(database, "TblName");
    for (const BranchGroup& group : groupBranches(geography))
        names.add({tallyAccount, group.name});
    // True: the groups have been changed, and their shapes do not show it yet.
    RowWriter(database, "tblMappingGroupSetup").add({tallyAccount, std::to_string(postcodeDistricts), true});
    RowWriter(database, "tblFieldIndicator").add({tallyAccount, std::to_string(postcodeDistricts)});
}

void writeNumberGroups(Database& database) {
    RowWriter numbers(database, "tblCommunityGroups");
    for (const InboundNumber& number : inboundNumbers())
        numbers.add({tallyAccount, number.number, groupName(number.communityGroups[0]),
                     groupName(number.communityGroups[1]), groupName(number.communityGroups[2])});
    RowWriter names(database, "TblCommunityGroupsName");
    for (const std::string_view name : communityGroupNames())
        names.add({tallyAccount, name});
    RowWriter points(database, "TblAnswerPoints");
    for (const AnswerPoint& point : answerPoints())
        points.add({tallyAccount, point.name, groupName(point.group)});
}

} // namespace

void writeCustomerGroups(Workspace& workspace, const std::string& path, const Geography& geography) {
    const auto database = workspace.createDatabase(path);
    WorkspaceTransaction transaction(workspace);
    for (const VocabularyTable& table : tableVocabulary()) {
        if (table.database == DatabaseKind::CustomerGroups)
            database->tableDefs().append(table.definition);
    }
    writeAreaGroups(*database, geography);
    writeNumberGroups(*database);
    transaction.commit();
}

void writeCommunityGroups(Workspace& workspace, const std::string& path) {
    workspace.createDatabase(path, ProjectConnect);
}

} // namespace sample
