#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <utility>
#include <vector>

namespace {

Field field(const char* name, FieldType type, int size = 0) {
    Field made;
    made.name = name;
    made.type = type;
    made.size = size;
    return made;
}

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
    rows->Edit();
    rows->Close();
    const std::function<void()> members[] = {
        [&] { rows->EOF_(); },        [&] { rows->BOF_(); },
        [&] { rows->RecordCount(); }, [&] { rows->AbsolutePosition(); },
        [&] { rows->MoveFirst(); },   [&] { rows->MoveLast(); },
        [&] { rows->MoveNext(); },    [&] { rows->MovePrevious(); },
        [&] { rows->NoMatch(); },     [&] { rows->FindFirst("TotalCalls1 = 3"); },
        [&] { rows->fieldCount(); },  [&] { rows->FindNext("TVRegion = 'Wales'"); },
        [&] { rows->field(0); },      [&] { rows->FindLast("TVRegion Like 'W*'"); },
        [&] { rows->value(0); },      [&] { rows->FindPrevious("("); },
        [&] { rows->value("None"); }, [&] { rows->set(0, "x"); },
        [&] { rows->Edit(); },        [&] { rows->set("None", "x"); },
        [&] { rows->AddNew(); },      [&] { rows->CancelUpdate(); },
        [&] { rows->Update(); },      [&] { rows->Delete(); },
        [&] { rows->Requery(); },     [&] { rows->Close(); },
    };
    for (std::size_t i = 0; i < std::size(members); ++i)
        EXPECT_EQ(faultOf(members[i]), 3420) << "member " << i;

    TableDefs& tables = database->tableDefs();
    const TableDef definition = *tables.find("TblTV");
    database->close();
    const std::function<void()> ofDatabase[] = {
        [&] { database->close(); },
        [&] { database->name(); },
        [&] { database->execute("DELETE * FROM TblTV"); },
        [&] { database->recordsAffected(); },
        [&] { database->openRecordset("TblTV"); },
        [&] { database->run("DELETE * FROM TblTV"); },
        [&] { database->translate("TblTV"); },
        [&] { database->tableDefs(); },
        [&] { database->createTableDef("T"); },
        [&] { database->connection(); },
        [&] { database->schema(); },
        [&] { tables.refresh(); },
        [&] { tables.count(); },
        [&] { tables.at(0); },
        [&] { tables.find("TblTV"); },
        [&] { tables.append(definition); },
        [&] { tables.remove("TblTV"); },
        [&] { tables.refreshLink(definition); },
        [&] { tables.appendField("TblTV", field("X", FieldType::Long)); },
        [&] { tables.removeField("TblTV", "Cost1"); },
    };
    for (std::size_t i = 0; i < std::size(ofDatabase); ++i)
        EXPECT_EQ(faultOf(ofDatabase[i]), 3420) << "member of the database " << i;
    EXPECT_FALSE(database->isOpen());
}

TEST_F(Recordsets, AStatementThatFailsHalfwayChangesNothing) {
    database->execute("CREATE UNIQUE INDEX Once ON TblTV (TVRegion)");
    EXPECT_EQ(faultOf([&] { database->execute("UPDATE TblTV SET TVRegion = 'Same'"); }), 3022);
    EXPECT_EQ(database->openRecordset("SELECT * FROM TblTV WHERE TVRegion = 'Same'")->RecordCount(), 0);
    database->execute("DELETE * FROM TblTV WHERE TotalCalls1 > 1");
    EXPECT_EQ(database->recordsAffected(), 2);
}

TEST_F(Recordsets, SearchesForANameIgnoreCaseAndTrailingBlanksAndSeeEdits) {
    database->execute("INSERT INTO TblTV VALUES ('london  ', 7, Null, Null, False)");
    database->execute("INSERT INTO TblTV VALUES (Null, 8, Null, Null, False)");
    const auto rows = database->openRecordset("SELECT * FROM TblTV ORDER BY TotalCalls1");
    const auto positions = [&](const std::string& expression) {
        std::vector<long> found;
        for (rows->FindFirst(expression); !rows->NoMatch(); rows->FindNext(expression))
            found.push_back(rows->AbsolutePosition());
        return found;
    };
    using Positions = std::vector<long>;
    for (const char* expression : {"TVRegion = 'LONDON'", "[tvregion]='London '", "UCASE(TVRegion) = 'LONDON'",
                                   "TVRegion = \"london\"", "TVRegion Like 'l*'", "TVRegion = 'lon' & 'don'"})
        EXPECT_EQ(positions(expression), (Positions{2, 4})) << expression;
    EXPECT_EQ(positions("TVRegion = ''"), Positions{});

    rows->FindFirst("TVRegion = 'Border'");
    rows->Edit();
    rows->set("TVRegion", "LONDON");
    rows->Update();
    EXPECT_EQ(positions("TVRegion = 'london'"), (Positions{1, 2, 4}));
    rows->AddNew();
    rows->set("TVRegion", "London");
    rows->Update();
    EXPECT_EQ(positions("TVRegion = 'london'"), (Positions{1, 2, 4, 5}));
    rows->MoveFirst();
    rows->Delete();
    EXPECT_EQ(positions("TVRegion = 'london'"), (Positions{0, 1, 3, 4}));
    database->execute("UPDATE TblTV SET TVRegion = 'Ulster' WHERE TotalCalls1 = 40");
    rows->Requery();
    EXPECT_EQ(positions("TVRegion = 'ulster'").size(), 1u);
}

TEST_F(Recordsets, ABadSearchNamesItsPlaceAndLeavesTheRow) {
    const auto rows = database->openRecordset("TblTV");
    rows->MoveNext();
    const std::pair<const char*, long> bad[] = {{"TVRegion = 'KING'S LYNN'", 3077},
                                                {"TVRegion = ", 3077},
                                                {"Nothing = 'x'", 3070},
                                                {"TVRegion = 'x' AND", 3077},
                                                {"Count(*) > 1", 3077},
                                                {"", 3077},
                                                {"TVRegion = 5", 3464},
                                                {"TotalCalls1 = 'x'", 3464}};
    for (const auto& [expression, number] : bad) {
        EXPECT_EQ(faultOf([&, text = expression] { rows->FindFirst(text); }), number) << expression;
        EXPECT_EQ(rows->AbsolutePosition(), 1) << expression;
    }
}

TEST_F(Recordsets, EditTheirRowThroughAliasesOrderAndCalculatedColumns) {
    const auto rows = database->openRecordset(
        "SELECT t.TVRegion AS Area, t.TotalCalls1, t.TotalCalls1 * 2 AS Twice FROM TblTV AS t WHERE t.TotalCalls1 > 1 "
        "ORDER BY t.TotalCalls1 DESC");
    ASSERT_EQ(rows->value("Area").asText(), "London");
    rows->Edit();
    EXPECT_EQ(faultOf([&] { rows->set("Twice", 1); }), 3164);
    rows->set("Area", "LWT");
    rows->Update();
    EXPECT_EQ(database->openRecordset("SELECT * FROM TblTV WHERE TVRegion = 'LWT' AND TotalCalls1 = 40")->RecordCount(),
              1);
    for (const char* many : {"SELECT DISTINCT TVRegion FROM TblTV", "SELECT a.TVRegion FROM TblTV AS a, TblTV AS b",
                             "SELECT TVRegion FROM TblTV UNION SELECT 'x' FROM TblTV", "SELECT 1 AS n"})
        EXPECT_EQ(faultOf([&, query = many] { database->openRecordset(query)->Edit(); }), 3027) << many;
}

TEST_F(Recordsets, ShowWhatTheTableMakesOfANewRow) {
    database->execute("CREATE TABLE Numbered (Id Counter PRIMARY KEY, Name Text(10) DEFAULT 'none', Ok YesNo, N Long)");
    const auto rows = database->openRecordset("Numbered");
    for (int i = 0; i < 2; ++i) {
        rows->AddNew();
        EXPECT_EQ(rows->value("Name"), Value("none"));
        EXPECT_EQ(rows->value("Ok"), Value(false));
        EXPECT_TRUE(rows->value("N").isNull());
        rows->set("N", i);
        rows->Update();
    }
    rows->MoveLast();
    EXPECT_EQ(rows->value("Id"), Value(2));
    EXPECT_EQ(rows->value("Name"), Value("none"));
    EXPECT_EQ(rows->value("Ok"), Value(false));
    EXPECT_EQ(rows->RecordCount(), 2);
}

TEST_F(Recordsets, ARefusedRowStaysOpenForAnotherTry) {
    TableDef definition = database->createTableDef("Keys");
    definition.fields = {Field{"Code", FieldType::Text, 5, true, false, {}}, field("N", FieldType::Long)};
    database->tableDefs().append(definition);
    database->execute("CREATE UNIQUE INDEX Once ON Keys (Code)");
    database->execute("INSERT INTO Keys VALUES ('a', 1)");
    const auto rows = database->openRecordset("Keys");
    rows->AddNew();
    rows->set("N", 2);
    EXPECT_EQ(faultOf([&] { rows->Update(); }), 3314);
    rows->set("Code", "");
    EXPECT_EQ(faultOf([&] { rows->Update(); }), 3315);
    rows->set("Code", "A ");
    EXPECT_EQ(faultOf([&] { rows->Update(); }), 3022);
    rows->set("Code", "b");
    rows->Update();
    EXPECT_EQ(database->openRecordset("SELECT * FROM Keys WHERE Code = 'b' AND N = 2")->RecordCount(), 1);

    rows->MoveFirst();
    database->execute("DELETE * FROM Keys WHERE Code = 'a'");
    rows->Edit();
    rows->set("N", 3);
    EXPECT_EQ(faultOf([&] { rows->Update(); }), 3167);
    rows->CancelUpdate();
    EXPECT_EQ(rows->value("N"), Value(1));
}

TEST_F(Recordsets, TablesWithColumnsNamedLikeTheLibrarysRowNumbers) {
    database->execute("CREATE TABLE Odd (rowid Text(5), oid Long, N Long)");
    database->execute("INSERT INTO Odd VALUES ('x', 7, 1)");
    database->execute("INSERT INTO Odd VALUES ('y', 7, 2)");
    const auto rows = database->openRecordset("Odd");
    rows->FindFirst("rowid = 'y'");
    rows->Edit();
    rows->set("N", 3);
    rows->Update();
    rows->MoveFirst();
    rows->Delete();
    const auto left = database->openRecordset("Odd");
    ASSERT_EQ(left->RecordCount(), 1);
    EXPECT_EQ(left->value("N"), Value(3));
    database->execute("ALTER TABLE Odd ADD COLUMN [_rowid_] Long"); // now no row can be told from another
    const auto still = database->openRecordset("Odd");
    EXPECT_EQ(still->value("N"), Value(3));
    EXPECT_EQ(faultOf([&] { still->Edit(); }), 3027);
}

TEST_F(Recordsets, MovingAwayDropsAnEditAndRequeryReadsAnew) {
    const auto rows = database->openRecordset("SELECT * FROM TblTV ORDER BY TVRegion");
    rows->Edit();
    rows->set("TVRegion", "x");
    rows->MoveNext();
    rows->MoveFirst();
    EXPECT_EQ(rows->value("TVRegion").asText(), "Border");
    database->execute("DELETE * FROM TblTV WHERE TVRegion = 'Border'");
    rows->Requery();
    EXPECT_EQ(rows->value("TVRegion").asText(), "London");
    rows->MoveLast();
    EXPECT_EQ(rows->RecordCount(), 2);
    database->execute("DROP TABLE TblTV");
    EXPECT_EQ(faultOf([&] { rows->Requery(); }), 3078);
    EXPECT_EQ(rows->RecordCount(), 2);
}

TEST_F(Recordsets, OutliveOtherHandlesAndTheirOwn) {
    auto other = workspace->openDatabase(folder.file("a.mdb"));
    const auto rows = database->openRecordset("TblTV");
    other->close();
    database->close();
    workspace.reset();
    rows->MoveLast();
    rows->Edit();
    rows->set("TotalCalls1", 5);
    rows->Update();
    EXPECT_EQ(rows->value("TotalCalls1"), Value(5));
}

TEST_F(Recordsets, EmptyOnesHaveNoCurrentRowButTakeNewOnes) {
    const auto rows = database->openRecordset("SELECT * FROM TblTV WHERE TotalCalls1 > 1000");
    EXPECT_TRUE(rows->EOF_() && rows->BOF_());
    for (const auto& move :
         {&Recordset::MoveFirst, &Recordset::MoveLast, &Recordset::MoveNext, &Recordset::MovePrevious})
        EXPECT_EQ(faultOf([&] { ((*rows).*move)(); }), 3021);
    rows->FindFirst("TVRegion = 'London'");
    EXPECT_TRUE(rows->NoMatch());
    rows->AddNew();
    rows->set("TVRegion", "Ulster");
    EXPECT_EQ(rows->value("TVRegion"), Value("Ulster"));
    rows->Update();
    EXPECT_EQ(rows->RecordCount(), 1);
}

TEST_F(Recordsets, AppendToTheTableBehindAConditionAndOverwriteWhatAStatementChanged) {
    const auto rows = database->openRecordset("SELECT TVRegion, TotalCalls1 FROM TblTV WHERE TotalCalls1 > 10");
    rows->AddNew();
    rows->set("TVRegion", "Ulster");
    rows->set("TotalCalls1", 1);
    rows->Update();
    EXPECT_EQ(rows->RecordCount(), 2);
    EXPECT_EQ(rows->value("TVRegion"), Value("London"));
    database->execute("UPDATE TblTV SET TotalCalls1 = 99, Cost1 = 7 WHERE TVRegion = 'London'");
    EXPECT_EQ(rows->value("TotalCalls1"), Value(40));
    rows->Edit();
    rows->set("TotalCalls1", 41);
    rows->Update();
    const auto london = database->openRecordset("SELECT * FROM TblTV WHERE TVRegion = 'London'");
    EXPECT_EQ(london->value("TotalCalls1"), Value(41));
    EXPECT_EQ(london->value("Cost1"), Value(Money{70000}));
    rows->Requery();
    EXPECT_EQ(rows->RecordCount(), 1);
}

TEST_F(Recordsets, ARowThatIsGoneCannotBeDeletedTwiceButLeavesTheRows) {
    const auto rows = database->openRecordset("TblTV");
    database->execute("DELETE * FROM TblTV WHERE TVRegion = 'Border'");
    EXPECT_EQ(faultOf([&] { rows->Delete(); }), 3167);
    EXPECT_EQ(rows->RecordCount(), 3);
    rows->MoveNext();
    rows->Delete();
    EXPECT_EQ(faultOf([&] { rows->Delete(); }), 3021);
    EXPECT_EQ(faultOf([&] { rows->Edit(); }), 3021);
    EXPECT_EQ(database->openRecordset("TblTV")->RecordCount(), 1);
}

} // namespace
