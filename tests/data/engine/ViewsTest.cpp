#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

class Views : public testing::Test {
protected:
    void SetUp() override {
        database->execute("CREATE TABLE Calls (Code Text(20), Price Currency, [Day] DateTime)");
        database->execute("CREATE TABLE Places (Code Text(20), Area Text(30))");
        database->execute("INSERT INTO Calls VALUES ('a', 1.5, #1/2/2025#)");
        database->execute("INSERT INTO Calls VALUES ('A ', 2, #1/3/2025#)");
        database->execute("INSERT INTO Places VALUES ('A', 'Leeds')");
        database->createView("Shown", "SELECT Calls.Price, Places.Area, Calls.Price * 2 AS Twice FROM Calls INNER JOIN "
                                      "Places ON Calls.Code = Places.Code WHERE Calls.[Day] >= #1/2/2025# AND "
                                      "Calls.Code Like 'a*' ORDER BY Price");
    }

    static long faultOf(const std::function<void()>& action) {
        try {
            action();
            return 0;
        } catch (const DatabaseError& error) {
            return error.number();
        }
    }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database = workspace->createDatabase(folder.file("a.mdb"));
};

TEST_F(Views, ShowTheRowsOfTheirQueryAsTheyAreNow) {
    database->execute("INSERT INTO Calls VALUES ('a', 0.25, #1/4/2025#)");
    const auto rows = database->openRecordset("SELECT * FROM Shown WHERE area = 'LEEDS'");
    ASSERT_EQ(rows->RecordCount(), 3);
    EXPECT_EQ(rows->value("Price"), Value(Money{2500}));
    EXPECT_EQ(rows->value("Twice").asDouble(), 0.5);
    EXPECT_EQ(faultOf([&] { database->execute("DELETE FROM Shown"); }), 3073);
    EXPECT_EQ(faultOf([&] { rows->Edit(); }), 3027);
}

/// The file is attached under another name there.
TEST_F(Views, AreThereInAnotherSessionAndThroughALink) {
    database.reset();
    const auto other = Workspace::create();
    const auto second = other->createDatabase(folder.file("b.mdb"));
    const auto first = other->openDatabase(folder.file("a.mdb"));
    TableDef link = second->createTableDef("Linked");
    link.connect = "MS Access;DATABASE=" + folder.file("a.mdb");
    link.sourceTableName = "Shown";
    second->tableDefs().append(link);
    EXPECT_EQ(first->openRecordset("Shown")->RecordCount(), 2);
    EXPECT_EQ(second->openRecordset("SELECT Sum(Price) FROM Linked")->value(0).asDouble(), 3.5);
}

TEST_F(Views, AreDroppedAsTablesAreAndGiveTheirNameToTables) {
    EXPECT_EQ(faultOf([&] { database->createView("shown", "SELECT * FROM Calls"); }), 3010);
    EXPECT_EQ(faultOf([&] { database->execute("SELECT * INTO Shown FROM Calls"); }), 3010);
    database->execute("DROP TABLE Shown");
    database->execute("SELECT * INTO Shown FROM Calls");
    EXPECT_EQ(faultOf([&] { database->createView("Shown", "SELECT * FROM Calls"); }), 3010);
    database->tableDefs().remove("Shown");
    database->createView("Shown", "SELECT Code FROM Calls");
    EXPECT_EQ(database->openRecordset("Shown")->fieldCount(), 1);
    database->tableDefs().refresh();
    database->tableDefs().remove("Shown");
    EXPECT_EQ(database->tableDefs().find("Shown"), nullptr);
}

/// Tables come and go below a view, as the geography of a project does.
TEST_F(Views, DoNoHarmWhereWhatTheyShowHasGone) {
    database->execute("ALTER TABLE Calls DROP COLUMN Price");
    EXPECT_NE(faultOf([&] { database->openRecordset("Shown"); }), 0);
    database->execute("DROP TABLE Places");
    EXPECT_NE(database->tableDefs().find("Shown"), nullptr);
    EXPECT_EQ(database->openRecordset("Calls")->RecordCount(), 2);
    database->execute("ALTER TABLE Calls ADD COLUMN Price Currency");
    database->execute("SELECT Code, 'Hull' AS Area INTO Places FROM Calls");
    EXPECT_EQ(database->openRecordset("Shown")->RecordCount(), 4);
    database->execute("DROP TABLE Places");
    database->execute("DROP TABLE Shown");
    EXPECT_EQ(faultOf([&] { database->openRecordset("Shown"); }), 3078);
}

TEST_F(Views, ShowTablesOfTheirOwnFileOnly) {
    const auto second = workspace->createDatabase(folder.file("b.mdb"));
    TableDef link = second->createTableDef("Linked");
    link.connect = "MS Access;DATABASE=" + folder.file("a.mdb");
    link.sourceTableName = "Calls";
    second->tableDefs().append(link);
    EXPECT_EQ(faultOf([&] { second->createView("V", "SELECT * FROM Linked"); }), 3078);
    EXPECT_EQ(faultOf([&] { second->createView("V", "SELECT * FROM [" + folder.file("a.mdb") + "].[Calls]"); }), 3078);
    EXPECT_EQ(faultOf([&] { database->createView("V", "DELETE FROM Calls"); }), 3219);
    const auto readOnly = workspace->openDatabase(folder.file("a.mdb"), Workspace::Access::ReadOnly);
    EXPECT_EQ(faultOf([&] { readOnly->createView("V", "SELECT * FROM Calls"); }), 3027);
}

} // namespace
