#include "data/project/SystemDatabaseStep.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/types/DatabaseError.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

TEST(SystemDatabaseStep, ADeadHandleIsOpenedAnewAndTheStepRepeated) {
    const SmallInstallation installation;
    gdbSystem->close();
    EXPECT_TRUE(onSystemDatabase([] { systemDatabase().execute("INSERT INTO TblVersion VALUES (2)"); }));
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT Version FROM TblVersion"), Rows{"2"});
    gdbSystem.reset();
    EXPECT_TRUE(onSystemDatabase([] { systemDatabase().execute("DELETE FROM TblVersion"); }));
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST(SystemDatabaseStep, RepeatsOnceAndThenLogs) {
    const SmallInstallation installation;
    gsCurrentProc = "A_Procedure";
    int runs = 0;
    EXPECT_FALSE(onSystemDatabase([&] {
        ++runs;
        throw DatabaseError(3420, "Object invalid or no longer set");
    }));
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(installation.logLines(), Rows{"\"A_Procedure\",3420,\"Object invalid or no longer set\""});
}

TEST(SystemDatabaseStep, AnyOtherErrorIsLoggedAtOnce) {
    const SmallInstallation installation;
    gsCurrentProc = "A_Procedure";
    const auto handle = gdbSystem;
    int runs = 0;
    EXPECT_FALSE(onSystemDatabase([&] {
        ++runs;
        systemDatabase().execute("DELETE FROM NoSuchTable");
    }));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(gdbSystem, handle);
    EXPECT_EQ(installation.logLinesWith("\"A_Procedure\",3078,"), 1);
    EXPECT_FALSE(onSystemDatabase([] { throw std::out_of_range("far away"); }));
    EXPECT_EQ(installation.logLinesWith("far away"), 1);
}

TEST(SystemDatabaseStep, AFileThatIsGoneIsLoggedByItsPath) {
    const SmallInstallation installation;
    gdbSystem->close();
    gsSystemDBPath = installation.file("elsewhere/ukmap.mdb");
    EXPECT_FALSE(onSystemDatabase([] { systemDatabase(); }));
    EXPECT_EQ(installation.logLinesWith("elsewhere/ukmap.mdb"), 1);
}

} // namespace
