#include "stats/ModData_CheckNameChanges.h"

#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

/// A project that calls codes 01 and 02 "Thames" where the lookup and the map still say "London".
class NameChanges : public testing::Test {
protected:
    void SetUp() override {
        installation.addPlaces({{"01", "Thames"},
                                {"02", "Thames"},
                                {"03", "Granada"},
                                {"MOBILE", "mobile"},
                                {".33", ".France"},
                                {"VOIP", "VOIP"}});
        for (const char* row : {"'01', 'London'", "'02', 'London'", "'03', 'Granada'"})
            gdbSystem->execute(std::string("INSERT INTO TblLookup1141 ([1141], TVArea) VALUES (") + row + ")");
        for (const char* name : {"London", "Granada"}) {
            gdbSystem->execute(std::string("INSERT INTO PGN_TV (Name, POLYGONID) VALUES ('") + name + "', 1)");
            gdbSystem->execute(std::string("INSERT INTO PNT_TVNAMES (Name) VALUES ('") + name + "')");
            gdbSystem->execute(std::string("INSERT INTO TblTV (TVRegion) VALUES ('") + name + "')");
        }
        attach("TblGIS_Link", "TblMappingGIS", "project.mdb");
        attach("TblGroup_Link", "TblGroups", "CustomerGroups.mdb");
        attach("tblMappingGroupSetup_Link", "tblMappingGroupSetup", "CustomerGroups.mdb");
    }

    void attach(const char* name, const char* source, const char* file) {
        TableDef link = gdbSystem->createTableDef(name);
        link.connect = "MS Access;DATABASE=" + installation.file(file) + ";PWD=QzMarlKey";
        link.sourceTableName = source;
        gdbSystem->tableDefs().append(link);
    }

    void addGroupRow(const std::string& account, const std::string& reference) {
        gdbSystem->execute("INSERT INTO TblGroup_Link (TallyAccount, Reference, GroupName) VALUES ('" + account +
                           "', '" + reference + "', 'North')");
    }
    Rows groupReferences() {
        return rowsOf(*gdbSystem, "SELECT TallyAccount, Reference FROM TblGroup_Link ORDER BY TallyAccount, Reference");
    }

    SmallInstallation installation;
    ScriptedPrompts prompts;
};

TEST_F(NameChanges, KnownNamesChangeNothing) {
    gdbProject->execute("UPDATE TblMappingGIS SET TVArea = 'London' WHERE TVArea = 'Thames'");
    ModData_CheckTVNameChanges();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT DISTINCT TVArea FROM TblLookup1141 ORDER BY TVArea"),
              (Rows{"Granada", "London"}));
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TVArea FROM TblTemp1 ORDER BY TVArea"), (Rows{"Granada", "London"}))
        << "neither areas beside the map nor areas abroad are names";
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(NameChanges, AnOldNameOfTheMapGivesWayToTheProjects) {
    ModData_CheckTVNameChanges();
    for (const char* query :
         {"SELECT Name FROM PGN_TV ORDER BY Name", "SELECT Name FROM PNT_TVNAMES ORDER BY Name",
          "SELECT DISTINCT TVArea FROM TblLookup1141 ORDER BY TVArea", "SELECT TVRegion FROM TblTV ORDER BY TVRegion"})
        EXPECT_EQ(rowsOf(*gdbSystem, query), (Rows{"Granada", "Thames"})) << query;
    EXPECT_EQ(prompts.texts, Rows{}) << "no group has the old name";
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(NameChanges, ANameThatTheMapHasCorrectsTheLookupAlone) {
    gdbSystem->execute("INSERT INTO PGN_TV (Name, POLYGONID) VALUES ('Thames', 2)");
    gdbSystem->execute("INSERT INTO TblLookup1141 ([1141], TVArea) VALUES ('09', 'London')");
    ModData_CheckTVNameChanges();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT [1141], TVArea FROM TblLookup1141 ORDER BY [1141]"),
              (Rows{"01|Thames", "02|Thames", "03|Granada", "09|London"}))
        << "a code that the project does not have keeps its name";
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TVRegion FROM TblTV ORDER BY TVRegion"), (Rows{"Granada", "London"}));
}

TEST_F(NameChanges, GroupsFollowWhenTheUserAgreesOnce) {
    gdbProject->execute("UPDATE TblMappingGIS SET TVArea = 'North West' WHERE TVArea = 'Granada'");
    addGroupRow("ACC", "London");
    addGroupRow("ACC", "Granada");
    addGroupRow("ELSE", "London");
    prompts.answers = {PromptAnswer::Yes};
    ModData_CheckTVNameChanges();
    EXPECT_EQ(groupReferences(), (Rows{"ACC|North West", "ACC|Thames", "ELSE|London"}));
    ASSERT_EQ(prompts.texts.size(), 1U);
    EXPECT_TRUE(prompts.texts[0].starts_with("Name changes have been detected in the GIS file."));
}

TEST_F(NameChanges, ANoLeavesTheGroupsAndIsNotAskedAgain) {
    gdbProject->execute("UPDATE TblMappingGIS SET TVArea = 'North West' WHERE TVArea = 'Granada'");
    addGroupRow("ACC", "London");
    addGroupRow("ACC", "Granada");
    prompts.answers = {PromptAnswer::No};
    ModData_CheckTVNameChanges();
    EXPECT_EQ(groupReferences(), (Rows{"ACC|Granada", "ACC|London"}));
    EXPECT_EQ(prompts.texts.size(), 1U);
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Name FROM PGN_TV ORDER BY Name"), (Rows{"North West", "Thames"}));
}

TEST_F(NameChanges, AGroupNamedAsItsOnlyRegionIsRenamedWhereGroupsAreMadeOfRegions) {
    for (const char* type : {"3", "2"}) {
        gdbSystem->execute("DELETE FROM TblCustomerGroups");
        gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName) VALUES ('London')");
        gdbSystem->execute("DELETE FROM tblMappingGroupSetup_Link");
        gdbSystem->execute(
            std::string("INSERT INTO tblMappingGroupSetup_Link (TallyAccount, DataType) VALUES ('ACC', '") + type +
            "')");
        gdbSystem->execute("UPDATE TblLookup1141 SET TVArea = 'London' WHERE TVArea = 'Thames'");
        gdbSystem->execute("UPDATE PGN_TV SET Name = 'London' WHERE Name = 'Thames'");
        ModData_CheckTVNameChanges();
        EXPECT_EQ(valueOf(*gdbSystem, "SELECT GroupName FROM TblCustomerGroups"),
                  std::string(type) == "2" ? "Thames" : "London");
    }
}

TEST_F(NameChanges, EveryApostropheOfTheProjectIsRemoved) {
    gdbProject->execute("UPDATE TblMappingGIS SET TVArea = 'King''s and Queen''s' WHERE TVArea = 'Thames'");
    ModData_CheckTVNameChanges();
    EXPECT_EQ(rowsOf(*gdbProject, "SELECT DISTINCT TVArea FROM TblMappingGIS WHERE [1141] IN ('01', '02')"),
              Rows{"Kings and Queens"});
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Name FROM PGN_TV ORDER BY Name"), (Rows{"Granada", "Kings and Queens"}));
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(NameChanges, AGroupThatIsDrawnKeepsItsName) {
    gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName) VALUES ('London')");
    gdbSystem->execute("INSERT INTO PGN_GROUPS (GROUPNAME) VALUES ('London')");
    gdbSystem->execute("INSERT INTO tblMappingGroupSetup_Link (TallyAccount, DataType) VALUES ('ACC', '2')");
    ModData_CheckTVNameChanges();
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT GroupName FROM TblCustomerGroups"), "London");
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TVRegion FROM TblTV WHERE TVRegion = 'Thames'"), "Thames");
}

TEST_F(NameChanges, TheOldNameIsTheOneThatMostCodesHave) {
    installation.addPlaces({{"04", "Thames"}, {"05", "Thames"}});
    for (const char* row : {"'04', 'Anglia'", "'05', 'Anglia'", "'05', 'Anglia'"})
        gdbSystem->execute(std::string("INSERT INTO TblLookup1141 ([1141], TVArea) VALUES (") + row + ")");
    gdbSystem->execute("INSERT INTO PGN_TV (Name, POLYGONID) VALUES ('Anglia', 3)");
    ModData_CheckTVNameChanges();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Name FROM PGN_TV ORDER BY Name"), (Rows{"Granada", "London", "Thames"}))
        << "three codes against two";
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT DISTINCT TVArea FROM TblLookup1141 ORDER BY TVArea"),
              (Rows{"Granada", "London", "Thames"}));
}

TEST_F(NameChanges, ANameWithoutShapeAndLookupIsLeftAlone) {
    gdbProject->execute("DELETE FROM TblMappingGIS WHERE TVArea = 'Thames'");
    installation.addPlaces({{"77", "Nowhere"}, {"78", "null"}});
    ModData_CheckTVNameChanges();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Name FROM PGN_TV ORDER BY Name"), (Rows{"Granada", "London"}));
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT DISTINCT TVArea FROM TblLookup1141 ORDER BY TVArea"),
              (Rows{"Granada", "London"}));
    EXPECT_EQ(valueOf(*gdbProject, "SELECT TVArea FROM TblMappingGIS WHERE [1141] = '77'"), "Nowhere");
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(NameChanges, NamesAreComparedByTheirFirstTwentyCharacters) {
    gdbProject->execute("UPDATE TblMappingGIS SET TVArea = 'The Thames Valley and London' WHERE TVArea = 'Thames'");
    gdbSystem->execute("UPDATE TblLookup1141 SET TVArea = 'The Thames Valley and else' WHERE TVArea = 'London'");
    ModData_CheckTVNameChanges();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Name FROM PGN_TV ORDER BY Name"), (Rows{"Granada", "London"}));
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TVArea FROM TblTemp1 ORDER BY TVArea"),
              (Rows{"Granada", "The Thames Valley an"}));
}

/// Counts yields.
class YieldCount : public Progress {
public:
    YieldCount() { setProgress(this); }
    ~YieldCount() override { setProgress(nullptr); }
    void yield() override { ++count; }
    int count = 0;
};

TEST_F(NameChanges, EachNameYieldsOnce) {
    YieldCount yields;
    ModData_CheckTVNameChanges();
    EXPECT_EQ(yields.count, 1);
    installation.addPlaces({{"77", "Nowhere"}, {"78", "Neverland"}});
    ModData_CheckTVNameChanges();
    EXPECT_EQ(yields.count, 3) << "Thames is known by now";
}

TEST_F(NameChanges, AnErrorEndsTheProcedureAndKeepsWhatWasRenamed) {
    gdbSystem->execute("DROP TABLE PNT_TVNAMES");
    ModData_CheckTVNameChanges();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Name FROM PGN_TV ORDER BY Name"), (Rows{"Granada", "Thames"}));
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TVRegion FROM TblTV ORDER BY TVRegion"), (Rows{"Granada", "London"}));
    EXPECT_EQ(installation.logLinesWith("\"ModData_CheckTVNameChanges\""), 1);
}

} // namespace
