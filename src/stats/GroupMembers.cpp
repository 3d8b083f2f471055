#include "stats/GroupMembers.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "stats/SelectionState.h"

namespace {

constexpr long mostNumbers = 1500;
constexpr const char* notAllocated = "Not Allocated";

/// The account of the open project; empty, after a message, where it cannot be told.
std::string projectAccount() {
    std::string account;
    logAndGoOn([&] {
        const auto rows = projectDatabase().openRecordset("SELECT TallyAccount FROM Tbl50");
        if (rows->RecordCount() == 1)
            account = rows->value(0).asText();
    });
    if (account.empty()) {
        progress().setHourglass(false);
        showMessage("Error finding account number", PromptStyle::Information);
    }
    return account;
}

std::string inList(const char* column, Recordset& members) {
    std::string list = std::string(" AND ") + column + " In (";
    for (; !members.EOF_(); members.MoveNext())
        list += quoted(members.value(0).asText()) + ",";
    list.back() = ')';
    return list;
}

std::string numbersOf(const std::string& account, const std::string& groupName) {
    std::string query = "SELECT Reference FROM tblCommunityGroups where TallyAccount = " + quoted(account) + " AND ";
    if (groupName == notAllocated) {
        query += "GroupName IS NULL AND GroupName2 IS NULL AND GroupName3 IS NULL";
    } else {
        const std::string group = quoted(groupName);
        query += "(GroupName = " + group + " OR GroupName2 = " + group + " OR GroupName3 = " + group + ")";
        SelectionDescription = "Community Group = " + groupName;
    }
    const auto members = customerGroupsDatabase().openRecordset(query);
    if (members->RecordCount() == 0)
        return {};
    if (members->RecordCount() > mostNumbers) {
        showMessage("Group must not contain more than 1500 numbers, please re-allocate numbers to group using Manage "
                    "Community Group",
                    PromptStyle::Information);
        GroupLimitExceeded = true;
        return {};
    }
    return inList("CalledNo", *members);
}

std::string answerPointsOf(const std::string& account, const std::string& groupName) {
    const std::string query =
        groupName == notAllocated
            ? "SELECT TblAnswerPoints.Reference, TblAnswerPoints.TallyAccount, TblAnswerPoints.Reference FROM "
              "TblAnswerPoints Where TblAnswerPoints.TallyAccount = " +
                  quoted(account) + " And IsNull(TblAnswerPoints.GroupName)"
            : "SELECT Reference FROM TblAnswerPoints where TallyAccount = " + quoted(account) +
                  " AND GroupName = " + quoted(groupName);
    const auto members = customerGroupsDatabase().openRecordset(query);
    return members->RecordCount() == 0 ? std::string() : inList("AnswerLoc", *members);
}

} // namespace

std::string ModUtilities_getnumbersforcg(const std::string& groupName) {
    gsCurrentProc = "ModUtilities_getnumbersforcg";
    std::string condition;
    const std::string account = projectAccount();
    if (!account.empty())
        logAndGoOn([&] { condition = numbersOf(account, groupName); });
    return condition;
}

std::string ModUtilities_getAnswerPointsForGroup(const std::string& groupName) {
    gsCurrentProc = "ModUtilities_getAnswerPointsForGroup";
    std::string condition;
    const std::string account = projectAccount();
    if (!account.empty())
        logAndGoOn([&] { condition = answerPointsOf(account, groupName); });
    return condition;
}
