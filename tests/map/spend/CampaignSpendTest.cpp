#include "map/spend/CampaignSpend.h"

#include "core/ModDeclarations.h"
#include "data/project/CreateLinkTables.h"
#include "data/schema/Vocabulary.h"
#include "map/detail/AreaDetail.h"
#include "stats/CurrentTables.h"
#include "stats/FigureEngine.h"
#include "stats/SelectionState.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

/// Four answered calls: two of one caller, one of another, one of a caller who is not known.
class CampaignSpendTest : public testing::Test {
protected:
    CampaignSpendTest() {
        installation_.addCalls(
            {{"01", "A", "0"}, {"01", "A", "8"}, {"02", "A", "0"}, {"", "B", "0"}, {"03", "B", "2"}});
        installation_.addPlaces({{"A", "Granada"}, {"B", "Anglia"}});
        EXPECT_EQ(ModUtilities_CreateLinkTables(), 0);
        addRegion("TblTV");
        currentTables.clear();
        currentTables.TV = "TblTV";
        FilterActive = false;
        campaignCosts = {};
    }
    ~CampaignSpendTest() override { setFigureEngine(FigureEngine::Automatic); }

    static void addRegion(const std::string& table) {
        gdbSystem->execute("INSERT INTO " + table +
                           " (TVRegion, Answered1, AnsweredCallers1) VALUES ('Granada', 3, 2)");
    }
    static std::string costsIn(const std::string& table) {
        return rowsOf(*gdbSystem, "SELECT AreaCostPerAnsweredCall, AreaCostPerAnsweredCaller FROM " + table).at(0);
    }
    bool enter(const std::string& text) {
        prompts_.entries = {text};
        return enterCampaignSpend();
    }

    SmallInstallation installation_;
    ScriptedPrompts prompts_;
};

TEST_F(CampaignSpendTest, SpreadsTheSpendOverAnsweredCallsAndTheirCallersByBothSourcesOfFigures) {
    for (const FigureEngine engine : {FigureEngine::Scan, FigureEngine::Statements}) {
        setFigureEngine(engine);
        campaignCosts = {};
        ASSERT_TRUE(enter("100.00"));
        EXPECT_EQ(gcCampaignSpend, 100);
        EXPECT_EQ(campaignCosts.perAnsweredCall, 25);
        EXPECT_EQ(campaignCosts.perAnsweredCaller, 33.3333);
    }
    EXPECT_EQ(prompts_.questions.back().text, "100"); // the amount of the first time
    EXPECT_EQ(prompts_.questions.back().format, TextFormat::Currency);
    ASSERT_TRUE(updateCostPerCallStats(2, 1));
    EXPECT_EQ(costsIn("TblTV"), "75|50");
    EXPECT_TRUE(installation_.logLines().empty());
}

TEST_F(CampaignSpendTest, GoesToTheTableThatTheMapShows) {
    ASSERT_TRUE(enter("40"));
    createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "tblTVByPopulation");
    for (const char* table : {"TblSelectedDataForTV", "tblTVByPopulation"})
        addRegion(table);
    currentTables.TV = "TBLTVBYPOPULATION";
    ASSERT_TRUE(updateCostPerCallStats(2, 1));
    EXPECT_EQ(costsIn("tblTVByPopulation"), "30|20");
    FilterActive = true;
    ASSERT_TRUE(updateCostPerCallStats(2, 1));
    EXPECT_EQ(costsIn("TblSelectedDataForTV"), "30|20");
    gdbSystem->execute("UPDATE TblSelectedDataForTV SET Answered3 = 10, AnsweredCallers3 = 4");
    ASSERT_TRUE(updateCostPerCallStats(2, 3));
    EXPECT_EQ(costsIn("TblSelectedDataForTV"), "100|40");
    EXPECT_EQ(costsIn("TblTV"), "null|null");
}

TEST_F(CampaignSpendTest, NothingSpentClearsTheCosts) {
    ASSERT_TRUE(enter("40"));
    ASSERT_TRUE(updateCostPerCallStats(2, 1));
    ASSERT_TRUE(enter("0"));
    ASSERT_TRUE(updateCostPerCallStats(2, 1));
    EXPECT_EQ(costsIn("TblTV"), "0|0");
}

TEST_F(CampaignSpendTest, RatesOfAFormerProjectChargeNobody) {
    ASSERT_TRUE(enter("40"));
    gcCampaignSpend = 0; // as opening a project does
    ASSERT_TRUE(updateCostPerCallStats(2, 1));
    EXPECT_EQ(costsIn("TblTV"), "0|0");
}

TEST_F(CampaignSpendTest, AnAmountThatIsRefusedLeavesTheOldOne) {
    ASSERT_TRUE(enter("40"));
    for (const char* text : {"000000000000001", "99999999999999", "1234567890.12345", ".", ""}) {
        prompts_.texts.clear();
        EXPECT_FALSE(enter(text)) << text;
        EXPECT_EQ(prompts_.texts.size(), 1U) << text;
    }
    EXPECT_FALSE(enterCampaignSpend()); // cancelled
    EXPECT_EQ(gcCampaignSpend, 40);
    EXPECT_EQ(campaignCosts.perAnsweredCall, 10);
    prompts_.texts.clear();
    EXPECT_TRUE(enter("99999999999998"));
    EXPECT_FALSE(enter("99999999999999"));
    EXPECT_EQ(prompts_.texts.front(), "Campaign Spend total must be less than 99999999999999");
}

TEST_F(CampaignSpendTest, WithoutAnsweredCallsTheOldRatesStay) {
    ASSERT_TRUE(enter("40"));
    gdbProject->execute("UPDATE TblTeleItem SET AnswerInd = '2'");
    EXPECT_FALSE(enter("80"));
    EXPECT_EQ(campaignCosts.perAnsweredCall, 10);
    EXPECT_EQ(installation_.logLinesWith("\"FrmMap_cmdCampaignSpend_Click\",11"), 1);
}

TEST_F(CampaignSpendTest, ATableWithoutTheColumnsIsAFailure) {
    ASSERT_TRUE(enter("40"));
    gdbSystem->execute("DROP TABLE TblTV");
    gdbSystem->execute("CREATE TABLE TblTV (TVRegion TEXT(50), Answered1 LONG)");
    EXPECT_FALSE(updateCostPerCallStats(2, 1));
    EXPECT_EQ(installation_.logLinesWith("FrmMap_UpdateCostPerCallStats"), 1);
}

} // namespace
