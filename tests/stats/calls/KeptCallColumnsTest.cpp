#include "stats/calls/KeptCallColumns.h"

#include "core/ModDeclarations.h"
#include "data/sqlite/Connection.h"
#include "data/types/DatabaseError.h"
#include "stats/calls/BuildCallColumns.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

const CallProgress goOn = [] { return true; };

class KeptCallColumns : public testing::Test {
protected:
    void SetUp() override {
        run("INSERT INTO p.TblTeleItem(CallDate, CallTime, CalledNo, CallingNo, \"1141\", AnswerInd, Discounted) WITH "
            "RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 700000) SELECT nullif(40000 + i % 31, "
            "40003), "
            "printf('%02d:%02d', i % 24, i % 60), nullif('0' || i % 7, '03'), '01' || (i * 7919 % 99991), '01' || i % "
            "50, "
            "i % 10, (i % 900 - 300) / 100.0 FROM n");
        built = *buildCallColumns(*gdbProject, goOn);
        saveCallColumns(*gdbProject, built, goOn);
    }

    /// Runs SQL of the storage library; p stands for the project.
    void run(std::string sql) {
        for (std::size_t at = 0; (at = sql.find(" p.", at)) != std::string::npos;)
            sql.replace(at, 3, " " + gdbProject->schema() + ".");
        gdbProject->connection().execute(sql);
    }

    SmallInstallation installation;
    CallColumns built;
};

TEST_F(KeptCallColumns, ComeBackAsTheyWereBuilt) {
    const auto loaded = loadCallColumns(*gdbProject, goOn);
    ASSERT_TRUE(loaded);
    EXPECT_TRUE(loaded->values == built.values);
    EXPECT_TRUE(loaded->ids == built.ids);
    EXPECT_TRUE(loaded->answerInd == built.answerInd);
    EXPECT_TRUE(loaded->money == built.money);
    EXPECT_TRUE(loaded->callerFlags == built.callerFlags);
    EXPECT_TRUE(loaded->answerKinds == built.answerKinds);
    EXPECT_EQ(loaded->callers, built.callers);
    EXPECT_THROW(gdbProject->openRecordset("SELECT * FROM MSysCallColumns"), DatabaseError); // hidden from the dialect
}

TEST_F(KeptCallColumns, AreRefusedWhereTheyDoNotFit) {
    const char* changes[] = {
        "DELETE FROM p.TblTeleItem WHERE rowid = 700000",
        "INSERT INTO p.TblTeleItem(CallDate) VALUES(1)",
        "UPDATE p.TblTeleItem SET AnswerInd = 'z'",
        "ALTER TABLE p.TblTeleItem ADD COLUMN More TEXT",
        "UPDATE p.MSysCallColumns SET Data = CAST(zeroblob(length(Data)) AS BLOB) WHERE rowid = 5",
        "UPDATE p.MSysCallColumns SET Checksum = Checksum + 1 WHERE rowid = (SELECT max(rowid) FROM p.MSysCallColumns)",
        "DELETE FROM p.MSysCallColumns WHERE rowid = 3",
        "UPDATE p.MSysCallColumns SET Size = Size - 1 WHERE rowid = 2",
        "UPDATE p.MSysCallColumns SET Size = -1",
        "UPDATE p.MSysCallColumns SET Data = NULL",
        "UPDATE p.MSysCallColumns SET Data = substr(Data, 1, length(Data) - 1) WHERE Part = -1",
        "DELETE FROM p.MSysCallColumns",
        "DROP TABLE p.MSysCallColumns",
    };
    for (const char* change : changes) {
        run("SAVEPOINT change");
        run(change);
        EXPECT_FALSE(loadCallColumns(*gdbProject, goOn)) << change;
        run("ROLLBACK TO change; RELEASE change");
    }
    EXPECT_TRUE(loadCallColumns(*gdbProject, goOn));
}

TEST_F(KeptCallColumns, StayAsTheyWereWhereSavingIsStopped) {
    int calls = 0;
    saveCallColumns(*gdbProject, CallColumns(), [] { return false; });
    EXPECT_TRUE(loadCallColumns(*gdbProject, goOn));
    EXPECT_FALSE(loadCallColumns(*gdbProject, [&] { return ++calls < 3; }));
    removeKeptCallColumns(*gdbProject);
    EXPECT_FALSE(loadCallColumns(*gdbProject, goOn));
}

} // namespace
