#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

long faultOf(const std::function<void()>& action) {
    try {
        action();
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

class Recordsets : public testing::Test {
protected:
    void SetUp() override {
        database->execute(
            "CREATE TABLE TblTV (TVRegion Text(20), TotalCalls1 Long, Cost1 Currency, Stamp DateTime, Done YesNo)");
        for (const char* row : {"'Border', 3, 1.5, #3/31/2025#, True", "'London', 40, 0.25, #4/1/2025 10:00#, False",
                                "'Wales And West', NULL, NULL, NULL, False"})
            database->execute(std::string("INSERT INTO TblTV VALUES (") + row + ")");
    }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database = workspace->createDatabase(folder.file("a.mdb"));
};

TEST_F(Recordsets, GiveValuesInTheKindOfTheirColumns) {
    const auto rows = database->openRecordset("TblTV");
    EXPECT_EQ(rows->value("tvregion"), Value("Border"));
    EXPECT_EQ(rows->value("TotalCalls1"), Value(3));
    EXPECT_EQ(rows->value("Cost1"), Value(Money{15000}));
    EXPECT_EQ(rows->value("Stamp"), Value(dateOf({2025, 3, 31, 0, 0, 0})));
    EXPECT_EQ(rows->value(4), Value(true));
    rows->MoveLast();
    EXPECT_TRUE(rows->value("Cost1").isNull());
}

TEST_F(Recordsets, CursorStopsAtBothEnds) {
    const auto rows = database->openRecordset("SELECT * FROM TblTV ORDER BY TVRegion");
    EXPECT_EQ(rows->RecordCount(), 3);
    rows->MovePrevious();
    EXPECT_TRUE(rows->BOF_());
    EXPECT_EQ(faultOf([&] { rows->value(0); }), 3021);
    rows->MoveLast();
    rows->MoveNext();
    EXPECT_TRUE(rows->EOF_());
    EXPECT_EQ(faultOf([&] { rows->MoveNext(); }), 3021);
    EXPECT_EQ(rows->AbsolutePosition(), -1);
    const auto none = database->openRecordset("SELECT * FROM TblTV WHERE TVRegion = 'Nowhere'");
    EXPECT_TRUE(none->EOF_());
    EXPECT_EQ(faultOf([&] { none->MoveFirst(); }), 3021);
    EXPECT_EQ(faultOf([&] { none->Edit(); }), 3021);
    EXPECT_EQ(faultOf([&] { rows->value("Nothing"); }), 3265);
}

TEST_F(Recordsets, SearchesGoForwardAndAFailedOneLeavesTheRow) {
    const auto rows = database->openRecordset("SELECT * FROM TblTV ORDER BY TVRegion");
    rows->FindFirst("TVRegion = 'LONDON'");
    ASSERT_FALSE(rows->NoMatch());
    EXPECT_EQ(rows->AbsolutePosition(), 1);
    rows->FindNext("TVRegion = 'London'");
    EXPECT_TRUE(rows->NoMatch());
    EXPECT_EQ(rows->AbsolutePosition(), 1);
    rows->FindNext("TotalCalls1 Is Null");
    EXPECT_EQ(rows->AbsolutePosition(), 2);
    EXPECT_EQ(faultOf([&] { rows->FindFirst("TVRegion = 'KING'S LYNN'"); }) == 0, false);
    EXPECT_EQ(rows->AbsolutePosition(), 2);
}

TEST_F(Recordsets, EditsReachTheRowTheyCameFrom) {
    const auto rows = database->openRecordset("SELECT TVRegion, TotalCalls1, Cost1 FROM TblTV ORDER BY TVRegion DESC");
    rows->FindFirst("TVRegion = 'London'");
    rows->Edit();
    rows->set("TotalCalls1", "41");
    rows->set("Cost1", 0.12345);
    rows->Update();
    EXPECT_EQ(rows->value("Cost1"), Value(Money{1234}));
    rows->AddNew();
    rows->set("TVRegion", "VOIP");
    rows->Update();
    rows->MoveLast();
    EXPECT_EQ(rows->value("TVRegion").asText(), "VOIP");
    rows->MoveFirst();
    rows->Delete();
    EXPECT_EQ(faultOf([&] { rows->value(0); }), 3021);
    rows->MoveNext();
    EXPECT_EQ(rows->value("TVRegion").asText(), "London");
    const auto after = database->openRecordset("SELECT TVRegion, TotalCalls1 FROM TblTV ORDER BY TVRegion");
    ASSERT_EQ(after->RecordCount(), 3);
    after->FindFirst("TotalCalls1 = 41");
    EXPECT_EQ(after->value("TVRegion").asText(), "London");
}

TEST_F(Recordsets, RefuseWhatTheColumnCannotTake) {
    const auto rows = database->openRecordset("TblTV");
    EXPECT_EQ(faultOf([&] { rows->set(0, "x"); }), 3020);
    rows->Edit();
    EXPECT_EQ(faultOf([&] { rows->set("TotalCalls1", "many"); }), 3421);
    EXPECT_EQ(faultOf([&] { rows->set("TotalCalls1", 3e9); }), 6);
    EXPECT_EQ(faultOf([&] { rows->set("TVRegion", "A region with a name too long"); }), 3163);
    EXPECT_EQ(faultOf([&] { rows->set("Stamp", "soon"); }), 3421);
    rows->CancelUpdate();
    EXPECT_EQ(faultOf([&] { rows->Update(); }), 3020);
    EXPECT_EQ(faultOf([&] { database->openRecordset("SELECT Count(*) AS n FROM TblTV")->Edit(); }), 3027);
}

TEST_F(Recordsets, AClosedHandleIsNoLongerSet) {
    const auto rows = database->openRecordset("TblTV");
    rows->Close();
    EXPECT_EQ(faultOf([&] { rows->MoveNext(); }), 3420);
    database->close();
    EXPECT_EQ(faultOf([&] { database->execute("DELETE * FROM TblTV"); }), 3420);
    EXPECT_EQ(faultOf([&] { database->openRecordset("TblTV"); }), 3420);
    EXPECT_EQ(faultOf([&] { database->tableDefs(); }), 3420);
}

TEST_F(Recordsets, AStatementThatFailsHalfwayChangesNothing) {
    database->execute("CREATE UNIQUE INDEX Once ON TblTV (TVRegion)");
    EXPECT_EQ(faultOf([&] { database->execute("UPDATE TblTV SET TVRegion = 'Same'"); }), 3022);
    EXPECT_EQ(database->openRecordset("SELECT * FROM TblTV WHERE TVRegion = 'Same'")->RecordCount(), 0);
    database->execute("DELETE * FROM TblTV WHERE TotalCalls1 > 1");
    EXPECT_EQ(database->recordsAffected(), 2);
}

} // namespace
