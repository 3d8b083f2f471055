#include "stats/ProjectCalls.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/sqlite/Connection.h"
#include "data/types/DatabaseError.h"
#include "stats/ModData_SelectedTVArea.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

class ProjectCalls : public testing::Test {
protected:
    void SetUp() override {
        installation.addPlaces({{"0113", "Yorkshire"}});
        installation.addCalls({{"A", "0113", "0"}, {"B", "0113", "4"}, {"C", "0113", "2"}});
        first = projectCalls();
        ASSERT_TRUE(first);
    }

    void run(const std::string& statement) { gdbProject->execute(statement); }

    /// Another program with the same file.
    void runElsewhere(const std::string& statement) const {
        Workspace::create()->openDatabase(gsProjectPath, Workspace::Access::Shared, ProjectConnect)->execute(statement);
    }

    /// Closes the project wholly, as the end of the program does, and opens it again.
    void restart() {
        first.reset();
        gdbProject.reset();
        gdbSystem.reset();
        resetDefaultWorkspace();
        reopenSystemDatabase();
        reopenProject();
    }

    /// The mark is another one as soon as the columns have been built anew.
    static std::string mark() {
        sqlite::Statement row(gdbProject->connection(), "SELECT Mark FROM " + gdbProject->schema() + ".MSysCallMark");
        return row.step() ? std::string(row.text(0)) : "none";
    }

    SmallInstallation installation;
    std::shared_ptr<const CallColumns> first;
};

TEST_F(ProjectCalls, StayWhileNoCallChanges) {
    const std::string before = mark();
    run("UPDATE TblMappingGIS SET TVArea = 'Granada'");
    run("CREATE TABLE Another (A Long)");
    ModData_SelectedTVArea("TblTV", 1);
    reopenProject();
    EXPECT_EQ(projectCalls(), first);
    {
        const WorkspaceTransaction undone(*defaultWorkspace());
        run("DELETE FROM TblTeleItem");
        EXPECT_EQ(projectCalls()->size(), 0u);
    }
    EXPECT_EQ(projectCalls()->size(), 3u);
    EXPECT_EQ(mark(), before);
}

TEST_F(ProjectCalls, AreBuiltAnewWhateverHappensToACall) {
    const struct {
        const char* change;
        std::size_t calls;
        bool elsewhere;
    } changes[] = {
        {"UPDATE TblTeleItem SET CallingNo = 'Z' WHERE CallingNo = 'B'", 3, false},
        {"UPDATE TblTeleItem SET CallingNo = 'Y' WHERE CallingNo = 'Z'", 3, true},
        {"DELETE FROM TblTeleItem WHERE CallingNo = 'Y'", 2, false},
        {"INSERT INTO TblTeleItem (CallingNo, AnswerInd) VALUES ('D', '0')", 3, true},
        {"ALTER TABLE TblTeleItem ALTER COLUMN AnswerLoc Text(90)", 3, false},
        {"ALTER TABLE TblTeleItem DROP COLUMN PayPhone", 3, false},
        {"DELETE FROM TblTeleItem", 0, false},
    };
    for (const auto& [change, calls, elsewhere] : changes) {
        const auto before = projectCalls();
        if (elsewhere)
            runElsewhere(change);
        else
            run(change);
        const auto after = projectCalls();
        ASSERT_TRUE(after) << change;
        EXPECT_NE(after, before) << change;
        EXPECT_EQ(after->size(), calls) << change;
    }
    run("DROP TABLE TblTeleItem");
    EXPECT_FALSE(projectCalls());
    createVocabularyTable(*gdbProject, DatabaseKind::Project, "TblTeleItem");
    EXPECT_TRUE(projectCalls());
    EXPECT_EQ(whyNoProjectCalls(), "");
}

TEST_F(ProjectCalls, ComeFromTheFileAfterARestartUnlessItHasChanged) {
    const std::string before = mark();
    restart();
    EXPECT_EQ(projectCalls()->size(), 3u);
    EXPECT_EQ(mark(), before);
    restart();
    runElsewhere("UPDATE TblTeleItem SET AnswerInd = '8' WHERE CallingNo = 'A'"); // the same number of rows
    EXPECT_EQ(projectCalls()->size(), 3u);
    EXPECT_NE(mark(), before);
}

TEST_F(ProjectCalls, GoWithTheProject) {
    const std::weak_ptr<const CallColumns> watched = first;
    first.reset();
    reopenProject();
    EXPECT_FALSE(watched.expired());
    gdbProject.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_THROW(projectCalls(), RuntimeError);
}

TEST_F(ProjectCalls, AreBuiltOnceWhereCallscopeReportsChanges) {
    const std::string before = mark();
    run("UPDATE Tbl50 SET UpdateMapping = 1");
    EXPECT_NE(projectCalls(), first);
    const std::string reported = mark();
    EXPECT_NE(reported, before);
    projectCalls();
    run("UPDATE Tbl50 SET UpdateMapping = 0");
    projectCalls();
    EXPECT_EQ(mark(), reported);
    run("UPDATE Tbl50 SET UpdateMapping = 1");
    projectCalls();
    EXPECT_NE(mark(), reported);
    forgetProjectCalls();
    EXPECT_EQ(projectCalls()->size(), 3u);
}

TEST_F(ProjectCalls, LiveInMemoryOnlyWhereTheFileCannotBeWritten) {
    forgetProjectCalls();
    gdbProject = defaultWorkspace()->openDatabase(gsProjectPath, Workspace::Access::ReadOnly, ProjectConnect);
    const auto columns = projectCalls();
    ASSERT_TRUE(columns);
    EXPECT_EQ(projectCalls(), columns);
    runElsewhere("DELETE FROM TblTeleItem WHERE CallingNo = 'A'");
    EXPECT_EQ(projectCalls()->size(), 2u);
    EXPECT_TRUE(installation.logLines().empty()) << installation.logLines().front();
    sqlite::Statement kept(gdbProject->connection(), "SELECT count(*) FROM " + gdbProject->schema() +
                                                         ".sqlite_schema WHERE name LIKE 'MSysCall%'");
    kept.step();
    EXPECT_EQ(kept.integer(0), 0);
}

TEST_F(ProjectCalls, AreRefusedWithOneLineAndHadAgainOnceTheyFit) {
    run("INSERT INTO TblTeleItem (CallingNo, CalledNo, [1141], AnswerInd, Discounted) VALUES ('D', '0800', '0113', "
        "'0', 300000)");
    EXPECT_FALSE(projectCalls());
    EXPECT_NE(whyNoProjectCalls(), "");
    ModData_SelectedTVArea("TblTV", 1);
    ModData_SelectedTVArea("TblTV", 1);
    EXPECT_EQ(installation.logLinesWith("its figures come from statements"), 1);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TotalCalls1 FROM TblTV WHERE TVRegion = 'Yorkshire'"), "4");
    run("DELETE FROM TblTeleItem WHERE CallingNo = 'D'");
    EXPECT_TRUE(projectCalls());
}

} // namespace
