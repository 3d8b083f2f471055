#include "report/form/SetupLists.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/schema/Vocabulary.h"
#include "stats/CallTexts.h"

namespace {

/// The first column of every row; rows that are null name nothing.
std::vector<std::string> namesIn(Database& database, const std::string& query) {
    std::vector<std::string> names;
    const auto rows = database.openRecordset(query);
    for (; !rows->EOF_(); rows->MoveNext())
        if (!rows->value(0).isNull())
            names.push_back(rows->value(0).asText());
    rows->Close();
    return names;
}

ChoiceList listOf(std::vector<std::string> rows) {
    const bool available = !rows.empty();
    return {std::move(rows), {}, available};
}

/// Groups stand behind the row for what is in none, which is there even without any.
ChoiceList groupListOf(std::vector<std::string> groups) {
    ChoiceList list = listOf(std::move(groups));
    list.rows.insert(list.rows.begin(), notAllocatedRow);
    return list;
}

void enterInboundStage(int stage) {
    gsCurrentProc = "FrmMain_setupinboundlist_" + std::to_string(stage);
}

ChoiceList inboundNumbers() {
    ChoiceList list;
    enterInboundStage(1);
    const bool read = logAndGoOn([&] {
        list = listOf(
            namesIn(projectDatabase(), "SELECT Number1 FROM TblKeyNumbers Group by Number1 ORDER BY Number1 Asc"));
    });
    if (list.available) {
        enterInboundStage(2);
        list.remembered = list.rows.front();
    } else if (read) {
        enterInboundStage(3);
        showMessage("No Inbound Numbers found");
    }
    return list;
}

/// Empty, after a message, where the project does not tell it.
std::string accountOfProject() {
    std::string account;
    enterInboundStage(4);
    logAndGoOn([&] {
        if (const auto value = firstValue(projectDatabase(), "SELECT TallyAccount FROM Tbl50"))
            account = value->isNull() ? std::string() : value->asText();
    });
    if (account.empty())
        showMessage("Error finding account number", PromptStyle::Information);
    return account;
}

ChoiceList communityGroupsOf(const std::string& account) {
    ChoiceList list = groupListOf({});
    enterInboundStage(5);
    logAndGoOn([&] {
        auto names =
            namesIn(customerGroupsDatabase(), "SELECT Distinct Name FROM TblCommunityGroupsName where TallyAccount = " +
                                                  quoted(account) + " ORDER BY Name");
        enterInboundStage(names.empty() ? 7 : 6);
        list = groupListOf(std::move(names));
    });
    return list;
}

ChoiceList answerPointGroups() {
    ChoiceList list = groupListOf({});
    logAndGoOn([&] {
        const auto account = firstValue(projectDatabase(), "SELECT TallyAccount FROM Tbl50");
        const auto groups =
            defaultWorkspace()->openDatabase(customerGroupsPath(), Workspace::Access::Shared, ProjectConnect);
        list = groupListOf(namesIn(*groups, "SELECT DISTINCT GroupName FROM TblAnswerPoints WHERE TallyAccount = " +
                                                quoted(account ? account->asText() : std::string()) +
                                                " AND GroupName IS NOT NULL"));
        groups->close();
    });
    if (list.available)
        list.remembered = list.rows[1];
    return list;
}

} // namespace

InboundLists Setup_Inbound_List() {
    InboundLists lists;
    lists.numbers = inboundNumbers();
    const std::string account = accountOfProject();
    lists.communityGroups = account.empty() ? groupListOf({}) : communityGroupsOf(account);
    return lists;
}

LocationLists Setup_Location_List() {
    gsCurrentProc = "FrmMain_setuplocationlist";
    LocationLists lists;
    logAndGoOn(openCommunityGroups);
    lists.answerPointGroups = answerPointGroups();
    logAndGoOn([&] {
        lists.answerPoints = listOf(
            namesIn(projectDatabase(), "SELECT Number1 FROM TblKeyCountries Group by Number1 ORDER BY Number1 Asc"));
    });
    logAndGoOn([&] {
        // A statement sorts all calls for these few names.
        auto names = callTexts(CallField::NetAddress);
        if (!names)
            names = namesIn(projectDatabase(), "SELECT DISTINCT TblTeleItem.NetAddress FROM TblTeleItem ORDER BY "
                                               "TblTeleItem.NetAddress");
        lists.destinations = listOf(std::move(*names));
    });
    return lists;
}
