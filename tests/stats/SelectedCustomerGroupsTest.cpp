#include "stats/ModData_SelectedCustomerGroups.h"

#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

namespace {

/// Groups of postcode districts: North of LS1 and of LS9, which has no calls, Phones of the mobile callers. S1 is in no
/// group.
class CustomerGroupStatistics : public testing::Test {
protected:
    void SetUp() override {
        project.addAllCalls();
        setAreas("'3'");
        addGroup("LS1", "North");
        addGroup("LS9", "North");
        addGroup("S1", "");
        addGroup("Mobile", "Phones");
    }

    void setAreas(const std::string& dataType) {
        gdbSystem->execute("DELETE FROM tblMappingGroupSetup_Link");
        gdbSystem->execute("INSERT INTO tblMappingGroupSetup_Link (TALLYACCOUNT, DataType) VALUES ('ACC', " + dataType +
                           ")");
    }
    void addGroup(const std::string& reference, const std::string& group) {
        gdbProject->execute("INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '" + reference +
                            "', '" + group + "')");
    }
    Rows counted(const std::string& table = "TblCustomerGroups", int period = 1) {
        ModData_SelectedCustomerGroups(table, period);
        return figuresOf(table, "GroupName", period);
    }

    BoundaryProject project;
};

const std::string phones = "Phones|1|1|0|0.3|0|0|0|0|0|1";

TEST_F(CustomerGroupStatistics, AGroupHoldsTheCallsOfItsAreasOnly) {
    gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName, TotalCalls1) VALUES ('Left from before', 7)");
    EXPECT_EQ(counted(), (Rows{"North|3|1|2|2|0.4|1|1|0|1|1", phones}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(CustomerGroupStatistics, GroupsAreMadeOfWhatTheAccountSays) {
    struct Kind {
        const char* dataType;
        const char* reference;
        const char* figures;
    };
    for (const Kind& kind :
         {Kind{"'1'", "113", "Home|3|1|2|2|0.4|1|1|0|1|1"}, Kind{"'2'", "Yorkshire", "Home|5|2|3|2.1|0.4|2|1|0|1|2"},
          Kind{"'3'", "S1", "Home|2|1|1|0.1|1.25|1|0|0|0|1"},
          // Of no known kind: regions.
          Kind{"'7'", "Yorkshire", "Home|5|2|3|2.1|0.4|2|1|0|1|2"},
          Kind{"'x'", "Yorkshire", "Home|5|2|3|2.1|0.4|2|1|0|1|2"}}) {
        setAreas(kind.dataType);
        gdbProject->execute("DELETE FROM TblGroups");
        addGroup(kind.reference, "Home");
        addGroup("Mobile", "Phones");
        addGroup("International", "Abroad");
        addGroup("Other", "Unknown");
        EXPECT_EQ(counted(), (Rows{"Abroad|2|1|1|3|0|0|0|1|0|1", kind.figures, phones,
                                   // Two callers, of whom one has no number; the money of the first outcome.
                                   "Unknown|3|1|2|0.05|0|1|1|0|1|1"}))
            << kind.dataType;
    }
}

TEST_F(CustomerGroupStatistics, LostCallersAreThoseOfAllDates) {
    SelectionSql = " CallDate = #1/1/2025#";
    EXPECT_EQ(counted("TblSelectedDataForCustomerGroups"), (Rows{"North|2|1|1|2|0|1|0|0|1|1", phones}))
        << "B was lost on the second of January";
    SelectionSql = " CallDate = #1/2/2025#";
    EXPECT_EQ(counted("TblSelectedDataForCustomerGroups"),
              (Rows{"North|1|0|1|0|0.4|0|1|0|1|0", "Phones|0|0|0|0|0|0|0|0|0|0"}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(CustomerGroupStatistics, LaterPeriodsStandBesideTheFirstWithoutCallers) {
    ModData_SelectedCustomerGroups("TblSelectedDataForCustomerGroups", 1);
    SelectionSql = " CallDate = #1/1/2025#";
    EXPECT_EQ(counted("TblSelectedDataForCustomerGroups", 2),
              (Rows{"North|2|1|1|2|0|1|0|0|0|0", "Phones|1|1|0|0.3|0|0|0|0|0|0"}));
    EXPECT_EQ(figuresOf("TblSelectedDataForCustomerGroups", "GroupName"),
              (Rows{"North|3|1|2|2|0.4|1|1|0|1|1", phones}));
}

TEST_F(CustomerGroupStatistics, WithoutGroupsNothingChanges) {
    gdbProject->execute("UPDATE TblGroups SET GroupName = ''");
    gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName, TotalCalls1) VALUES ('North', 7)");
    EXPECT_EQ(counted(), Rows{"North|7|null|null|null|null|null|null|null|null|null"});
    gdbProject->execute("DROP TABLE TblGroups");
    EXPECT_EQ(counted().size(), 1U);
    EXPECT_EQ(project.logLines().size(), 1U) << "the missing table";
}

TEST_F(CustomerGroupStatistics, WhereTheKindWasNeverSetTheCallsOfTheRunBeforeAreCounted) {
    ModData_SelectedCustomerGroups("TblCustomerGroups", 1);
    SelectionSql = " CallDate > #1/1/2099#";
    setAreas("NULL");
    EXPECT_EQ(counted(), (Rows{"North|3|1|2|2|0.4|1|1|0|0|0", "Phones|1|1|0|0.3|0|0|0|0|0|0"}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(CustomerGroupStatistics, AreasWithoutCallsAreAddedButForCallAreasInGroups) {
    project.addArea("0115", "HULL", "115", "HU1", "Yorkshire");
    const auto without = [] {
        return rowsOf(*gdbProject, "SELECT GroupName FROM TblCustomerGroups WHERE CalledNo IS NULL ORDER BY GroupName");
    };
    ModData_SelectedCustomerGroups("TblCustomerGroups", 1);
    EXPECT_EQ(without(), (Rows{"HU1", "LS1", "Mobile"})) << "members of a group do not stand under their own names";
    gdbSystem->execute("INSERT INTO TblTempGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'Mobile', "
                       "'Phones')");
    ModData_SelectedCustomerGroups("TblCustomerGroups", 1);
    EXPECT_EQ(without(), (Rows{"HU1", "LS1"}));
}

TEST_F(CustomerGroupStatistics, CallAreasAreNoGroups) {
    for (const char* name : {"Other", ".France", "OLO", "MOBILE", "International"})
        addGroup("S1", name);
    ModData_SelectedCustomerGroups("TblSelectedDataForCustomerGroups", 1);
    const auto names = [] {
        return rowsOf(*gdbSystem, "SELECT GroupName FROM TblSelectedDataForCustomerGroups ORDER BY GroupName");
    };
    EXPECT_EQ(names(), (Rows{"MOBILE", "North", "Phones"}));
    SelectionSql = " CallDate = #1/1/2025#";
    ModData_SelectedCustomerGroups("TblSelectedDataForCustomerGroups", 3);
    EXPECT_EQ(names(), (Rows{".France", "North", "OLO", "Phones"})) << "found anew among the calls";
}

TEST_F(CustomerGroupStatistics, TellsWhatItIsDoingForASelectionToo) {
    const Rows expected{
        "Checking Group Data structures...",     "Updating Group Data structures...", "Creating Group Links...",
        "Analysing Group Data Type...",          "Updating Group Source Data...",     "Updating Group Statistics...",
        "Updating Calls By Group Statistics...", "Total Cost By Group Statistics..."};
    for (const char* table :
         {"TblCustomerGroups", "TblSelectedDataForCustomerGroups", "TblSelectedDataForCustomerGroups"}) {
        TaskTexts shown;
        ModData_SelectedCustomerGroups(table, 1); // the last time its rows are kept
        EXPECT_EQ(shown.texts, expected) << table;
    }
}

} // namespace
