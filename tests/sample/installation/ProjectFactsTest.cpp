#include "sample/installation/Customer.h"
#include "tests/sample/installation/SharedInstallation.h"

#include <gtest/gtest.h>

namespace sample {
namespace {

TEST(SampleProject, HoldsTheCallsThatWereAskedFor) {
    const SharedInstallation& made = sharedInstallation();
    EXPECT_EQ(made.report.project.calls, 20'000);
    EXPECT_EQ(askCount(made.project, "SELECT Count(*) FROM TblTeleItem"), 20'000);
}

/// Facts that hold for every row: each statement counts the rows that break one.
struct Fact {
    const char* name;
    const char* broken;
};

class ProjectFact : public testing::TestWithParam<Fact> {};

TEST_P(ProjectFact, HoldsForEveryRow) {
    EXPECT_EQ(askCount(sharedInstallation().project, GetParam().broken), 0) << GetParam().broken;
}

INSTANTIATE_TEST_SUITE_P(
    SampleProject, ProjectFact,
    testing::Values(
        Fact{"EachCallHasAMappedCode",
             "SELECT Count(*) FROM TblTeleItem LEFT JOIN TblMappingGIS ON TblTeleItem.[1141] = "
             "TblMappingGIS.[1141] WHERE TblMappingGIS.[1141] IS NULL"},
        Fact{"NoCodeIsMappedTwice",
             "SELECT Count(*) FROM (SELECT [1141] FROM TblMappingGIS GROUP BY [1141] HAVING Count(*) > 1) AS D"},
        Fact{"EachCodeHasAllItsAreas",
             "SELECT Count(*) FROM TblMappingGIS WHERE Exchange IS NULL OR CSG IS NULL OR DMSU IS "
             "NULL OR PostCode IS NULL OR TVArea IS NULL OR Exchange = '' OR TVArea = ''"},
        Fact{
            "MappingIsACopyOfTheGeography",
            "SELECT Count(*) FROM TblGIS LEFT JOIN TblMappingGIS ON TblGIS.[1141] = TblMappingGIS.[1141] AND "
            "TblGIS.Exchange = TblMappingGIS.Exchange AND TblGIS.PostCode = TblMappingGIS.PostCode AND TblGIS.TVArea = "
            "TblMappingGIS.TVArea AND TblGIS.CSG = TblMappingGIS.CSG WHERE TblMappingGIS.[1141] IS NULL"},
        Fact{"EachNumberIsAKeyNumber",
             "SELECT Count(*) FROM TblTeleItem LEFT JOIN TblKeyNumbers ON TblTeleItem.CalledNo = "
             "TblKeyNumbers.Number1 WHERE TblKeyNumbers.Number1 IS NULL"},
        Fact{"EachAnswerPointIsAKeyCountry",
             "SELECT Count(*) FROM TblTeleItem LEFT JOIN TblKeyCountries ON TblTeleItem.AnswerLoc = "
             "TblKeyCountries.Number1 WHERE TblKeyCountries.Number1 IS NULL"},
        Fact{"CallersWithAPlaceHaveItsDigits",
             "SELECT Count(*) FROM TblTeleItem WHERE [1141] Like '[12]*' AND (Left(CallingNo, "
             "Len([1141]) + 1) <> '0' & [1141] OR Len(CallingNo) <> 11)"},
        Fact{"MobilesHaveMobileNumbers",
             "SELECT Count(*) FROM TblTeleItem WHERE [1141] = 'MOBILE' AND NOT (CallingNo Like "
             "'07#########')"},
        Fact{"WithheldNumbersAreEmpty",
             "SELECT Count(*) FROM TblTeleItem WHERE [1141] = 'NO CLI' AND (CallingNo IS NULL OR CallingNo <> '')"},
        Fact{"TimesAreTimes",
             "SELECT Count(*) FROM TblTeleItem WHERE NOT (CallTime Like '[0-2]#:[0-5]#:[0-5]#') OR CallTime "
             ">= '24'"},
        Fact{"UnansweredCallsHaveNoTalk", "SELECT Count(*) FROM TblTeleItem WHERE AnswerInd Not In ('0','8') AND "
                                          "(AnswerTime <> 0 OR TotalAnswerTime <> 0)"},
        Fact{"AnsweredCallsHaveATalkInTheirDuration",
             "SELECT Count(*) FROM TblTeleItem WHERE AnswerInd In ('0','8') AND "
             "(AnswerTime < 1 OR ActualDuration < AnswerTime OR Legs < 1)"},
        Fact{"TotalAnswerTimeFollowsTheLegs", "SELECT Count(*) FROM TblTeleItem WHERE TotalAnswerTime <> IIf(Legs > 1, "
                                              "ActualDuration - Duration1, AnswerTime)"},
        Fact{"RevenueComesFromTheSharedNumbersAlone",
             "SELECT Count(*) FROM TblTeleItem WHERE Discounted < 0 AND NOT (CalledNo Like '0845*')"},
        Fact{"SharedNumbersNeverCost",
             "SELECT Count(*) FROM TblTeleItem WHERE Discounted > 0 AND CalledNo Like '0845*'"}),
    [](const auto& row) { return std::string(row.param.name); });

/// Shares of the calls by which the customer can be told from noise.
struct Share {
    const char* name;
    const char* condition;
    double low, high;
};

class CallShare : public testing::TestWithParam<Share> {};

TEST_P(CallShare, IsPlausible) {
    const auto& project = sharedInstallation().project;
    const double share = static_cast<double>(askCount(project, "SELECT Count(*) FROM TblTeleItem WHERE " +
                                                                   std::string(GetParam().condition))) /
                         20'000;
    EXPECT_GE(share, GetParam().low);
    EXPECT_LE(share, GetParam().high);
}

INSTANTIATE_TEST_SUITE_P(
    SampleProject, CallShare,
    testing::Values(
        Share{"Answered", "AnswerInd In ('0','8')", 0.80, 0.90}, Share{"Engaged", "AnswerInd In ('2','9')", 0.03, 0.12},
        Share{"RingingOut", "AnswerInd = '4'", 0.02, 0.10},
        Share{"OtherOutcomes", "AnswerInd Not In ('0','8','2','9','4')", 0.01, 0.08},
        Share{"Mobile", "[1141] = 'MOBILE'", 0.20, 0.30}, Share{"Voip", "[1141] = 'VOIP'", 0.004, 0.02},
        Share{"Overseas", "[1141] Like '.*'", 0.01, 0.03}, Share{"Ireland", "[1141] Like '353*'", 0.004, 0.02},
        Share{"WithoutNumber", "[1141] In ('NO CLI','OLO','UNTRACEAB')", 0.04, 0.08},
        Share{"Cost", "Discounted > 0", 0.50, 0.80}, Share{"Revenue", "Discounted < 0", 0.10, 0.30},
        Share{"NeitherCostNorRevenue", "Discounted = 0", 0.08, 0.30},
        Share{"InOfficeHours", "CallTime Between '08:00:00' And '20:59:59'", 0.85, 0.98},
        Share{"OnSundays", "Weekday(CallDate) = 1", 0.03, 0.09}, Share{"Payphones", "PayPhone = 'P'", 0.0005, 0.01}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(SampleProject, PeriodIsThatOfItsCalls) {
    const SharedInstallation& made = sharedInstallation();
    const auto summary = made.project->openRecordset("SELECT SBSStartDate, SBSEndDate FROM TblCallSummary1");
    ASSERT_EQ(summary->RecordCount(), 1);
    const auto calls = made.project->openRecordset("SELECT Min(CallDate), Max(CallDate) FROM TblTeleItem");
    for (const int end : {0, 1})
        EXPECT_EQ(summary->value(end).asDate(), Date{calls->value(end).asDouble()});
    EXPECT_EQ(made.report.project.lastDate, parseDate("31/08/2025"));
}

TEST(SampleProject, MoreCallsAreLostWhenTheLinesAreFull) {
    const auto answered = [](const char* from, const char* to) {
        return ask(sharedInstallation().project, "SELECT Avg(IIf(AnswerInd In ('0','8'), 1, 0)) FROM TblTeleItem WHERE "
                                                 "Weekday(CallDate) = 2 AND CallTime "
                                                 "Between '" +
                                                     std::string(from) + "' And '" + to + "'")
            .asDouble();
    };
    EXPECT_LT(answered("10:00:00", "11:59:59"), answered("15:00:00", "18:59:59"));
}

TEST(SampleProject, SomeCallersCallAgainAndAgain) {
    const auto& project = sharedInstallation().project;
    const double callers =
        ask(project, "SELECT Count(*) FROM (SELECT DISTINCT CallingNo FROM TblTeleItem) AS C").asDouble();
    EXPECT_GT(callers, 3'000);
    EXPECT_LT(callers, 6'000);
    EXPECT_GT(askCount(project,
                       "SELECT Max(N) FROM (SELECT Count(*) AS N FROM TblTeleItem WHERE CallingNo <> '' GROUP BY "
                       "CallingNo) AS C"),
              20);
}

TEST(SampleProject, HasOneAccountWhoseRecordsAreComplete) {
    const auto account =
        sharedInstallation().project->openRecordset("SELECT TallyAccount, Flags, UpdateMapping FROM Tbl50");
    ASSERT_EQ(account->RecordCount(), 1);
    EXPECT_EQ(account->value(0).asText(), tallyAccount);
    EXPECT_EQ(account->value(1).asInteger(), 0);
    EXPECT_EQ(account->value(2).asInteger(), 0);
}

TEST(SampleProject, GroupsAreTheSameAsInTheMasterCopy) {
    const SharedInstallation& made = sharedInstallation();
    const std::string statement = "SELECT Reference, GroupName FROM TblGroups WHERE TallyAccount = 'SAMPLE01'";
    const auto project = made.project->openRecordset(statement);
    const auto master = made.groups->openRecordset(statement);
    ASSERT_EQ(project->RecordCount(), master->RecordCount());
    for (; !project->EOF_(); project->MoveNext(), master->MoveNext()) {
        EXPECT_EQ(project->value(0), master->value(0));
        EXPECT_EQ(project->value(1), master->value(1));
    }
}

TEST(SampleGroups, HaveFiveToThirtyDistrictsEach) {
    const auto groups = sharedInstallation().groups->openRecordset(
        "SELECT GroupName, Count(*) FROM TblGroups WHERE GroupName IS NOT NULL GROUP BY GroupName");
    EXPECT_EQ(groups->RecordCount(), 10);
    for (; !groups->EOF_(); groups->MoveNext()) {
        EXPECT_GE(groups->value(1).asInteger(), 5) << groups->value(0).asText();
        EXPECT_LE(groups->value(1).asInteger(), 30) << groups->value(0).asText();
    }
    EXPECT_EQ(askCount(sharedInstallation().groups,
                       "SELECT Count(*) FROM TblGroups LEFT JOIN TblName ON TblGroups.GroupName = TblName.Name WHERE "
                       "TblGroups.GroupName IS NOT NULL AND TblName.Name IS NULL"),
              0);
}

TEST(SampleGroups, NumbersAreInNoneToThreeCommunityGroupsThatExist) {
    const auto& groups = sharedInstallation().groups;
    EXPECT_EQ(askCount(groups, "SELECT Count(*) FROM tblCommunityGroups"), 20);
    EXPECT_GT(askCount(groups,
                       "SELECT Count(*) FROM tblCommunityGroups WHERE GroupName IS NULL AND GroupName2 IS NULL AND "
                       "GroupName3 IS NULL"),
              0);
    EXPECT_GT(askCount(groups, "SELECT Count(*) FROM tblCommunityGroups WHERE GroupName3 IS NOT NULL"), 0);
    for (const char* column : {"GroupName", "GroupName2", "GroupName3"}) {
        const std::string name = "tblCommunityGroups." + std::string(column);
        EXPECT_EQ(askCount(groups, "SELECT Count(*) FROM tblCommunityGroups LEFT JOIN TblCommunityGroupsName ON " +
                                       name + " = TblCommunityGroupsName.Name WHERE " + name +
                                       " IS NOT NULL AND TblCommunityGroupsName.Name IS NULL"),
                  0)
            << column;
    }
    EXPECT_EQ(askCount(groups, "SELECT Count(*) FROM (SELECT DISTINCT Name FROM TblCommunityGroupsName) AS N"), 6);
}

} // namespace
} // namespace sample
