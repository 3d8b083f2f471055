#include "data/engine/Database.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/ToolProcess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace {

/// One small sample installation for all cases; a case that damages something works on a copy.
class ReportCommand : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = new TemporaryFolder();
        const ToolRun made = runTool({"sample", "--dir", installation(), "--calls", "20000", "--seed", "3"});
        ASSERT_EQ(made.status, 0) << made.errors;
    }
    static void TearDownTestSuite() {
        delete folder;
        folder = nullptr;
    }
    static std::string installation() { return folder->file("sample"); }
    static std::string project() { return folder->file("sample/projects/Sample.mdb"); }

    static ToolRun report(std::vector<std::string> arguments, const std::string& dir = installation(),
                          const std::string& file = project()) {
        if (std::find(arguments.begin(), arguments.end(), "--boundary") == arguments.end())
            arguments.insert(arguments.begin(), {"--boundary", "tv"});
        arguments.insert(arguments.begin(), {"report", "--dir", dir, "--project", file, "--map-type", "Total Calls"});
        return runTool(arguments);
    }

    static std::string query(const std::string& file, const std::string& password, const std::string& statement) {
        return runTool({"sql", "--db", file, "--password", password, "--csv", statement}).output;
    }

    /// The same installation in another folder, which its Paths.txt names.
    static void copyInstallation(const std::filesystem::path& copy) {
        std::filesystem::remove_all(copy);
        std::filesystem::copy(installation(), copy, std::filesystem::copy_options::recursive);
        std::string paths = fileContents((copy / "Paths.txt").string());
        for (auto at = paths.find(installation()); at != std::string::npos; at = paths.find(installation(), at + 1))
            paths.replace(at, installation().size(), copy.string());
        std::ofstream(copy / "Paths.txt") << paths;
    }

    static TemporaryFolder* folder;
};
TemporaryFolder* ReportCommand::folder = nullptr;

TEST_F(ReportCommand, FillsTheTableThatAPlainGroupedQueryGives) {
    const ToolRun run = report({"--csv", folder->file("tv.csv")});
    ASSERT_EQ(run.status, 0) << run.errors;
    const std::string regions = " NOT IN ('MOBILE', 'VOIP', 'NO CLI', 'OLO', 'UNTRACEAB', 'Republic Of Ireland')";
    const std::string expected =
        query(project(), "QzMarlKey",
              "SELECT g.TVArea AS TVRegion, Count(*) AS TotalCalls1 FROM TblTeleItem AS t INNER JOIN "
              "TblMappingGIS AS g ON t.[1141] = g.[1141] WHERE g.TVArea" +
                  regions + " AND g.TVArea Not Like '.*' GROUP BY g.TVArea ORDER BY g.TVArea");
    EXPECT_EQ(query(folder->file("sample/app/ukmap.mdb"), "VtDrmkqpwzs",
                    "SELECT TVRegion, TotalCalls1 FROM TblTV WHERE TVRegion NOT IN ('Mobile', 'VOIP', 'Other', "
                    "'International', "
                    "'Republic Of Ireland') ORDER BY TVRegion"),
              expected);
    EXPECT_GT(std::count(expected.begin(), expected.end(), '\n'), 12);
    // Every call is in one row or another, the side panels included.
    EXPECT_EQ(query(folder->file("sample/app/ukmap.mdb"), "VtDrmkqpwzs", "SELECT Sum(TotalCalls1) AS Calls FROM TblTV"),
              "Calls\n20000\n");
    EXPECT_NE(fileContents(folder->file("tv.csv")).find("North Scotland,"), std::string::npos);
}

TEST_F(ReportCommand, WritesAPictureOfTheSizeAskedForAndAWorkbook) {
    const ToolRun run =
        report({"--png", folder->file("map.png"), "--with-panels", "--size", "900x700", "--xlsx", folder->file("map.xlsx")});
    ASSERT_EQ(run.status, 0) << run.errors;
    for (const char* word : {"maximum", "minimum", "total", "ms"})
        EXPECT_NE(run.output.find(word), std::string::npos) << word << " in\n" << run.output;
    const std::string png = fileContents(folder->file("map.png"));
    ASSERT_GT(png.size(), 24u);
    const auto big = [&](std::size_t at) {
        return (static_cast<unsigned char>(png[at + 2]) << 8) | static_cast<unsigned char>(png[at + 3]);
    };
    EXPECT_EQ(png.substr(1, 3), "PNG");
    EXPECT_EQ(big(16), 900);
    EXPECT_EQ(big(20), 700);
    EXPECT_EQ(fileContents(folder->file("map.xlsx")).substr(0, 2), "PK");
}

TEST_F(ReportCommand, ASelectionCountsFewerCallsIntoTheSelectedTable) {
    ASSERT_EQ(report({"--from", "09:00", "--to", "12:00"}).status, 0);
    const std::string expected =
        query(project(), "QzMarlKey",
              "SELECT Count(*) FROM TblTeleItem WHERE Left(CallTime, 5) >= '09:00' AND Left(CallTime, 5) <= "
              "'12:00' AND [1141] = 'MOBILE'");
    EXPECT_EQ(query(folder->file("sample/app/ukmap.mdb"), "VtDrmkqpwzs",
                    "SELECT TotalCalls1 FROM TblSelectedDataForTV WHERE TVRegion = 'Mobile'")
                  .substr(12),
              expected.substr(expected.find('\n') + 1));
}

TEST_F(ReportCommand, EveryBoundaryCountsItsCallsAndWritesItsRows) {
    struct Boundary {
        const char* name;
        const char* table;
        const char* calls; ///< all of the project, but where told
    };
    const std::string map = folder->file("sample/app/ukmap.mdb");
    const auto count = [&](const std::string& condition) {
        return query(project(), "QzMarlKey",
                     "SELECT Count(*) AS Calls FROM TblTeleItem AS t INNER JOIN TblMappingGIS AS g ON t.[1141] = "
                     "g.[1141]" +
                         condition);
    };
    for (const Boundary& boundary :
         {Boundary{"exchange", "ExchangeArea", ""},
          // Areas that are no numbers are not counted, but for some of those beside the map.
          Boundary{"csg", "CSG", " WHERE IsNumeric(CSG) OR CSG IN ('MOBILE', 'NO CLI', 'UNTRACEAB', 'VOIP')"},
          Boundary{"postcode", "PostCodeDistrict", ""},
          Boundary{"groups", "CustomerGroups",
                   " WHERE PostCode IN (SELECT Reference FROM TblGroups WHERE GroupName <> '')"}}) {
        const std::string csv = folder->file(std::string(boundary.name) + ".csv");
        const ToolRun run = report({"--boundary", boundary.name, "--csv", csv});
        ASSERT_EQ(run.status, 0) << boundary.name << run.errors;
        EXPECT_EQ(query(map, "VtDrmkqpwzs", std::string("SELECT Sum(TotalCalls1) AS Calls FROM Tbl") + boundary.table),
                  count(boundary.calls))
            << boundary.name;
        EXPECT_GT(fileContents(csv).size(), 500u) << boundary.name;
        const ToolRun filtered = report({"--boundary", boundary.name, "--from", "09:00", "--to", "12:00"});
        ASSERT_EQ(filtered.status, 0) << boundary.name << filtered.errors;
        EXPECT_NE(filtered.output.find(std::string("TblSelectedDataFor") + boundary.table), std::string::npos)
            << filtered.output;
    }
}

struct BadFile {
    const char* name;
    const char* file; ///< below the installation
    void (*spoil)(const std::string& path);
};

TEST_F(ReportCommand, BadFilesGiveOneClearLineAndStayAsTheyAre) {
    const std::filesystem::path copy = folder->path() / "copy";
    const BadFile cases[] = {
        {"missing project", "projects/Sample.mdb", [](const std::string& path) { std::filesystem::remove(path); }},
        {"truncated project", "projects/Sample.mdb",
         [](const std::string& path) {
             std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2 + 77);
         }},
        {"foreign project", "projects/Sample.mdb",
         [](const std::string& path) { std::ofstream(path) << "CallDate,CallTime\n"; }},
        {"project of another password", "projects/Sample.mdb",
         [](const std::string& path) {
             std::filesystem::remove(path);
             Workspace::create()->createDatabase(path, "MS Access;PWD=other");
         }},
        {"a database that is no project", "projects/Sample.mdb",
         [](const std::string& path) {
             std::filesystem::remove(path);
             Workspace::create()->createDatabase(path, "MS Access;PWD=QzMarlKey");
         }},
        {"missing map", "app/ukmap.mdb", [](const std::string& path) { std::filesystem::remove(path); }},
        {"truncated map", "app/ukmap.mdb",
         [](const std::string& path) { std::filesystem::resize_file(path, 40960 * 3 + 5); }},
        {"no settings", "Paths.txt", [](const std::string& path) { std::filesystem::remove(path); }},
    };
    for (const BadFile& bad : cases) {
        SCOPED_TRACE(bad.name);
        copyInstallation(copy);
        const std::string file = (copy / bad.file).string();
        bad.spoil(file);
        const std::string before = fileContents(file);
        const bool there = std::filesystem::exists(file);
        const ToolRun run =
            report({"--png", folder->file("bad.png")}, copy.string(), (copy / "projects/Sample.mdb").string());
        EXPECT_EQ(run.status, 1);
        EXPECT_NE(run.errors.find(bad.file), std::string::npos) << run.errors;
        EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 1) << run.errors;
        EXPECT_EQ(std::filesystem::exists(file), there);
        EXPECT_EQ(fileContents(file), before);
        EXPECT_FALSE(std::filesystem::exists(folder->file("bad.png")));
    }
}

TEST_F(ReportCommand, WrongArgumentsAreTold) {
    for (const std::vector<std::string>& wrong : {std::vector<std::string>{"--size", "big"},
                                                  {"--start", "31.12.2025"},
                                                  {"--from", "25:00"},
                                                  {"--engine", "magic"},
                                                  {"--inbound", "1", "--community-group", "x"}})
        EXPECT_EQ(report(wrong).status, 2) << wrong[0];
    EXPECT_EQ(runTool({"report", "--dir", installation(), "--project", project(), "--boundary", "county", "--map-type",
                       "Total Calls"})
                  .status,
              2);
}

} // namespace
