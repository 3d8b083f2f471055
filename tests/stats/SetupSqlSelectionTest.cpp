#include "stats/ModData_Setup_SQLSelection.h"

#include "core/ModDeclarations.h"
#include "stats/GroupMembers.h"
#include "stats/SelectionState.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>

namespace {

using Rows = std::vector<std::string>;

Date day(int dayOfMonth, int month = 3) {
    return dateOf({.year = 2025, .month = month, .day = dayOfMonth});
}
Date at(int hour, int minute = 0, int second = 0) {
    return Date{(hour * 3600 + minute * 60 + second) / 86400.0};
}

ReportParameters parametersOf(const std::function<void(ReportParameters&)>& change) {
    ReportParameters parameters;
    parameters.DTStart = day(5);
    parameters.DTEnd = day(25);
    change(parameters);
    return parameters;
}

/// Runs the procedure as a report does; gives the selection.
std::string select(const ReportParameters& parameters) {
    Date start = parameters.DTStart;
    Date end = parameters.DTEnd;
    ModData_Setup_SQLSelection(parameters, SelectionSql, start, end, parameters.DTStartTime[0],
                               parameters.DTStartTime[1], 0);
    return SelectionSql;
}

class SetupSqlSelection : public testing::Test {
protected:
    void SetUp() override { GroupLimitExceeded = false; }
    void TearDown() override { GroupLimitExceeded = false; }

    SmallInstallation installation;
    ScriptedPrompts prompts;
};

const std::string days = " CallDate >= #03/05/2025# AND CallDate <= #25/03/2025#";
const std::string T = "CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2))";

struct TextCase {
    const char* name;
    std::function<void(ReportParameters&)> change;
    std::string selection;
    std::string description;
};

TEST_F(SetupSqlSelection, WritesEachChoiceAsItsClause) {
    const TextCase cases[] = {
        {"whole days", [](auto&) {}, days, ""},
        {"part of each day",
         [](auto& p) {
             p.DTStartTime = {at(8), at(17)};
         },
         days + " AND " + T + " >= #08:00:00# AND " + T + " <= #17:00:00#", ""},
        {"from midnight but not to the end",
         [](auto& p) {
             p.DTStartTime = {at(0), at(23, 59)};
         },
         days + " AND " + T + " >= #00:00:00# AND " + T + " <= #23:59:00#", ""},
        {"early and late part of each day",
         [](auto& p) {
             p.DTStartTime = {at(22), at(6)};
         },
         days + " AND (" + T + " >= #22:00:00# OR " + T + " <= #06:00:00#)", ""},
        {"over night",
         [](auto& p) {
             p.DTStartTime = {at(22), at(6)};
             p.ChkOverNight = true;
         },
         days + " AND (CallDate < #25/03/2025# AND " + T + " > #22:00:00# OR (" + T +
             " <= #06:00:00#) AND CallDate > #03/05/2025#)",
         "Overnight"},
        {"over night, but not across midnight",
         [](auto& p) {
             p.DTStartTime = {at(8), at(17)};
             p.ChkOverNight = true;
         },
         days + " AND " + T + " >= #08:00:00# AND " + T + " <= #17:00:00#", "Overnight"},
        {"equal times are ignored",
         [](auto& p) {
             p.DTStartTime = {at(9), at(9)};
         },
         days, ""},
        {"equal times over night",
         [](auto& p) {
             p.DTStartTime = {at(9), at(9)};
             p.ChkOverNight = true;
         },
         days, "Overnight"},
        {"over night round midnight, to the second",
         [](auto& p) {
             p.DTStartTime = {at(23, 59, 59), at(0)};
             p.ChkOverNight = true;
         },
         days + " AND (CallDate < #25/03/2025# AND " + T + " > #23:59:59# OR (" + T +
             " <= #00:00:00#) AND CallDate > #03/05/2025#)",
         "Overnight"},
        {"to the end of the day but not from midnight",
         [](auto& p) {
             p.DTStartTime = {at(0, 1), at(23, 59, 59)};
         },
         days + " AND " + T + " >= #00:01:00# AND " + T + " <= #23:59:59#", ""},
        {"one day, whose numbers cannot be exchanged", [](auto& p) { p.DTStart = p.DTEnd = day(31, 12); },
         " CallDate >= #31/12/2025# AND CallDate <= #31/12/2025#", ""},
        {"an inbound number, as a pattern",
         [](auto& p) {
             p.OptInbound = 1;
             p.CmbInbound = "0800*";
         },
         days + " AND CalledNo Like '0800*'", "Called No = 0800*"},
        {"a number in the box counts only under its option", [](auto& p) { p.CmbInbound = "0800"; }, days, ""},
        {"an inbound option without a number", [](auto& p) { p.OptInbound = 1; }, days, ""},
        {"an answer point",
         [](auto& p) {
             p.OptAnswer = 1;
             p.CmbAnswer = "Leeds";
         },
         days + " AND AnswerLoc Like 'Leeds'", "Answer Loc = Leeds"},
        {"texts with apostrophes stand as they are",
         [](auto& p) {
             p.OptInbound = 1;
             p.CmbInbound = "08'0";
             p.OptAnswer = 1;
             p.CmbAnswer = "O'Hare";
             p.cmbDestinationNo = "D'1";
         },
         days + " AND CalledNo Like '08'0' AND AnswerLoc Like 'O'Hare' AND TblTeleItem.NetAddress LIKE 'D'1' ",
         "Called No = 08'0\r\nAnswer Loc = O'Hare\r\nDestination ID = D'1"},
        {"an answer point in the box counts only under its option",
         [](auto& p) {
             p.CmbAnswer = "Leeds";
             p.CmbAnswerGroup = "North";
         },
         days, ""},
        {"an answer point option without its text",
         [](auto& p) {
             p.OptAnswer = 1;
             p.CmbAnswerGroup = "North";
         },
         days, ""},
        {"an answer point group option without its text",
         [](auto& p) {
             p.OptAnswer = 2;
             p.CmbAnswer = "Leeds";
         },
         days, ""},
        {"a destination option without its text", [](auto& p) { p.optDestinationNo = 1; }, days, ""},
        {"a destination whatever its option", [](auto& p) { p.cmbDestinationNo = "D1"; },
         days + " AND TblTeleItem.NetAddress LIKE 'D1' ", "Destination ID = D1"},
        {"all together",
         [](auto& p) {
             p.OptInbound = 1;
             p.CmbInbound = "0800";
             p.OptAnswer = 1;
             p.CmbAnswer = "Leeds";
             p.cmbDestinationNo = "D1";
             p.ChkOverNight = true;
         },
         days + " AND CalledNo Like '0800' AND AnswerLoc Like 'Leeds' AND TblTeleItem.NetAddress LIKE 'D1' ",
         "Called No = 0800\r\nAnswer Loc = Leeds\r\nDestination ID = D1\r\nOvernight"},
    };
    for (const TextCase& text : cases) {
        SelectionDescription = "left from before";
        EXPECT_EQ(select(parametersOf(text.change)), text.selection) << text.name;
        EXPECT_EQ(SelectionDescription, text.description) << text.name;
    }
}

TEST_F(SetupSqlSelection, IsMadeWithoutTheCommunityGroupsFileWhichIsLogged) {
    std::filesystem::remove(installation.file("comgroups.mdb"));
    EXPECT_EQ(select(parametersOf([](auto& p) { p.cmbDestinationNo = "D1"; })),
              days + " AND TblTeleItem.NetAddress LIKE 'D1' ");
    EXPECT_EQ(installation.logLinesWith("\"ModData_Setup_SQLSelection\",3024,"), 1);
    EXPECT_EQ(installation.logLinesWith("comgroups.mdb"), 1);
}

TEST_F(SetupSqlSelection, ExchangesDayAndMonthOfTheCallersDates) {
    Date start = day(5);
    Date end = day(25);
    ModData_Setup_SQLSelection({}, SelectionSql, start, end, at(0), at(23, 59, 59), 0);
    EXPECT_EQ(start, day(3, 5));
    EXPECT_EQ(end, day(25)) << "no month has the number 25";
    EXPECT_NE(gdbCommunityGroups, nullptr);
}

struct CallsCase {
    const char* name;
    std::function<void(ReportParameters&)> change;
    std::string numbers;
};

TEST_F(SetupSqlSelection, SelectsTheCallsThatItSays) {
    // Named by day and time of the call.
    for (const char* call : {"05 06:00", "05 08:00", "05 12:00", "05 17:00", "05 17:01", "05 22:00", "05 23:30",
                             "06 05:00", "06 06:00", "06 22:01", "07 03:00", "07 22:30"}) {
        const std::string text = call;
        gdbProject->execute("INSERT INTO TblTeleItem (CallDate, CallTime, CalledNo) VALUES (#3/" + text.substr(0, 2) +
                            "/2025#, '" + text.substr(3) + ":59', '" + text + "')");
    }
    const auto span = [](int first, int last) {
        return [=](ReportParameters& p) {
            p.DTStart = day(first);
            p.DTEnd = day(last);
        };
    };
    const CallsCase cases[] = {
        {"one day", span(6, 6), "06 05:00,06 06:00,06 22:01"},
        {"office hours, seconds dropped",
         [&](auto& p) {
             span(5, 7)(p);
             p.DTStartTime = {at(8), at(17)};
         },
         "05 08:00,05 12:00,05 17:00"},
        {"night without the tick: both ends of every day",
         [&](auto& p) {
             span(5, 6)(p);
             p.DTStartTime = {at(22), at(6)};
         },
         "05 06:00,05 22:00,05 23:30,06 05:00,06 06:00,06 22:01"},
        {"over night: from the first evening to the last morning, the first minute left out",
         [&](auto& p) {
             span(5, 7)(p);
             p.DTStartTime = {at(22), at(6)};
             p.ChkOverNight = true;
         },
         "05 23:30,06 05:00,06 06:00,06 22:01,07 03:00"},
        {"over night on a single day: nothing",
         [&](auto& p) {
             span(6, 6)(p);
             p.DTStartTime = {at(22), at(6)};
             p.ChkOverNight = true;
         },
         ""},
    };
    for (const CallsCase& calls : cases) {
        std::string found;
        for (const std::string& number :
             rowsOf(*gdbProject, "SELECT CalledNo FROM TblTeleItem WHERE " + select(parametersOf(calls.change)) +
                                     " ORDER BY CalledNo"))
            found += (found.empty() ? "" : ",") + number;
        EXPECT_EQ(found, calls.numbers) << calls.name;
    }
}

class GroupSelection : public SetupSqlSelection {
protected:
    void SetUp() override {
        SetupSqlSelection::SetUp();
        groups = defaultWorkspace()->openDatabase(installation.file("CustomerGroups.mdb"), Workspace::Access::Shared,
                                                  ProjectConnect);
        for (const char* row : {"'ACC', '0801', 'Sales', NULL, NULL", "'ACC', '0802', 'Other', 'Sales', NULL",
                                "'ACC', '0803', NULL, NULL, 'Sales'", "'ACC', '0804', NULL, NULL, NULL",
                                "'ELSE', '0805', 'Sales', NULL, NULL"})
            groups->execute(std::string("INSERT INTO tblCommunityGroups VALUES (") + row + ")");
        for (const char* row : {"'ACC', 'Leeds', 'North'", "'ACC', 'York', 'North'", "'ACC', 'Bath', NULL"})
            groups->execute(std::string("INSERT INTO TblAnswerPoints VALUES (") + row + ")");
    }

    static ReportParameters communityGroup(const std::string& name) {
        return parametersOf([&](ReportParameters& p) {
            p.OptInbound = 2;
            p.cmbCG = name;
            p.cmbDestinationNo = "D1";
        });
    }

    std::shared_ptr<Database> groups;
};

TEST_F(GroupSelection, ANumberBelongsToUpToThreeGroups) {
    EXPECT_EQ(ModUtilities_getnumbersforcg("Sales"), " AND CalledNo In ('0801','0802','0803')");
    EXPECT_EQ(ModUtilities_getnumbersforcg("Not Allocated"), " AND CalledNo In ('0804')");
    EXPECT_EQ(ModUtilities_getnumbersforcg("Nobody"), "");
    EXPECT_EQ(select(communityGroup("Sales")),
              days + " AND CalledNo In ('0801','0802','0803') AND TblTeleItem.NetAddress LIKE 'D1' ");
    EXPECT_EQ(SelectionDescription, "Community Group = Sales\r\nDestination ID = D1");
    EXPECT_EQ(select(communityGroup("Not Allocated")),
              days + " AND CalledNo In ('0804') AND TblTeleItem.NetAddress LIKE 'D1' ");
    EXPECT_EQ(SelectionDescription, "Community Group = Not Allocated\r\nDestination ID = D1");
    EXPECT_EQ(select(communityGroup("Nobody")), days + " AND TblTeleItem.NetAddress LIKE 'D1' ")
        << "a group without numbers selects all of them";
}

TEST_F(GroupSelection, AnAnswerPointHasOneGroup) {
    EXPECT_EQ(ModUtilities_getAnswerPointsForGroup("North"), " AND AnswerLoc In ('Leeds','York')");
    EXPECT_EQ(ModUtilities_getAnswerPointsForGroup("Not Allocated"), " AND AnswerLoc In ('Bath')");
    EXPECT_EQ(select(parametersOf([](auto& p) {
                  p.OptAnswer = 2;
                  p.CmbAnswerGroup = "Empty";
              })),
              days)
        << "a group without members selects all answer points";
    EXPECT_EQ(SelectionDescription, "Answer Loc = Empty");
}

TEST_F(GroupSelection, ADescriptionHasALineForEachGroup) {
    EXPECT_EQ(select(parametersOf([](auto& p) {
                  p.OptInbound = 2;
                  p.cmbCG = "Sales";
                  p.OptAnswer = 2;
                  p.CmbAnswerGroup = "Not Allocated";
                  p.ChkOverNight = true;
              })),
              days + " AND CalledNo In ('0801','0802','0803') AND AnswerLoc In ('Bath')");
    EXPECT_EQ(SelectionDescription, "Community Group = Sales\r\nAnswer Loc = Not Allocated\r\nOvernight");
}

TEST_F(GroupSelection, AnswerPointGroupsHaveNoLimit) {
    WorkspaceTransaction rows(*defaultWorkspace());
    for (int i = 0; i < 1501; ++i)
        groups->execute("INSERT INTO TblAnswerPoints VALUES ('ACC', 'P" + std::to_string(10000 + i) + "', 'Large')");
    rows.commit();
    const std::string list = ModUtilities_getAnswerPointsForGroup("Large");
    EXPECT_EQ(std::count(list.begin(), list.end(), ','), 1500);
    EXPECT_FALSE(GroupLimitExceeded);
    EXPECT_EQ(prompts.texts, Rows{});
}

TEST_F(GroupSelection, AGroupTakesFifteenHundredNumbers) {
    WorkspaceTransaction rows(*defaultWorkspace());
    for (int i = 0; i < 1500; ++i)
        groups->execute("INSERT INTO tblCommunityGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '" +
                        std::to_string(10000 + i) + "', 'Large')");
    rows.commit();
    const std::string list = ModUtilities_getnumbersforcg("Large");
    EXPECT_TRUE(list.starts_with(" AND CalledNo In ('10000','10001',"));
    EXPECT_TRUE(list.ends_with(",'11499')"));
    EXPECT_FALSE(GroupLimitExceeded);

    groups->execute("INSERT INTO tblCommunityGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'x', 'Large')");
    EXPECT_EQ(select(communityGroup("Large")), days) << "the procedure stops there";
    EXPECT_TRUE(GroupLimitExceeded);
    EXPECT_EQ(prompts.texts, Rows{"Group must not contain more than 1500 numbers, please re-allocate numbers to group "
                                  "using Manage Community Group"});
    EXPECT_EQ(prompts.styles, std::vector<PromptStyle>{PromptStyle::Information});

    prompts.texts.clear();
    EXPECT_EQ(select(communityGroup("Sales")), days + " AND CalledNo In ('0801','0802','0803')")
        << "it stops as well where an earlier run has met the limit";
    EXPECT_EQ(prompts.texts, Rows{});
    EXPECT_EQ(select(communityGroup("")), days + " AND TblTeleItem.NetAddress LIKE 'D1' ") << "no group is chosen";
    EXPECT_TRUE(GroupLimitExceeded) << "whoever runs the report clears it";
}

TEST_F(GroupSelection, AProjectWithoutAccountCoversAllNumbers) {
    gdbProject->execute("UPDATE Tbl50 SET TallyAccount = ''");
    EXPECT_EQ(select(communityGroup("Sales")), days + " AND TblTeleItem.NetAddress LIKE 'D1' ");
    EXPECT_EQ(prompts.texts, Rows{"Error finding account number"});
    gdbProject->execute("DELETE FROM Tbl50");
    EXPECT_EQ(ModUtilities_getAnswerPointsForGroup("North"), "");
    EXPECT_EQ(prompts.texts.size(), 2U);
}

TEST_F(GroupSelection, AnErrorIsLoggedAndTheClauseLeftOut) {
    groups->execute("DROP TABLE tblCommunityGroups");
    EXPECT_EQ(select(communityGroup("Sales")), days + " AND TblTeleItem.NetAddress LIKE 'D1' ");
    EXPECT_EQ(installation.logLinesWith("\"ModUtilities_getnumbersforcg\""), 1);
}

} // namespace
