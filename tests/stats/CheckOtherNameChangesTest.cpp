#include "stats/CorrectExchangeName.h"
#include "stats/ModData_CheckNameChanges.h"
#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

namespace {

/// The project says LEEDS and LS1 where the lookup and the map still have OTLEY and LS99.
class OtherNameChanges : public testing::Test {
protected:
    void SetUp() override {
        project.addArea("0115", "LEEDS", "115", "LS1", "Yorkshire");
        for (const char* row : {"'0113', 'OTLEY', 'LS99'", "'0115', 'OTLEY', 'LS99'", "'0114', 'NORTHERN', 'S1'"})
            gdbSystem->execute(std::string("INSERT INTO TblLookup1141 ([1141], Exchange, PostCode) VALUES (") + row +
                               ")");
        gdbSystem->execute("DELETE FROM PGN_POSTCODEDISTRICT");
        for (const char* table : {"PGN_EXCHANGEAREA", "PNT_EXCHANGEAREANAMES"})
            gdbSystem->execute(std::string("INSERT INTO ") + table + " (Name) VALUES ('OTLEY')");
        for (const char* table : {"PGN_POSTCODEDISTRICT", "PNT_POSTCODEDISTRICTNAMES"})
            gdbSystem->execute(std::string("INSERT INTO ") + table + " (Name) VALUES ('LS99')");
        gdbSystem->execute("INSERT INTO TblExchangeArea (Exchange) VALUES ('OTLEY')");
        gdbSystem->execute("INSERT INTO TblPostCodeDistrict (PostCodeDistrict) VALUES ('LS99')");
        gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName) VALUES ('LS99')");
        gdbSystem->execute("INSERT INTO tblMappingGroupSetup_Link (TALLYACCOUNT, DataType) VALUES ('ACC', '3')");
        project.attach("TblGroup_Link", "TblGroups", "CustomerGroups.mdb");
        for (const char* reference : {"OTLEY", "LS99"})
            gdbSystem->execute(
                std::string("INSERT INTO TblGroup_Link (TallyAccount, Reference, GroupName) VALUES ('ACC', '") +
                reference + "', 'North')");
    }

    static Rows names(const std::string& column, const std::string& table) {
        return rowsOf(*gdbSystem, "SELECT " + column + " FROM " + table + " ORDER BY " + column);
    }

    BoundaryProject project;
};

TEST_F(OtherNameChanges, DistrictsAreRenamedEverywhereAndInTheGroupsIfTheUserAgrees) {
    for (const PromptAnswer answer : {PromptAnswer::No, PromptAnswer::Yes}) {
        project.prompts.answers = {answer};
        EXPECT_EQ(ModData_CheckPostCodeNameChanges(), 0);
        EXPECT_EQ(names("Name", "PGN_POSTCODEDISTRICT"), Rows{"LS1"});
        EXPECT_EQ(names("Name", "PNT_POSTCODEDISTRICTNAMES"), Rows{"LS1"});
        EXPECT_EQ(names("PostCode", "TblLookup1141"), (Rows{"LS1", "LS1", "S1"}));
        EXPECT_EQ(names("PostCodeDistrict", "TblPostCodeDistrict"), Rows{"LS1"});
        EXPECT_EQ(names("GroupName", "TblCustomerGroups"), Rows{"LS1"}) << "a group that is its only area";
        EXPECT_EQ(names("Reference", "TblGroup_Link"),
                  (answer == PromptAnswer::Yes ? Rows{"LS1", "OTLEY"} : Rows{"LS99", "OTLEY"}));
        // Back to the old names, and asked again in the next run.
        for (const char* table : {"PGN_POSTCODEDISTRICT", "PNT_POSTCODEDISTRICTNAMES"})
            gdbSystem->execute(std::string("UPDATE ") + table + " SET Name = 'LS99'");
        gdbSystem->execute("UPDATE TblLookup1141 SET PostCode = 'LS99' WHERE PostCode = 'LS1'");
        gdbSystem->execute("UPDATE TblPostCodeDistrict SET PostCodeDistrict = 'LS99'");
        gdbSystem->execute("UPDATE TblCustomerGroups SET GroupName = 'LS99'");
    }
    EXPECT_EQ(project.prompts.texts.size(), 2U);
    EXPECT_EQ(project.logLines(), Rows{}) << "areas abroad and beside the map are no names";
}

TEST_F(OtherNameChanges, ExchangesAreRenamedOnTheMapAndForOneCodeOfTheLookup) {
    EXPECT_EQ(ModData_CheckExchangeNameChanges(), 0);
    EXPECT_EQ(names("Name", "PGN_EXCHANGEAREA"), Rows{"LEEDS"});
    EXPECT_EQ(names("Name", "PNT_EXCHANGEAREANAMES"), Rows{"LEEDS"});
    EXPECT_EQ(names("Exchange", "TblLookup1141"), (Rows{"LEEDS", "NORTHERN", "OTLEY"}));
    EXPECT_EQ(names("Exchange", "TblExchangeArea"), Rows{"OTLEY"}) << "statistics keep their names";
    EXPECT_EQ(names("Reference", "TblGroup_Link"), (Rows{"LS99", "OTLEY"}));
    EXPECT_EQ(project.prompts.texts, Rows{}) << "exchanges are in no groups";
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(OtherNameChanges, ADistrictWithApostrophesLosesThem) {
    gdbProject->execute("UPDATE TblMappingGIS SET PostCode = 'L''S''1' WHERE PostCode = 'LS1'");
    EXPECT_EQ(ModData_CheckPostCodeNameChanges(), 0);
    EXPECT_EQ(valueOf(*gdbProject, "SELECT PostCode FROM TblMappingGIS WHERE [1141] = '0113'"), "LS1");
    EXPECT_EQ(names("Name", "PGN_POSTCODEDISTRICT"), Rows{"LS1"});
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(OtherNameChanges, AFailureIsLoggedUnderItsNameAndReported) {
    gsCurrentProc = "the caller";
    gdbSystem->execute("DROP TABLE PNT_POSTCODEDISTRICTNAMES");
    EXPECT_EQ(ModData_CheckPostCodeNameChanges(), -1);
    gdbSystem->execute("DROP TABLE TblLookup1141");
    EXPECT_EQ(ModData_CheckExchangeNameChanges(), -1);
    EXPECT_EQ(project.logLinesWith("\"ModData_CheckPostCodeNameChanges\""), 1);
    EXPECT_EQ(project.logLinesWith("\"ModData_CheckExchangeNameChanges\""), 1);
    EXPECT_EQ(names("Name", "PGN_POSTCODEDISTRICT"), Rows{"LS1"}) << "what was renamed stays";
    EXPECT_EQ(gsCurrentProc, "the caller");
}

TEST(CorrectExchangeName, KnowsTheSpellingsThatDiffer) {
    struct Name {
        const char* onMap;
        const char* inStatistics;
    };
    for (const Name& name :
         {Name{"BIRMINGHAM NORTHERN", "NORTHERN"}, Name{"JOHN O'GROATS", "JOHN OGROATS"}, Name{"DOUGLAS ()", "DOUGLAS"},
          Name{"SCOURIE/LOCHMORE", "SCOURIE/LOCHMORE"},
          Name{"ECKINGTON (North East Derbyshire Distric", "ECKINGTON (North East Derbyshire)"},
          Name{"WATLINGTON (King's Lynn and W Norfolk)", "WATLINGTON (Kings Lynn and West Norfolk"},
          Name{"WHITELEY", ""}, Name{"whiteley", "whiteley"}, Name{"NOTTINGHAM", "NOTTINGHAM"}, Name{"", ""}})
        EXPECT_EQ(CorrectExchangeName(name.onMap), name.inStatistics) << name.onMap;
}

} // namespace
