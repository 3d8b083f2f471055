#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

using Positions = std::vector<long>;

Positions forward(Recordset& rows, const std::string& expression) {
    Positions found;
    for (rows.FindFirst(expression); !rows.NoMatch(); rows.FindNext(expression))
        found.push_back(rows.AbsolutePosition());
    return found;
}

Positions backward(Recordset& rows, const std::string& expression) {
    Positions found;
    for (rows.FindLast(expression); !rows.NoMatch(); rows.FindPrevious(expression))
        found.insert(found.begin(), rows.AbsolutePosition());
    return found;
}

class RecordsetSearches : public testing::Test {
protected:
    void SetUp() override {
        WorkspaceTransaction transaction(*workspace);
        database->execute(
            "CREATE TABLE Areas (Name Text(20), [1141] Text(10), Calls Long, Cost Currency, Share Double, "
            "Stamp DateTime, Open YesNo)");
        for (const char* row :
             {"'Hull', '1482', 3, 1.5, 0.25, #3/31/2025#, True",
              "'King''s Lynn', '01553', -40, 0.25, 0.1, #4/1/2025 10:00#, False",
              "'hull  ', 'MOBILE', Null, Null, Null, Null, False", "Null, Null, 3, 0.1, 1, #4/1/2025#, True",
              "'', '.33', 0, -2, 0, #1/1/1900#, False", "'HULL', '1482', 7, 1.5, 0.1, #3/31/2025#, True"})
            database->execute(std::string("INSERT INTO Areas VALUES (") + row + ")");
        transaction.commit();
        rows = database->openRecordset("Areas");
    }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database = workspace->createDatabase(folder.file("a.mdb"));
    std::shared_ptr<Recordset> rows;
};

TEST_F(RecordsetSearches, FindTheRowsOfTheExpressionInBothDirections) {
    struct Case {
        const char* expression;
        Positions rows;
    };
    const Case cases[] = {
        {"Name = 'Hull'", {0, 2, 5}},
        {"UCase(Name) = 'HULL' And Calls = 7", {5}},
        {"Name = 'hull' AND Calls Is Null", {2}},
        {"Name = 'Hull' And Calls = 3 Or Calls = 0", {0, 4}},
        {"Name = 'Hull' And (Calls = 3 Or Calls = 7)", {0, 5}},
        {"Name = \"King's Lynn\"", {1}},
        {"Name = 'King''s Lynn'", {1}},
        {"Name = 'Hull' & ''", {0, 2, 5}},
        {"Name = ''", {4}},
        {"[1141] = '1482'", {0, 5}},
        {"[1141] Like '*[0-9]'", {0, 1, 4, 5}},
        {"Calls = 3", {0, 3}},
        {"Calls = -40", {1}},
        {"Calls = 3.0 And Open", {0, 3}},
        {"Calls = 3 + 4", {5}},
        {"Calls = 0", {4}},
        {"Calls = -0", {4}},
        {"Calls Is Null", {2}},
        {"Not (Calls = 3)", {1, 4, 5}},
        {"Cost = 1.5", {0, 5}},
        {"Cost = 0.10", {3}},
        {"Share = 0.1", {1, 5}},
        {"Stamp = #4/1/2025#", {3}},
        {"Stamp >= #4/1/2025#", {1, 3}},
        {"Open = True", {0, 3, 5}},
        {"Open = -1", {0, 3, 5}},
        {"Len(Name) > 4 And IsNull(Name) = False", {1, 2}},
        {"Name = 'Nowhere'", {}},
        {"Name = Null", {}},
    };
    for (const Case& search : cases) {
        EXPECT_EQ(forward(*rows, search.expression), search.rows) << search.expression;
        EXPECT_EQ(backward(*rows, search.expression), search.rows) << search.expression << ", backward";
    }
}

TEST_F(RecordsetSearches, OfOtherKindsThanTheColumnAreErrors) {
    rows->MoveNext();
    for (const char* expression : {"Name = 5", "Calls = '5'", "UCase(Name) = 5", "Calls = 'x' And Name = 'Hull'"}) {
        try {
            rows->FindFirst(expression);
            ADD_FAILURE() << expression;
        } catch (const DatabaseError& error) {
            EXPECT_EQ(error.number(), 3464) << expression;
        }
    }
    for (const char* expression : {"Name = 'Hull' And Nothing = 1", "Name = 'Hull' And", "Name = 'Hull' And )",
                                   "Name = 'King's Lynn'", "Calls = 3 4", "Calls = 1.2.3", "Calls =", "Calls = -"})
        EXPECT_THROW(rows->FindFirst(expression), DatabaseError) << expression;
    EXPECT_EQ(rows->AbsolutePosition(), 1);
}

/// The index of a column and the test of every row must agree, whatever was edited in between.
TEST_F(RecordsetSearches, ThroughAnIndexFindWhatALookAtEveryRowFinds) {
    std::mt19937 random(7);
    const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    const auto randomName = [&] { return std::string(1, "abAB "[below(5)]) + (below(2) ? "" : " "); };
    const WorkspaceTransaction transaction(*workspace);
    for (int step = 0; step < 1500; ++step) {
        switch (below(8)) {
        case 0:
            rows->AddNew();
            rows->set("Name", below(4) ? Value(randomName()) : Value());
            rows->set("Calls", below(4));
            rows->Update();
            break;
        case 1:
        case 2:
            if (rows->EOF_())
                break;
            rows->Edit();
            rows->set(below(2) ? "Name" : "Calls", below(4) ? Value(below(4)) : Value());
            rows->Update();
            break;
        case 3:
            if (!rows->EOF_() && rows->RecordCount() > 4) {
                rows->Delete();
                rows->MoveFirst();
            }
            break;
        case 4:
            if (below(20) == 0)
                rows->Requery();
            break;
        default: {
            const std::string name = "'" + (below(3) ? randomName() : std::to_string(below(4))) + "'";
            const std::string calls = std::to_string(below(5));
            ASSERT_EQ(forward(*rows, "Name = " + name),
                      forward(*rows, "Name & '' = " + name + " And Name Is Not Null"));
            ASSERT_EQ(backward(*rows, "Calls = " + calls), forward(*rows, "Calls + 0 = " + calls));
            if (rows->RecordCount() > 0)
                rows->MoveFirst();
        }
        }
    }
    EXPECT_EQ(rows->RecordCount(), database->openRecordset("Areas")->RecordCount());
}

} // namespace
