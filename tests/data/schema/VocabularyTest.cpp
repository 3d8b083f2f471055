#include "data/schema/Vocabulary.h"

#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "data/types/Value.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace {

const Field& fieldOf(DatabaseKind database, std::string_view table, std::string_view name) {
    const Field* field = vocabularyTable(database, table).findField(name);
    if (!field)
        throw std::out_of_range(std::string(table) + " has no column " + std::string(name));
    return *field;
}

int positionOf(std::string_view table, std::string_view name) {
    const TableDef& definition = vocabularyTable(DatabaseKind::SystemMap, table);
    for (std::size_t i = 0; i < definition.fields.size(); ++i) {
        if (equalText(definition.fields[i].name, name))
            return static_cast<int>(i);
    }
    return -1;
}

void expectSame(const Field& actual, const Field& expected, const std::string& table) {
    SCOPED_TRACE(table + "." + expected.name);
    EXPECT_EQ(actual.name, expected.name);
    EXPECT_EQ(actual.type, expected.type);
    EXPECT_EQ(actual.size, expected.size);
    EXPECT_EQ(actual.allowZeroLength, expected.allowZeroLength);
    EXPECT_EQ(actual.defaultValue, expected.defaultValue);
}

TEST(Vocabulary, EveryTableCanBeMadeAndReadsBackTheSame) {
    const TemporaryFolder folder;
    for (const DatabaseKind kind : {DatabaseKind::Project, DatabaseKind::SystemMap, DatabaseKind::CustomerGroups}) {
        const std::string path = folder.file(std::to_string(static_cast<int>(kind)) + ".mdb");
        auto workspace = Workspace::create();
        auto database = workspace->createDatabase(path);
        std::size_t made = 0;
        for (const VocabularyTable& table : tableVocabulary()) {
            if (table.database == kind) {
                createVocabularyTable(*database, kind, table.definition.name);
                ++made;
            }
        }
        database->close();
        database = workspace->openDatabase(path);
        EXPECT_EQ(database->tableDefs().count(), made);
        for (const VocabularyTable& table : tableVocabulary()) {
            if (table.database != kind)
                continue;
            const TableDef* found = database->tableDefs().find(table.definition.name);
            ASSERT_NE(found, nullptr) << table.definition.name;
            ASSERT_EQ(found->fields.size(), table.definition.fields.size()) << table.definition.name;
            for (std::size_t i = 0; i < found->fields.size(); ++i)
                expectSame(found->fields[i], table.definition.fields[i], table.definition.name);
        }
    }
}

TEST(Vocabulary, NamesStandOnceInTheirDatabaseAndColumnsOnceInTheirTable) {
    std::set<std::pair<DatabaseKind, std::string>> tables;
    for (const VocabularyTable& table : tableVocabulary()) {
        EXPECT_TRUE(tables.emplace(table.database, foldText(table.definition.name)).second) << table.definition.name;
        std::set<std::string> columns;
        for (const Field& field : table.definition.fields)
            EXPECT_TRUE(columns.insert(foldText(field.name)).second) << table.definition.name << "." << field.name;
    }
}

TEST(Vocabulary, TablesAreFoundWithoutCaseAndOnlyInTheirDatabase) {
    EXPECT_EQ(vocabularyTable(DatabaseKind::SystemMap, "TBLTVBYPOPULATION").name, "tblTVByPopulation");
    EXPECT_THROW(vocabularyTable(DatabaseKind::Project, "TblTV"), std::out_of_range);
    EXPECT_THROW(vocabularyTable(DatabaseKind::CommunityGroups, "TblGroups"), std::out_of_range);
}

struct Width {
    const char* column;
    int width;
};

class CaptureWidths : public testing::TestWithParam<Width> {};

TEST_P(CaptureWidths, InTheProjectWithoutEmptyTextsAndTheSameInTheSystemMap) {
    const auto [column, width] = GetParam();
    const Field& project = fieldOf(DatabaseKind::Project, "TblDataCapture", column);
    EXPECT_EQ(project.type, FieldType::Text);
    EXPECT_EQ(project.size, width);
    EXPECT_FALSE(project.allowZeroLength);
    EXPECT_EQ(fieldOf(DatabaseKind::SystemMap, "TblDataCapture", column).size, width);
}

INSTANTIATE_TEST_SUITE_P(TblDataCapture, CaptureWidths,
                         testing::Values(Width{"ProjectName", 250}, Width{"BoundaryType", 20}, Width{"StartTime1", 10},
                                         Width{"EndTime7", 10}, Width{"SelectedInboundNo1", 20},
                                         Width{"SelectedInboundNo2", 20}, Width{"SelectedCommunityGroup1", 30},
                                         Width{"SelectedAnswerPt1", 30}, Width{"SelectedAnswerPtGroup2", 30},
                                         Width{"AnimateStartTime", 10}, Width{"AnimateInboundNo", 20},
                                         Width{"AnimateAnswerPtGroup", 30}, Width{"SelectedDestinationNo1", 20},
                                         Width{"SelectedDestinationNo2", 30}),
                         [](const auto& row) { return std::string(row.param.column); });

TEST(Vocabulary, CaptureDatesBeginWithZeroAndItsTextsInAProjectAreNeverEmpty) {
    int dates = 0;
    for (const Field& field : vocabularyTable(DatabaseKind::Project, "TblDataCapture").fields) {
        if (field.type == FieldType::Text) {
            EXPECT_FALSE(field.allowZeroLength) << field.name;
        }
        if (field.type == FieldType::Date && field.name != "Captured") {
            EXPECT_EQ(field.defaultValue, "0") << field.name;
            ++dates;
        }
    }
    EXPECT_EQ(dates, 2 + 7 * 2 + 1);
    // The system map's row holds empty texts for the filters that were not used.
    EXPECT_TRUE(fieldOf(DatabaseKind::SystemMap, "TblDataCapture", "SelectedInboundNo1").allowZeroLength);
}

struct StatisticsTable {
    const char* name;
    const char* key;
    int slots;
    bool averages;
    bool campaignCost;
};

class StatisticsLayout : public testing::TestWithParam<StatisticsTable> {};

TEST_P(StatisticsLayout, HasItsSlotsAtTheirPositions) {
    const StatisticsTable& table = GetParam();
    const TableDef& definition = vocabularyTable(DatabaseKind::SystemMap, table.name);
    EXPECT_EQ(definition.fields.front().name, table.key);
    constexpr const char* measures[] = {"TotalCalls", "Answered", "Ineffective", "Cost",        "Revenue",
                                        "Engaged",    "RTNR",     "Other",       "LostCallers", "AnsweredCallers"};
    for (int slot = 1; slot <= table.slots; ++slot) {
        for (int i = 0; i < 10; ++i)
            EXPECT_EQ(positionOf(table.name, measures[i] + std::to_string(slot)), (slot - 1) * 10 + 1 + i);
    }
    const int extra = (table.averages ? 1 : 0) + (table.campaignCost ? 2 : 0);
    EXPECT_EQ(static_cast<int>(definition.fields.size()), 1 + table.slots * 10 + extra);
    EXPECT_EQ(positionOf(table.name, "AverageCalls1"), table.averages ? table.slots * 10 + 1 : -1);
    if (table.campaignCost) {
        EXPECT_EQ(positionOf(table.name, "AreaCostPerAnsweredCaller"), static_cast<int>(definition.fields.size()) - 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Statistics, StatisticsLayout,
                         testing::Values(StatisticsTable{"TblTV", "TVRegion", 1, true, true},
                                         StatisticsTable{"TblCSG", "CSG", 1, false, true},
                                         StatisticsTable{"TblExchangeArea", "Exchange", 7, false, true},
                                         StatisticsTable{"TblPostCodeDistrict", "PostCodeDistrict", 7, true, true},
                                         StatisticsTable{"TblCustomerGroups", "GroupName", 7, false, true},
                                         StatisticsTable{"TblSelectedDataForTV", "TVRegion", 7, true, true},
                                         StatisticsTable{"TblSelectedDataForCSG", "CSG", 1, false, true},
                                         StatisticsTable{"TblAnimatedPostCodeDistrict2", "PostCodeDistrict", 5, false,
                                                         false},
                                         StatisticsTable{"tblTVByPopulation", "TVRegion", 1, false, true}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Vocabulary, FiguresAreCountsAndMoneyAndRatiosWherePopulationDividesThem) {
    EXPECT_EQ(fieldOf(DatabaseKind::SystemMap, "TblTV", "TotalCalls1").type, FieldType::Long);
    EXPECT_EQ(fieldOf(DatabaseKind::SystemMap, "TblTV", "Revenue1").type, FieldType::Currency);
    EXPECT_EQ(fieldOf(DatabaseKind::SystemMap, "tblTVByPopulation", "TotalCalls1").type, FieldType::Double);
    EXPECT_EQ(fieldOf(DatabaseKind::SystemMap, "tblTVByPopulation", "Revenue1").type, FieldType::Double);
}

TEST(Vocabulary, CallTableIsNotMistakenForTheOutdatedLayout) {
    const TableDef& calls = vocabularyTable(DatabaseKind::Project, "TblTeleItem");
    ASSERT_GE(calls.fields.size(), 12u);
    EXPECT_FALSE(equalText(calls.fields[11].name, "Predisc"));
    EXPECT_EQ(calls.findField("Discounted")->type, FieldType::Currency);
    EXPECT_EQ(calls.findField("PayPhone")->size, 1);
}

} // namespace
