#include "core/cPathControl.h"
#include "data/types/DatabaseError.h"
#include "tests/sample/installation/SharedInstallation.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <fstream>
#include <iterator>

namespace sample {
namespace {

namespace fs = std::filesystem;

/// The least that a sample can be, on the shared geography.
SampleReport makeSmall(const TemporaryFolder& folder, std::uint64_t seed, bool overwrite = false) {
    return makeSampleInstallation(
        {.folder = folder.path().string(), .calls = leastSampleCalls, .seed = seed, .overwrite = overwrite},
        sharedGeography());
}

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Everything that a database holds, as one text: its tables in order, each with all rows.
std::string contentsOf(const std::string& path, std::string_view connect) {
    const auto database = Workspace::create()->openDatabase(path, Workspace::Access::Shared, connect);
    std::string all;
    for (std::size_t i = 0; i < database->tableDefs().count(); ++i) {
        const TableDef table = database->tableDefs().at(i);
        all += "\n" + table.name + "\n";
        if (table.isAttached())
            continue;
        const auto rows = database->openRecordset(table.name);
        for (; !rows->EOF_(); rows->MoveNext()) {
            for (int column = 0; column < rows->fieldCount(); ++column) {
                const Value& value = rows->value(column);
                if (const auto* bytes = std::get_if<Bytes>(&value.storage()))
                    all.append(reinterpret_cast<const char*>(bytes->data()), bytes->size());
                else
                    all += value.isNull() ? "-" : value.asText();
                all += '|';
            }
        }
    }
    return all;
}

long errorOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

struct Secret {
    const char* name;
    std::string SampleReport::*path;
    std::string_view connect; ///< empty: the file has no password
};

class InstallationFile : public testing::TestWithParam<Secret> {};

TEST_P(InstallationFile, OpensWithItsPasswordAndWithNoOther) {
    const std::string& path = sharedInstallation().report.*GetParam().path;
    const auto workspace = Workspace::create();
    EXPECT_TRUE(workspace->openDatabase(path, Workspace::Access::Shared, GetParam().connect)->isOpen());
    const long error =
        errorOf([&] { workspace->openDatabase(path, Workspace::Access::Shared, "MS Access;PWD=guess"); });
    EXPECT_EQ(error, GetParam().connect.empty() ? 0 : 3031);
}

INSTANTIATE_TEST_SUITE_P(Installation, InstallationFile,
                         testing::Values(Secret{"SystemMap", &SampleReport::systemMapPath, SystemMapConnect},
                                         Secret{"DeliveredMap", &SampleReport::deliveredMapPath, SystemMapConnect},
                                         Secret{"Project", &SampleReport::projectPath, ProjectConnect},
                                         Secret{"Template", &SampleReport::projectTemplatePath, ProjectConnect},
                                         Secret{"CommunityGroups", &SampleReport::communityGroupsPath, ProjectConnect},
                                         Secret{"CustomerGroups", &SampleReport::customerGroupsPath, ""}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Installation, IsFoundThroughItsPathsFile) {
    const SharedInstallation& made = sharedInstallation();
    const cPathControl paths(made.folder.path().string(), made.folder.path().string());
    EXPECT_EQ(joinPath(paths.ApplicationDataPath, "ukmap.mdb"), made.report.systemMapPath);
    EXPECT_EQ(joinPath(paths.ProjectDataPath, "Sample.mdb"), made.report.projectPath);
    for (const std::string& folder : {paths.BackupFolderPath, paths.ApplicationRootPath, paths.AccountDataPath})
        EXPECT_TRUE(fs::is_directory(folder)) << folder;
}

TEST(Installation, DeliversTheMapThatIsInUseWithoutTheUsersOwnRows) {
    const SampleReport& report = sharedInstallation().report;
    const TemporaryFolder folder;
    const std::string copy = folder.file("ukmap.mdb");
    std::filesystem::copy_file(report.systemMapPath, copy);
    {
        const auto database = Workspace::create()->openDatabase(copy, Workspace::Access::Shared, SystemMapConnect);
        EXPECT_GT(database->openRecordset("tblTVPopulationDensity")->RecordCount(), 0);
        for (const char* table : {"tblTVPopulationDensity", "tblPostCodePopulationDensity", "PGN_GROUPS", "PNT_GROUPS"})
            database->execute(std::string("DELETE * FROM ") + table);
    }
    EXPECT_TRUE(contentsOf(report.deliveredMapPath, SystemMapConnect) == contentsOf(copy, SystemMapConnect));
}

TEST(Installation, TemplateHasTheProjectTablesWithoutRows) {
    const auto database = Workspace::create()->openDatabase(sharedInstallation().report.projectTemplatePath,
                                                            Workspace::Access::Shared, ProjectConnect);
    for (const char* table : {"TblProjectInfo", "TblTeleItem", "TblGIS", "Tbl50"})
        EXPECT_EQ(database->openRecordset(table)->RecordCount(), 0) << table;
}

TEST(Installation, SameSeedGivesTheSameRowsAndAnotherSeedOtherCalls) {
    const TemporaryFolder first;
    const TemporaryFolder second;
    const TemporaryFolder other;
    const SampleReport one = makeSmall(first, 7);
    const SampleReport two = makeSmall(second, 7);
    const SampleReport three = makeSmall(other, 8);
    const std::string calls = contentsOf(one.projectPath, ProjectConnect);
    EXPECT_TRUE(calls == contentsOf(two.projectPath, ProjectConnect));
    EXPECT_FALSE(calls == contentsOf(three.projectPath, ProjectConnect));
    EXPECT_TRUE(contentsOf(one.systemMapPath, SystemMapConnect) == contentsOf(two.systemMapPath, SystemMapConnect));
    EXPECT_TRUE(contentsOf(one.customerGroupsPath, "") == contentsOf(two.customerGroupsPath, ""));
}

TEST(Installation, IsReplacedOnlyWhenAsked) {
    const TemporaryFolder folder;
    const SampleReport report = makeSmall(folder, 7);
    const std::string before = bytesOf(report.projectPath);
    EXPECT_EQ(errorOf([&] { makeSmall(folder, 8); }), 58);
    EXPECT_TRUE(bytesOf(report.projectPath) == before);
    makeSmall(folder, 8, true);
    EXPECT_FALSE(bytesOf(report.projectPath) == before);
}

TEST(Installation, OneForeignFileInAPlaceOfItsOwnIsEnoughToRefuse) {
    const TemporaryFolder folder;
    std::ofstream(folder.file("Paths.txt")) << "AppFolder=elsewhere\n";
    EXPECT_EQ(errorOf([&] { makeSmall(folder, 7); }), 58);
    EXPECT_EQ(bytesOf(folder.file("Paths.txt")), "AppFolder=elsewhere\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

TEST(Installation, LeavesNothingBehindButItself) {
    const TemporaryFolder folder;
    makeSmall(folder, 7);
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path()))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"Paths.txt", "account", "app", "backup", "projects", "system"}));
}

TEST(Installation, AFileInThePlaceOfTheFolderIsOneClearError) {
    const TemporaryFolder folder;
    std::ofstream(folder.file("taken")) << "x";
    try {
        makeSampleInstallation({.folder = folder.file("taken"), .calls = leastSampleCalls}, sharedGeography());
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 75);
        EXPECT_NE(error.description().find(folder.file("taken")), std::string::npos);
    }
}

TEST(Installation, NumbersOfCallsOutOfBoundsAreRefused) {
    const TemporaryFolder folder;
    for (const std::int64_t calls : {std::int64_t{-1}, std::int64_t{0}, leastSampleCalls - 1, mostSampleCalls + 1})
        EXPECT_EQ(errorOf([&] { makeSampleInstallation({.folder = folder.path().string(), .calls = calls}); }), 5);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

} // namespace
} // namespace sample
