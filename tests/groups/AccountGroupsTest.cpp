#include "groups/AccountGroups.h"

#include "core/ModDeclarations.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

TEST(AccountGroups, OnlyRowsWithAGroupCount) {
    const SmallInstallation installation;
    gdbSystem->execute("CREATE TABLE TblGroup_Link (TallyAccount TEXT(50), Reference TEXT(50), GroupName TEXT(50))");
    gdbSystem->execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'M1', '')");
    gdbSystem->execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'M2', Null)");
    gdbSystem->execute("INSERT INTO TblGroup_Link VALUES ('OTHER', 'M3', 'North')");
    EXPECT_FALSE(accountHasGroups());
    gdbSystem->execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'M4', 'North')");
    EXPECT_TRUE(accountHasGroups());
}
