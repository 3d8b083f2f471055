#include "data/upkeep/CheckForNewUKMapDB.h"
#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/engine/Database.h"
#include "data/project/BoundaryDate.h"
#include "data/schema/Vocabulary.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

namespace {

using Statements = std::vector<std::string>;

/// Two folders: the delivered map data in one, the working copy in the other.
class SystemMapUpkeep : public testing::Test {
protected:
    void SetUp() override {
        gPaths = std::make_shared<cPathControl>(folder_.makeFolder("program"), folder_.text());
        gPaths->SystemDataPath = folder_.makeFolder("system");
        gPaths->ApplicationDataPath = folder_.makeFolder("data");
    }
    void TearDown() override {
        resetGlobals();
        resetDefaultWorkspace();
    }

    std::string delivered() const { return folder_.file("system/UKMap.BAK"); }
    std::string working() const { return folder_.file("data/ukmap.mdb"); }
    std::string log() const { return readText(folder_.file("data/CS Mapping Error.log")); }

    /// A map database with the user's tables and, unless `version` is empty, that version.
    static void makeMap(const std::string& file, const std::string& version, const Statements& rows = {}) {
        const auto workspace = Workspace::create();
        const auto database = workspace->createDatabase(file, SystemMapConnect);
        for (const char* table : {"tblPostCodePopulationDensity", "tblTVPopulationDensity", "PGN_GROUPS", "PNT_GROUPS"})
            createVocabularyTable(*database, DatabaseKind::SystemMap, table);
        if (!version.empty()) {
            createVocabularyTable(*database, DatabaseKind::SystemMap, "TblVersion");
            database->execute("INSERT INTO TblVersion (Version) VALUES (" + version + ")");
            database->execute("INSERT INTO TblVersion (Version) VALUES (0.5)");
        }
        for (const std::string& row : rows)
            database->execute(row);
    }

    static std::string valueOf(const std::string& file, const std::string& query) {
        const auto workspace = Workspace::create();
        const auto database = workspace->openDatabase(file, Workspace::Access::Shared, SystemMapConnect);
        const auto rows = database->openRecordset(query);
        return rows->EOF_() ? "no row" : rows->value(0).asText();
    }

    TemporaryFolder folder_;
};

TEST_F(SystemMapUpkeep, TouchesNothingWithoutADeliveredFile) {
    writeText(folder_.file("data/UKMap.ldb"), "left behind");
    EXPECT_EQ(ModUtilities_CheckForNewUKMapDB(), 0);
    EXPECT_TRUE(std::filesystem::exists(folder_.file("data/UKMap.ldb")));
    EXPECT_FALSE(std::filesystem::exists(working()));
}

TEST_F(SystemMapUpkeep, FailsWithoutFolders) {
    gPaths.reset();
    EXPECT_NE(ModUtilities_CheckForNewUKMapDB(), 0);
}

TEST_F(SystemMapUpkeep, CopiesTheDeliveredFileAtTheFirstStart) {
    makeMap(delivered(), "1.2");
    std::filesystem::permissions(delivered(), std::filesystem::perms::owner_read);
    writeText(folder_.file("data/UKMap.ldb"), "left behind");
    EXPECT_EQ(ModUtilities_CheckForNewUKMapDB(), 0);
    EXPECT_EQ(readText(working()), readText(delivered()));
    EXPECT_NE(std::filesystem::status(working()).permissions() & std::filesystem::perms::owner_write,
              std::filesystem::perms::none);
    EXPECT_FALSE(std::filesystem::exists(folder_.file("data/UKMap.ldb")));
    EXPECT_FALSE(std::filesystem::exists(folder_.file("data/UKMap.upd")));
}

TEST_F(SystemMapUpkeep, ComparesVersions) {
    struct Case {
        const char* name;
        const char* delivered;
        const char* working;
        bool updates;
    };
    const Case cases[] = {
        {"newer", "1.3", "1.2", true},
        {"newer in the fourth decimal", "1.2001", "1.2", true},
        {"equal", "1.2", "1.2", false},
        {"older", "1.1", "1.2", false},
        {"the delivered file has no version", "", "1.2", false},
        {"the working copy has no version", "1.3", "", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::filesystem::remove(delivered());
        std::filesystem::remove(working());
        makeMap(delivered(), c.delivered, {"CREATE TABLE TblNew (A LONG)"});
        makeMap(working(), c.working);
        const std::string before = readText(working());
        EXPECT_EQ(ModUtilities_CheckForNewUKMapDB(), 0);
        if (c.updates)
            EXPECT_EQ(valueOf(working(), "SELECT COUNT(*) FROM TblNew"), "0");
        else
            EXPECT_EQ(readText(working()), before);
        EXPECT_EQ(log(), "");
    }
}

TEST_F(SystemMapUpkeep, CarriesTheUsersTablesAcross) {
    makeMap(delivered(), "2");
    makeMap(working(), "1",
            {"INSERT INTO tblTVPopulationDensity (Reference, Population) VALUES ('London', 9000000)",
             "INSERT INTO PGN_GROUPS (GroupName) VALUES ('North')",
             "INSERT INTO PGN_GROUPS (GroupName) VALUES ('South')", "CREATE TABLE TblOld (A LONG)"});
    writeText(folder_.file("data/UKMap.upd"), "of an attempt broken off");
    const std::string deliveredBefore = readText(delivered());

    EXPECT_EQ(ModUtilities_CheckForNewUKMapDB(), 0);
    EXPECT_EQ(log(), "");
    EXPECT_EQ(valueOf(working(), "SELECT Reference FROM tblTVPopulationDensity WHERE Population = 9000000"), "London");
    EXPECT_EQ(valueOf(working(), "SELECT COUNT(*) FROM PGN_GROUPS"), "2");
    EXPECT_EQ(valueOf(working(), "SELECT COUNT(*) FROM PNT_GROUPS"), "0");
    EXPECT_EQ(valueOf(working(), "SELECT TOP 1 Version FROM TblVersion ORDER BY Version DESC"), "2");
    EXPECT_EQ(valueOf(working(), "SELECT BoundaryDate FROM TblSettings"), Value(today()).asText());
    EXPECT_ANY_THROW(valueOf(working(), "SELECT * FROM TblOld"));
    EXPECT_ANY_THROW(valueOf(working(), "SELECT * FROM TblLink"));
    EXPECT_FALSE(std::filesystem::exists(folder_.file("data/UKMap.upd")));
    EXPECT_EQ(readText(delivered()), deliveredBefore);

    EXPECT_EQ(ModUtilities_CheckForNewUKMapDB(), 0) << "equal versions now";
    EXPECT_EQ(valueOf(working(), "SELECT COUNT(*) FROM PGN_GROUPS"), "2");
}

TEST_F(SystemMapUpkeep, LeavesTheWorkingCopyWholeOnFailure) {
    makeMap(working(), "1", {"INSERT INTO PGN_GROUPS (GroupName) VALUES ('North')"});
    makeMap(delivered(), "2", {"DROP TABLE PGN_GROUPS"});
    const std::string before = readText(working());
    EXPECT_NE(ModUtilities_CheckForNewUKMapDB(), 0);
    EXPECT_EQ(readText(working()), before);
    EXPECT_NE(log().find(",\"ModUtilities_CheckForNewUKMapDB\",3078,\"80:"), std::string::npos) << log();

    writeText(delivered(), std::string(10000, 'x'));
    EXPECT_NE(ModUtilities_CheckForNewUKMapDB(), 0);
    EXPECT_EQ(readText(working()), before);
    EXPECT_NE(log().find(",3343,\"40:"), std::string::npos) << log();
}

} // namespace
