#include "report/form/SetupLists.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "stats/FigureEngine.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

/// The small installation with the tables that the lists are read from.
class SetupLists : public testing::Test {
protected:
    SetupLists() {
        createVocabularyTable(*gdbProject, DatabaseKind::Project, "TblKeyNumbers");
        createVocabularyTable(*gdbProject, DatabaseKind::Project, "TblKeyCountries");
        createVocabularyTable(customerGroupsDatabase(), DatabaseKind::CustomerGroups, "TblCommunityGroupsName");
    }

    static void add(Database& database, const std::string& table, const std::string& columns, const Texts& rows) {
        for (const std::string& row : rows)
            database.execute("INSERT INTO " + table + " (" + columns + ") VALUES (" + row + ")");
    }

    SmallInstallation installation_;
    ScriptedPrompts prompts_;
};

TEST_F(SetupLists, OfferTheNumbersOfTheProjectAndTheGroupsOfItsAccount) {
    add(*gdbProject, "TblKeyNumbers", "Number1", {"'0845'", "'0800'", "'0845'"});
    add(*gdbCustomerGroups, "TblCommunityGroupsName", "TallyAccount, Name",
        {"'ACC', 'Sales'", "'OTHER', 'Theirs'", "'ACC', 'Care'", "'ACC', 'Sales'"});
    const InboundLists lists = Setup_Inbound_List();
    EXPECT_EQ(lists.numbers.rows, (Texts{"0800", "0845"}));
    EXPECT_EQ(lists.numbers.remembered, "0800");
    EXPECT_TRUE(lists.numbers.available);
    EXPECT_EQ(lists.communityGroups.rows, (Texts{"Not Allocated", "Care", "Sales"}));
    EXPECT_TRUE(lists.communityGroups.available);
    EXPECT_EQ(gsCurrentProc, "FrmMain_setupinboundlist_6");
    EXPECT_EQ(prompts_.texts, Texts{});
    EXPECT_EQ(installation_.logLines(), Texts{});
}

TEST_F(SetupLists, WithoutNumbersTheUserIsTold) {
    const InboundLists lists = Setup_Inbound_List();
    EXPECT_FALSE(lists.numbers.available);
    EXPECT_EQ(prompts_.texts, Texts{"No Inbound Numbers found"});
    EXPECT_EQ(lists.communityGroups.rows, Texts{"Not Allocated"}) << "it is there whatever the data";
    EXPECT_FALSE(lists.communityGroups.available);
    EXPECT_EQ(gsCurrentProc, "FrmMain_setupinboundlist_7");
}

TEST_F(SetupLists, WithoutAnAccountThereAreNoGroups) {
    add(*gdbProject, "TblKeyNumbers", "Number1", {"'0800'"});
    add(*gdbCustomerGroups, "TblCommunityGroupsName", "TallyAccount, Name", {"'ACC', 'Sales'"});
    for (const char* change : {"UPDATE Tbl50 SET TallyAccount = NULL", "DELETE FROM Tbl50"}) {
        prompts_.texts.clear();
        gdbProject->execute(change);
        const InboundLists lists = Setup_Inbound_List();
        EXPECT_TRUE(lists.numbers.available);
        EXPECT_FALSE(lists.communityGroups.available);
        EXPECT_EQ(prompts_.texts, Texts{"Error finding account number"}) << change;
    }
}

TEST_F(SetupLists, OfferAnswerPointsTheirGroupsAndDestinations) {
    add(*gdbProject, "TblKeyCountries", "Number1", {"'York'", "'Leeds'"});
    add(*gdbCustomerGroups, "TblAnswerPoints", "TallyAccount, Reference, GroupName",
        {"'ACC', 'Leeds', 'North'", "'ACC', 'York', 'North'", "'ACC', 'Bath', NULL", "'OTHER', 'Kent', 'South'"});
    SmallCall first{.caller = "1", .code = "01", .answerInd = "0"};
    first.destination = "D2";
    SmallCall second = first;
    second.destination = "D1";
    installation_.addCalls({first, second, first});
    const LocationLists lists = Setup_Location_List();
    EXPECT_EQ(lists.answerPoints.rows, (Texts{"Leeds", "York"}));
    EXPECT_EQ(lists.answerPointGroups.rows, (Texts{"Not Allocated", "North"}));
    EXPECT_EQ(lists.answerPointGroups.remembered, "North") << "a group, not what is in none";
    EXPECT_EQ(lists.destinations.rows, (Texts{"D1", "D2"}));
    EXPECT_TRUE(gdbCommunityGroups && gdbCommunityGroups->isOpen());
    EXPECT_EQ(installation_.logLines(), Texts{});
}

TEST_F(SetupLists, DestinationsAreTheSameFromColumnsAsByTheStatement) {
    SmallCall call{.caller = "1", .code = "01", .answerInd = "0"};
    std::vector<SmallCall> calls;
    for (const char* destination : {"D10", "d2", "D1", "D2 ", "", "9", "Ä", "a", "D1"}) {
        call.destination = destination;
        calls.push_back(call);
    }
    installation_.addCalls(calls);
    gdbProject->execute("INSERT INTO TblTeleItem (CallingNo) VALUES ('2')"); // to a destination that is null
    Texts read[2];
    for (const bool scanned : {true, false}) {
        setFigureEngine(scanned ? FigureEngine::Automatic : FigureEngine::Statements);
        for (const std::string& name : Setup_Location_List().destinations.rows)
            read[scanned].push_back(foldText(name)); // which spelling stands for a name is open
    }
    setFigureEngine(FigureEngine::Automatic);
    EXPECT_EQ(read[1], read[0]);
    EXPECT_EQ(read[1].size(), 7U);
    EXPECT_EQ(installation_.logLines(), Texts{});
}

TEST_F(SetupLists, WhatIsMissingIsLoggedAndTheRestIsRead) {
    add(*gdbProject, "TblKeyNumbers", "Number1", {"'0800'"});
    gdbProject->execute("DROP TABLE TblKeyCountries");
    gdbCustomerGroups->execute("DROP TABLE TblCommunityGroupsName");
    EXPECT_TRUE(Setup_Inbound_List().numbers.available);
    EXPECT_EQ(installation_.logLinesWith("\"FrmMain_setupinboundlist_5\",3078,"), 1);
    const LocationLists lists = Setup_Location_List();
    EXPECT_FALSE(lists.answerPoints.available || lists.answerPointGroups.available || lists.destinations.available);
    EXPECT_EQ(installation_.logLinesWith("\"FrmMain_setuplocationlist\",3078,"), 1);
    EXPECT_EQ(prompts_.texts, Texts{});
}

} // namespace
