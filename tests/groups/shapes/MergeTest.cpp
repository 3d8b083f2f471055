#include "groups/shapes/ModData_Merge.h"

#include "core/Progress.h"
#include "tests/groups/shapes/GroupInstallation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

class CountedYields : public Progress {
public:
    CountedYields() { setProgress(this); }
    ~CountedYields() override { setProgress(nullptr); }
    void yield() override { ++count; }
    int count = 0;
};

/// The number that is shown as the total of the passes.
std::int16_t stepTotal(int members) {
    std::int16_t total = 1;
    for (; members > 1; members /= 2)
        ++total;
    return total;
}

class Merge : public testing::Test {
protected:
    Merge() {
        gdbSystem->execute("INSERT INTO PGN_GROUPS (TALLYACCOUNT, GROUPNAME, POLYGONID) VALUES ('ACC', 'North', 3)");
        gdbSystem->execute("INSERT INTO PGN_GROUPS (TALLYACCOUNT, GROUPNAME, POLYGONID) VALUES ('ACC', 'South', 4)");
        gdbSystem->execute("INSERT INTO PNT_GROUPS (TALLYACCOUNT, NAME, POINTID) VALUES ('ACC', 'north', 3)");
    }

    void addShapes(const std::vector<Shape>& shapes) {
        WorkspaceTransaction rows(*defaultWorkspace());
        for (const Shape& shape : shapes)
            addPolygon(*gdbSystem, "PGN_TEMP", nextId++, "", shape);
        rows.commit();
    }
    /// Squares of 10 units side by side from (0, 0).
    void addSquares(int count) {
        std::vector<Shape> squares;
        for (int i = 0; i < count; ++i)
            squares.push_back(square(10.0 * i, 0, 10));
        addShapes(squares);
    }
    void merge(const std::string& group = "North") {
        MergeGroupName = group;
        MergePolygonID = 501;
        MergeStep = 0;
        MergeStepTotal = stepTotal(static_cast<int>(nextId - 501));
        gsCurrentProc = "Caller";
        ModData_Merge([this](const std::string& text) { texts.push_back(text); });
        EXPECT_EQ(gsCurrentProc, "Caller");
    }
    static Rows labels() { return rowsOf(*gdbSystem, "SELECT * FROM PNT_GROUPS"); }

    GroupInstallation installation;
    Rows texts;
    std::int64_t nextId = 501;
};

const std::string earlierLabel = "ACC|north|3|null|null";

TEST_F(Merge, OfNothingStoresNothing) {
    merge();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT GROUPNAME, POLYGONID FROM PGN_GROUPS"), (Rows{"North|3", "South|4"}));
    EXPECT_EQ(labels(), Rows{earlierLabel});
    EXPECT_EQ(MergeStep, 0);
    EXPECT_EQ(texts, Rows{});
}

TEST_F(Merge, OfOneAreaStoresItAsItIs) {
    addSquares(1);
    gdbSystem->execute("UPDATE PGN_TEMP SET CENTERX = 1.25, CENTERY = -0.5, NUMPARTS = NULL, PARTS = NULL");
    merge();
    EXPECT_EQ(
        rowsOf(*gdbSystem, "SELECT TALLYACCOUNT, GROUPNAME, POLYGONID, NUMVERT, BOUNDLOWX, BOUNDLOWY, BOUNDUPPX, "
                           "BOUNDUPPY, CENTERX, CENTERY, NUMPARTS FROM PGN_GROUPS ORDER BY GROUPNAME"),
        (Rows{"ACC|North|501|5|0|0|10|10|1.25|-0.5|null", "ACC|South|4|null|null|null|null|null|null|null|null"}));
    EXPECT_EQ(gdbSystem->openRecordset("SELECT VERTICES FROM PGN_GROUPS WHERE GROUPNAME = 'North'")->value(0),
              gdbSystem->openRecordset("SELECT VERTICES FROM PGN_TEMP")->value(0));
    EXPECT_EQ(labels(), Rows{"ACC|North|501|1.25|-0.5"});
    EXPECT_EQ(texts, Rows{});
    EXPECT_EQ(MergeStep, 1);
    EXPECT_EQ(installation.logLines(), Rows{});
}

struct Passes {
    int members;
    Rows texts;
};

TEST_F(Merge, TellsEveryPairOfEveryPass) {
    const std::vector<Passes> cases{
        {2, {"Step 1 of 2: Final merge"}},
        {3, {"Step 1 of 2: Final merge"}},
        {4,
         {"Step 1 of 3: Merging regions 1 and 2 of 2", "Step 1 of 3: Merging regions 1 and 2 of 2",
          "Step 2 of 3: Final merge"}},
        {5,
         {"Step 1 of 3: Merging regions 1 and 2 of 2", "Step 1 of 3: Merging regions 1 and 2 of 2",
          "Step 2 of 3: Final merge"}},
        {6,
         {"Step 1 of 3: Merging regions 1 and 2 of 3", "Step 1 of 3: Merging regions 2 and 3 of 3",
          "Step 1 of 3: Merging regions 2 and 3 of 3", "Step 2 of 3: Final merge"}},
        {7,
         {"Step 1 of 3: Merging regions 1 and 2 of 3", "Step 1 of 3: Merging regions 2 and 3 of 3",
          "Step 1 of 3: Merging regions 2 and 3 of 3", "Step 2 of 3: Final merge"}},
        {8,
         {"Step 1 of 4: Merging regions 1 and 2 of 4", "Step 1 of 4: Merging regions 2 and 3 of 4",
          "Step 1 of 4: Merging regions 3 and 4 of 4", "Step 1 of 4: Merging regions 3 and 4 of 4",
          "Step 2 of 4: Merging regions 1 and 2 of 2", "Step 2 of 4: Merging regions 1 and 2 of 2",
          "Step 3 of 4: Final merge"}},
        {9,
         {"Step 1 of 4: Merging regions 1 and 2 of 4", "Step 1 of 4: Merging regions 2 and 3 of 4",
          "Step 1 of 4: Merging regions 3 and 4 of 4", "Step 1 of 4: Merging regions 3 and 4 of 4",
          "Step 2 of 4: Merging regions 1 and 2 of 2", "Step 2 of 4: Merging regions 1 and 2 of 2",
          "Step 3 of 4: Final merge"}},
    };
    for (const Passes& passes : cases) {
        gdbSystem->execute("DELETE FROM PGN_TEMP");
        nextId = 501;
        texts.clear();
        addSquares(passes.members);
        const CountedYields yields;
        merge();
        EXPECT_EQ(texts, passes.texts) << passes.members;
        EXPECT_EQ(yields.count, static_cast<int>(2 * texts.size()) + 2 * (passes.members - 1)) << passes.members;
        EXPECT_EQ(MergeStep, stepTotal(passes.members) - 1) << passes.members;
        const Shape stored = storedShape("PGN_GROUPS", "GROUPNAME = 'North'");
        EXPECT_EQ(stored.rings.size(), 1U) << passes.members;
        EXPECT_EQ(areaOf(stored), 100.0 * passes.members);
        EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) & ' ' & Max(POLYGONID) FROM PGN_TEMP"), "1 0");
    }
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(Merge, StoresTheUnionAndItsCentreForTheGroupAlone) {
    addShapes({square(0.5, 0, 10), square(10.5, 0, 10), square(100, 100, 3)});
    merge();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TALLYACCOUNT, GROUPNAME, POLYGONID, NUMVERT, BOUNDLOWX, BOUNDLOWY, BOUNDUPPX, "
                                 "BOUNDUPPY, CENTERX, CENTERY, NUMPARTS FROM PGN_GROUPS WHERE POLYGONID = 501"),
              Rows{"ACC|North|501|12|0.5|0|103|103|10.5|5|2"});
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM PGN_GROUPS"), "2") << "the other group stays";
    EXPECT_EQ(labels(), Rows{"ACC|North|501|10.5|5"});
    EXPECT_EQ(storedShape("PGN_GROUPS", "GROUPNAME = 'North'"), storedShape("PGN_TEMP", "POLYGONID = 0"));
}

TEST_F(Merge, WithoutACaptionRunsAllTheSame) {
    addSquares(4);
    MergeGroupName = "North";
    ModData_Merge({});
    EXPECT_EQ(areaOf(storedShape("PGN_GROUPS", "GROUPNAME = 'North'")), 400);
}

TEST_F(Merge, NullPartsAreOneRing) {
    addSquares(5);
    gdbSystem->execute("UPDATE PGN_TEMP SET NUMPARTS = NULL, PARTS = NULL WHERE POLYGONID <> 503");
    gdbSystem->execute("UPDATE PGN_TEMP SET NUMPARTS = NULL WHERE POLYGONID = 503");
    merge();
    EXPECT_EQ(areaOf(storedShape("PGN_GROUPS", "GROUPNAME = 'North'")), 500);
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(Merge, LeavesADamagedAreaOutAndNamesIt) {
    addSquares(5);
    gdbSystem->execute("UPDATE PGN_TEMP SET NUMPARTS = 7 WHERE POLYGONID = 503");
    merge();
    EXPECT_EQ(areaOf(storedShape("PGN_GROUPS", "GROUPNAME = 'North'")), 400);
    EXPECT_EQ(installation.logLines(),
              Rows{"\"ModData_Merge\",3049,\"Group \"North\", step 1, shapes 503, 504: The first polygon is left out: "
                   "its ring indices do not fit its ring count.\""});
}

TEST_F(Merge, OfAreasThatAreAllDamagedKeepsTheEarlierShape) {
    addSquares(4);
    gdbSystem->execute("UPDATE PGN_TEMP SET VERTICES = NULL");
    merge();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT GROUPNAME, POLYGONID FROM PGN_GROUPS"), (Rows{"North|3", "South|4"}));
    EXPECT_EQ(labels(), Rows{earlierLabel});
    EXPECT_EQ(installation.logLinesWith("step 1, shapes 501, 502: The first polygon is left out"), 1);
    EXPECT_EQ(installation.logLinesWith("\"North\" keeps the shape it had"), 1);
}

TEST_F(Merge, OfANameWithAnApostropheStoresNothing) {
    addSquares(3);
    merge("North's");
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT GROUPNAME, POLYGONID FROM PGN_GROUPS"), (Rows{"North|3", "South|4"}));
    EXPECT_EQ(labels(), Rows{earlierLabel});
    EXPECT_EQ(installation.logLines().size(), 4U);
    EXPECT_EQ(installation.logLinesWith("\"ModData_Merge\",3075"), 4);
}

TEST_F(Merge, GoesOnAfterAFailedStatement) {
    addSquares(2);
    gdbSystem->execute("DROP TABLE PGN_GROUPS");
    merge();
    EXPECT_EQ(labels(), Rows{"ACC|North|501|10|5"});
    EXPECT_EQ(installation.logLines().size(), 2U);
}

TEST_F(Merge, WhereThePassCannotBeStoredStopsShort) {
    addSquares(4);
    gdbSystem->execute("ALTER TABLE PGN_TEMP DROP COLUMN CENTERX");
    merge();
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM PGN_TEMP"), "4");
    EXPECT_EQ(labels(), Rows{earlierLabel});
    EXPECT_EQ(installation.logLines().size(), 1U);

    gdbSystem->execute("DROP TABLE PGN_TEMP");
    merge();
    EXPECT_EQ(installation.logLines().size(), 2U);
}

TEST_F(Merge, OpensTheSystemDatabaseAnewWhereItsHandleHasDied) {
    addSquares(4);
    gdbSystem->close();
    merge();
    EXPECT_EQ(areaOf(storedShape("PGN_GROUPS", "GROUPNAME = 'North'")), 400);
}

/// Cuts a rectangle into cells whose borders wander, every border written once.
std::vector<Shape> wanderingCells(int columns, int rows) {
    const auto corner = [](int x, int y) {
        return ShapePoint{10.0 * x + 3 * std::sin(1.7 * x + 2.3 * y), 10.0 * y + 3 * std::cos(2.9 * x + 0.7 * y)};
    };
    std::vector<Shape> cells;
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < columns; ++x)
            cells.push_back({{{corner(x, y), corner(x + 1, y), corner(x + 1, y + 1), corner(x, y + 1), corner(x, y)}}});
    }
    return cells;
}

TEST_F(Merge, GathersNoSliversAndDoesNotDependOnTheOrderOfTheAreas) {
    std::vector<Shape> cells = wanderingCells(11, 9);
    double sum = 0;
    for (const Shape& cell : cells)
        sum += areaOf(cell);
    std::mt19937 random(5);
    Shape first;
    for (int round = 0; round < 3; ++round) {
        gdbSystem->execute("DELETE FROM PGN_TEMP");
        addShapes(cells);
        merge();
        const Shape stored = storedShape("PGN_GROUPS", "GROUPNAME = 'North'");
        EXPECT_EQ(stored.rings.size(), 1U);
        EXPECT_EQ(stored.rings.front().size(), 2U * (11 + 9) + 1) << "the vertices of the outline and no others";
        EXPECT_NEAR(areaOf(stored), sum, 1e-9 * sum);
        if (round == 0)
            first = stored;
        EXPECT_EQ(stored, first);
        std::shuffle(cells.begin(), cells.end(), random);
    }
}

} // namespace
