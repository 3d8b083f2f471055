#include "map/data/MapData.h"
#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "report/CaptureProject.h"
#include "report/OpenInstallation.h"
#include "report/ReportRun.h"
#include "sample/installation/SampleInstallation.h"
#include "stats/CurrentTables.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

std::string captionsOf(const DataTable& table) {
    std::string text;
    for (const std::string& caption : table.captions)
        text += (text.empty() ? "" : "|") + caption;
    return text;
}

const std::string counts =
    "|TotalCalls|Answered|Ineffective|Cost(£)|Revenue(£)|Engaged|RTNR|Other|LostCallers|AnsweredCallers";
const std::string shares = "|Area Cost Per Answered Call|Area Cost Per Answered Caller";

/// The figures of a captured sample project.
class MapDataTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = new TemporaryFolder;
        const auto sample = sample::makeSampleInstallation({.folder = folder_->text(), .calls = 5'000, .seed = 4});
        openInstallation(folder_->text());
        openProject(sample.projectPath);
        captureProject();
        for (const char* table : {"TblAnimatedTV1", "TblAnimatedPostCodeDistrict1"}) {
            const std::string key = std::string(table) == "TblAnimatedTV1" ? "TVRegion" : "PostCodeDistrict";
            const std::string from = key == "TVRegion" ? "TblTV" : "TblPostCodeDistrict";
            systemDatabase().execute("DELETE FROM " + std::string(table));
            systemDatabase().execute("INSERT INTO " + std::string(table) + " (" + key +
                                     ", TotalCalls5, Cost5) SELECT " + key + ", TotalCalls1, Cost1 FROM " + from);
        }
    }
    static void TearDownTestSuite() {
        currentTables.clear();
        resetGlobals();
        resetDefaultWorkspace();
        delete folder_;
    }

    /// The sum of a column of the grid is that of the column of the table.
    static void expectSum(const DataTable& table, int column, const std::string& statement) {
        const double sum =
            std::accumulate(table.rows.begin(), table.rows.end(), 0.0, [column](double sofar, const auto& row) {
                return sofar + numberOf(row[column]).value_or(0);
            });
        const auto rows = systemDatabase().openRecordset(statement);
        EXPECT_EQ(table.rows.size(), static_cast<std::size_t>(rows->value(1).asLong())) << statement;
        EXPECT_GT(table.rows.size(), 0U) << statement;
        // Formatted texts are rounded row by row.
        EXPECT_NEAR(sum, rows->value(0).asDouble(), 0.005 * static_cast<double>(table.rows.size())) << statement;
    }

    inline static TemporaryFolder* folder_ = nullptr;
};

TEST_F(MapDataTest, EveryBoundaryListsTheAreasOfItsTableInUse) {
    struct Case {
        long boundary;
        const char* table; ///< in place of the one in use; empty: that
        int dataSet;
        const char* title;
        std::string captions;
    };
    const Case cases[] = {
        {0, "", 1, "Exchange Locations", "Exchange" + counts + shares},
        {1, "", 1, "CSG's", "CSG" + counts + shares},
        {2, "", 1, "TV Regions", "TVRegion" + counts + shares + "|Population"},
        {3, "", 1, "Post Code Districts", "PostCodeDistrict" + counts + shares + "|Population"},
        {5, "", 1, "Customer Groups",
         "GroupName|TotalCalls1|Answered1|Ineffective1|Cost(£)|Revenue(£)|Engaged1|RTNR1|Other1|LostCallers1|"
         "AnsweredCallers1" +
             shares},
        {2, "TblAnimatedTV1", 5, "TV Regions", "TVRegion" + counts + "|Population"},
        {3, "TblAnimatedPostCodeDistrict1", 5, "Post Code Districts", "PostCodeDistrict" + counts + "|Population"},
    };
    ASSERT_TRUE(gbTVPopulation && gbPostCodePopulation) << "the sample has population figures";
    for (const Case& test : cases) {
        SCOPED_TRACE(test.title + std::string(test.table));
        runReport(test.boundary, wholeProject());
        if (*test.table)
            *currentTables.of(test.boundary) = test.table;
        const DataTable table = readDataTable(dataView(test.boundary, test.dataSet, false));
        EXPECT_EQ(captionsOf(table), test.captions);
        EXPECT_EQ(table.title, test.title);
        EXPECT_FALSE(table.rates);
        const std::string n = std::to_string(test.dataSet), from = " FROM " + *currentTables.of(test.boundary);
        expectSum(table, 1, "SELECT Sum(TotalCalls" + n + "), Count(*)" + from);
        expectSum(table, 4, "SELECT Sum(Cost" + n + "), Count(*)" + from);
    }
}

TEST_F(MapDataTest, ASelectionListsItsOwnFigures) {
    ReportParameters firstDays = wholeProject();
    firstDays.DTEnd = {firstDays.DTStart.days + 5};
    runReport(2, firstDays);
    ASSERT_EQ(currentTables.TV, "TblSelectedDataForTV");
    expectSum(readDataTable(dataView(2, 1, false)), 1, "SELECT Sum(TotalCalls1), Count(*) FROM TblSelectedDataForTV");
}

TEST_F(MapDataTest, RatesAreTextsOfThreeDecimals) {
    runReport(2, wholeProject());
    currentTables.TV = "tblTVByPopulation";
    currentTables.PostCodeDistrict = "tblPostCodeByPopulation";
    const DataTable regions = readDataTable(dataView(2, 1, true));
    EXPECT_TRUE(regions.rates);
    EXPECT_EQ(regions.title, "TV Regions, per head of population");
    EXPECT_EQ(captionsOf(regions), "TVRegion" + counts + shares + "|Population");
    expectSum(regions, 4, "SELECT Sum(Cost1), Count(*) FROM tblTVByPopulation");
    for (const auto& row : regions.rows) {
        const std::string rate = row[1].asText();
        EXPECT_EQ(rate.size() - rate.find('.'), 4U) << rate;
    }
    EXPECT_EQ(captionsOf(readDataTable(dataView(3, 1, true))),
              "PostCodeDistrict" + counts + "|AreaCostPerAnsweredCall|AreaCostPerAnsweredCaller|Population");
}

TEST_F(MapDataTest, MoneyIsTextAndCSGsStandInTheOrderOfTheirNumbers) {
    runReport(1, wholeProject());
    systemDatabase().execute("INSERT INTO TblCSG (CSG, TotalCalls1, Cost1) VALUES ('7', 0, 1234.5)");
    const DataTable table = readDataTable(dataView(1, 1, false));
    systemDatabase().execute("DELETE FROM TblCSG WHERE CSG = '7'");
    long before = -1;
    for (const auto& row : table.rows) {
        const std::optional<double> csg = numberOf(row[0]);
        if (!csg)
            continue;
        EXPECT_GT(*csg, before);
        before = static_cast<long>(*csg);
        if (row[0].asText() == "7") {
            EXPECT_EQ(row[4], Value("£1234.50"));
        }
    }
    EXPECT_GT(before, 100);
}

TEST_F(MapDataTest, ATableWithoutSharesOfASpendIsListedWithoutThem) {
    systemDatabase().execute("SELECT TVRegion, TotalCalls1, Answered1, Ineffective1, Cost1, Revenue1, Engaged1, RTNR1, "
                             "Other1, LostCallers1, AnsweredCallers1 INTO OldTV FROM TblTV");
    currentTables.TV = "OldTV";
    EXPECT_EQ(captionsOf(readDataTable(dataView(2, 1, false))), "TVRegion" + counts + "|Population");
    systemDatabase().execute("DROP TABLE OldTV");
}

TEST_F(MapDataTest, WithoutAMapThereIsNothingToList) {
    currentTables.clear();
    EXPECT_THROW(readDataTable(dataView(2, 1, false)), RuntimeError);
    EXPECT_THROW(readDataTable(dataView(4, 1, false)), RuntimeError);
}

TEST(DataTable, FiguresAreNumbersInWhateverForm) {
    EXPECT_EQ(numberOf(Value(3)), 3);
    EXPECT_EQ(numberOf(Value(Money{12500})), 1.25);
    EXPECT_EQ(numberOf(Value("£1234.50")), 1234.5);
    EXPECT_EQ(numberOf(Value("-£2.00")), -2);
    EXPECT_EQ(numberOf(Value("0.125")), 0.125);
    for (const Value& none : {Value(), Value(""), Value("London")})
        EXPECT_EQ(numberOf(none), std::nullopt);
}

} // namespace
