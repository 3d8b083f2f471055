#include "groups/shapes/ModData_CheckLabelCoords.h"
#include "groups/shapes/ModData_UpdateGroupLabels.h"
#include "tests/groups/shapes/GroupInstallation.h"

#include <gtest/gtest.h>

namespace {

class GroupLabels : public testing::Test {
protected:
    /// An area with its box and the height of its centre.
    void addArea(const std::string& name, double lowX, double lowY, double upX, double upY, double centreY,
                 const std::string& table = "PGN_POSTCODEDISTRICT") {
        addPolygon(*gdbSystem, table, 1, name, rectangle(lowX, lowY, upX, upY));
        gdbSystem->execute("UPDATE " + table + " SET CENTERX = -1, CENTERY = " + shortestText(centreY) +
                           " WHERE NAME = '" + name + "'");
    }
    /// The shape of a group, with a centre of its own.
    void addGroup(const std::string& name, double centreX, double centreY, const std::string& account = "ACC") {
        gdbSystem->execute("INSERT INTO PGN_GROUPS (TALLYACCOUNT, GROUPNAME, POLYGONID, CENTERX, CENTERY) VALUES ('" +
                           account + "', " + name + ", 7, " + shortestText(centreX) + ", " + shortestText(centreY) +
                           ")");
    }
    static Rows labels() {
        return rowsOf(*gdbSystem, "SELECT TALLYACCOUNT, NAME, POINTID, XCOORD, YCOORD FROM PNT_GROUPS ORDER BY NAME");
    }
    Rows updated(long dataType = 3) {
        gsCurrentProc = "Caller";
        ModData_UpdateGroupLabels(dataType);
        EXPECT_EQ(gsCurrentProc, "Caller");
        return labels();
    }

    GroupInstallation installation;
};

TEST_F(GroupLabels, OfOneAreaStandInItsBoxAtItsCentreOrMiddleWhicheverIsNearer) {
    addGroup("'Even'", 0.5, 0.25);
    addGroup("'High'", 0.5, 0.25);
    addArea("E1", 0, 0, 101, 50, 25);
    addArea("H1", 1000, 0, 1100, 51, 40);
    installation.addMember("E1", "'Even'");
    installation.addMember("H1", "'High'");
    // The middles 50.5 and 25.5 are rounded to even numbers.
    EXPECT_EQ(updated(), (Rows{"ACC|Even|7|50|25", "ACC|High|7|1050|26"}));
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(GroupLabels, StandOnTheMemberWhoseCentreIsNearestToTheMiddleHeight) {
    addGroup("'Chain'", 0, 0);
    addArea("C1", 0, 0, 100, 100, 50);
    addArea("C2", 200, 400, 300, 500, 470); // the middle height is 500
    addArea("C3", 400, 900, 500, 1000, 950);
    addArea("C4", 600, 500, 700, 600, 530); // as near as C2, but later
    for (const char* member : {"C1", "C2", "C3", "C4"})
        installation.addMember(member, "'Chain'");
    EXPECT_EQ(updated(), Rows{"ACC|Chain|7|250|470"});
}

TEST_F(GroupLabels, OfTwoAreasFarApartStandOnOneOfThem) {
    addGroup("'Isles'", 500, 500);
    addArea("I1", 0, 0, 100, 100, 60);
    addArea("I2", 900, 900, 1000, 1000, 950);
    installation.addMember("I1", "'Isles'");
    installation.addMember("I2", "'Isles'");
    EXPECT_EQ(updated(), Rows{"ACC|Isles|7|50|60"});
}

TEST_F(GroupLabels, ReadEveryCoordinateAsAWholeNumber) {
    addGroup("'North'", 0, 0);
    addArea("N1", 0.6, 10.4, 20.5, 30.6, 21.5); // read as 1, 10, 20, 31 and 22; the middles are 10.5 and 20.5
    installation.addMember("N1", "'North'");
    EXPECT_EQ(updated(), Rows{"ACC|North|7|10|20"});
}

TEST_F(GroupLabels, TakeTheShapesOfTheirKind) {
    for (const auto& [table, x] : {std::pair{"PGN_CSG", 100.0}, {"PGN_TV", 200.0}, {"PGN_POSTCODEDISTRICT", 300.0}})
        addArea("A1", x, 0, x + 20, 20, 10, table);
    addGroup("'North'", 0, 0);
    installation.addMember("A1", "'North'");
    EXPECT_EQ(updated(1), Rows{"ACC|North|7|110|10"});
    EXPECT_EQ(updated(2), Rows{"ACC|North|7|210|10"});
    for (const long dataType : {3L, 0L, 6L, -1L})
        EXPECT_EQ(updated(dataType), Rows{"ACC|North|7|310|10"}) << dataType;
}

TEST_F(GroupLabels, StayInTheMiddleOfTheShapeWithoutAMemberOnTheMap) {
    addGroup("'Elsewhere'", 1.5, 2.5);
    addGroup("'North'", 0, 0);
    addGroup("'Theirs'", 9, 9, "OTHER");
    addArea("N1", 0, 0, 20, 20, 10);
    installation.addMember("N1", "'North'");
    installation.addMember("Atlantis", "'North'");
    installation.addMember("Atlantis", "'Elsewhere'");
    installation.addMember("N1", "'Theirs'", "OTHER");
    installation.addMember("N1", "''");
    installation.addMember("N1", "NULL");
    gdbSystem->execute("INSERT INTO PNT_GROUPS (TALLYACCOUNT, NAME) VALUES ('OTHER', 'Left from before')");
    EXPECT_EQ(updated(), (Rows{"ACC|Elsewhere|7|1.5|2.5", "ACC|North|7|10|10"}));
}

TEST_F(GroupLabels, OfCallAreasAloneStandWhereTheGroupBeforeStands) {
    for (const char* name : {"'Mixed'", "'Phones'"})
        addGroup(name, 3, 4);
    addArea("N1", 0, 0, 20, 20, 10);
    addArea("MOBILE", 500, 500, 600, 600, 550);
    addArea("VOIP", 700, 700, 800, 800, 750);
    installation.addMember("Mobile", "'Phones'");
    installation.addMember("VOIP", "'Phones'");
    EXPECT_EQ(updated(), (Rows{"ACC|Mixed|7|3|4", "ACC|Phones|7|3|4"})) << "no group has an area";

    installation.addMember("N1", "'Mixed'");
    installation.addMember("Mobile", "'Mixed'");
    EXPECT_EQ(updated(), (Rows{"ACC|Mixed|7|10|10", "ACC|Phones|7|10|10"}));
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM TblGroup_LabelName_Temp"), "0");
}

TEST_F(GroupLabels, KeepACopyOfTheMembersWithoutGroupsOfCallAreas) {
    addArea("N1", 0, 0, 20, 20, 10);
    installation.addMember("N1", "'North'");
    installation.addMember("Mobile", "'Phones'");
    installation.addMember("N1", "'Theirs'", "OTHER");
    for (int run = 0; run < 2; ++run) {
        updated();
        EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TallyAccount, Reference, GroupName FROM TblGroup_LabelName_Temp"),
                  Rows{"ACC|N1|North"});
    }
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(GroupLabels, AfterANameWithAnApostropheStayInTheMiddle) {
    addArea("N1", 0, 0, 20, 20, 10);
    for (const char* group : {"'Before'", "'King''s'", "'North'"}) {
        addGroup(group, 3, 4);
        installation.addMember("N1", group);
    }
    EXPECT_EQ(updated(), (Rows{"ACC|Before|7|10|10", "ACC|King's|7|3|4", "ACC|North|7|3|4"}));
    EXPECT_EQ(installation.logLines().size(), 1U);
    EXPECT_EQ(installation.logLinesWith("\"ModData_CheckLabelCoords\",3075"), 1);
}

TEST_F(GroupLabels, AMemberWithoutAPlaceDoesNotCount) {
    addGroup("'Lost'", 3, 4);
    addGroup("'North'", 3, 4);
    addArea("N1", 0, 0, 20, 20, 10);
    gdbSystem->execute("INSERT INTO PGN_POSTCODEDISTRICT (NAME) VALUES ('X1')");
    for (const char* member : {"X1", "N1"})
        installation.addMember(member, "'North'");
    installation.addMember("X1", "'Lost'");
    EXPECT_EQ(updated(), (Rows{"ACC|Lost|7|3|4", "ACC|North|7|10|10"}));
    EXPECT_GT(installation.logLinesWith("\"ModData_UpdateGroupLabels\",94"), 0);
}

TEST_F(GroupLabels, AreChosenForOneGroup) {
    addArea("N1", 0, 0, 20, 20, 12);
    installation.addMember("N1", "'North'");
    std::int32_t x = 1;
    std::int32_t y = 2;
    EXPECT_EQ(ModData_CheckLabelCoords("north", "PGN_POSTCODEDISTRICT", 15, y, x, grsData2), 0);
    EXPECT_EQ(x, 10);
    EXPECT_EQ(y, 12);
    EXPECT_EQ(grsData2, nullptr);
    EXPECT_EQ(ModData_CheckLabelCoords("South", "PGN_POSTCODEDISTRICT", 15, y, x, grsData2), 0);
    EXPECT_NE(ModData_CheckLabelCoords("North", "PGN_NOWHERE", 15, y, x, grsData2), 0);
    EXPECT_EQ(x, 10);
    EXPECT_EQ(y, 12);
}

} // namespace
