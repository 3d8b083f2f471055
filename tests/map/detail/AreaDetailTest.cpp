#include "map/detail/AreaDetail.h"

#include "core/ModDeclarations.h"
#include "data/schema/Vocabulary.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

/// An installation with one area of each boundary, numbered 1, and Ireland, numbered 2.
class AreaDetailTest : public testing::Test {
protected:
    AreaDetailTest() {
        for (const char* table : {"PGN_CSG", "PGN_POSTCODEDISTRICT", "TblExchangeArea", "TblPostCodeDistrict"})
            createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, table);
        createVocabularyTable(*gdbProject, DatabaseKind::Project, "TblGroups");
        for (const char* table : {"PGN_TV", "PGN_CSG", "PGN_EXCHANGEAREA", "PGN_POSTCODEDISTRICT"})
            addPolygon(table, "Name", "Republic Of Ireland", 2);
        gdbSystem->execute(
            "CREATE TABLE TblGroup_Link (TallyAccount TEXT(50), Reference TEXT(50), GroupName TEXT(50))");
    }

    static void addPolygon(const std::string& table, const std::string& field, const std::string& name, int number) {
        gdbSystem->execute("INSERT INTO " + table + " (" + field + ", POLYGONID) VALUES ('" + name + "', " +
                           std::to_string(number) + ")");
    }

    static void addFigures(const std::string& table, const std::string& key, const std::string& name) {
        gdbSystem->execute("INSERT INTO " + table + " (" + key +
                           ", Answered1, Engaged1, RTNR1, Other1, Ineffective1, Cost1, Revenue1, LostCallers1, "
                           "AnsweredCallers1) VALUES ('" +
                           name + "', 12, 3, 2, 1, 6, 1234.5678, 0.5, 4, 9)");
    }

    static AreaQuestion about(const std::string& boundaryType, const std::string& table) {
        AreaQuestion question;
        question.boundaryType = boundaryType;
        question.table = table;
        return question;
    }

    SmallInstallation installation_;
};

using Texts = std::vector<std::string>;

TEST_F(AreaDetailTest, ARegionTellsItsFiguresAndItsExchangesInOrder) {
    addPolygon("PGN_TV", "Name", "Granada ", 1);
    addFigures("TblTV", "TVRegion", "Granada");
    installation_.addPlaces({{"A", "Granada", "WIGAN"}, {"B", "Granada", "BURY"}, {"C", "Anglia", "DISS"}});
    const AreaAnswer answer = detailOfPolygon(about("TVRegion", "TblTV"), 1);
    ASSERT_TRUE(answer.detail.has_value()) << answer.message;
    const AreaDetail& detail = *answer.detail;
    EXPECT_EQ(detail.title, "TV Region = Granada");
    EXPECT_EQ(detail.listHeading, "Exchanges included in this TV Area");
    EXPECT_EQ(detail.exchanges, (Texts{"BURY", "WIGAN"}));
    EXPECT_EQ(detail.answered, "Answered calls = 12");
    EXPECT_EQ(detail.engaged, "Ineffective engaged = 3");
    EXPECT_EQ(detail.rtnr, "Ineffective RTNR = 2");
    EXPECT_EQ(detail.other, "Ineffective other = 1");
    EXPECT_EQ(detail.ineffective, "Total Ineffective = 6");
    EXPECT_EQ(detail.cost, "Cost\\(Revenue) = £1,234.568\\(£0.500)");
    EXPECT_EQ(detail.lostCallers, "Lost Callers = 4");
    EXPECT_EQ(detail.answeredCallers, "Answered Callers = 9");
    EXPECT_FALSE(detail.population.has_value());
    EXPECT_FALSE(detail.campaign.has_value());
}

TEST_F(AreaDetailTest, EveryBoundaryHasItsOwnWords) {
    struct Case {
        const char* boundaryType;
        const char* shapes;
        const char* field;
        const char* table;
        const char* key;
        const char* title;
        std::optional<std::string> heading;
        Texts list;
    };
    const Case cases[] = {
        {"CSG",
         "PGN_CSG",
         "Name",
         "TblCSG",
         "CSG",
         "CSG = 17",
         "Exchanges included in this CSG",
         {"No Exchanges found for this CSG"}},
        {"Exchange", "PGN_EXCHANGEAREA", "Name", "TblExchangeArea", "Exchange", "Exchange = 17", std::nullopt, {}},
        {"PostcodeDistrict",
         "PGN_POSTCODEDISTRICT",
         "Name",
         "TblPostCodeDistrict",
         "PostCodeDistrict",
         "Post Code = 17",
         "Exchanges included in this Post Code",
         {"No Exchanges found for this post code"}},
        {"CustomerGroups",
         "PGN_GROUPS",
         "GroupName",
         "TblCustomerGroups",
         "GroupName",
         "Customer Group = 17",
         "Exchanges included in this Group",
         {"No Exchanges found for this post code"}},
    };
    for (const Case& item : cases) {
        addPolygon(item.shapes, item.field, "17", 1);
        EXPECT_EQ(detailOfPolygon(about(item.boundaryType, item.table), 1).message, "Details not found")
            << item.boundaryType;
        addFigures(item.table, item.key, "17");
        const AreaAnswer answer = detailOfPolygon(about(item.boundaryType, item.table), 1);
        ASSERT_TRUE(answer.detail.has_value()) << item.boundaryType << answer.message;
        EXPECT_EQ(answer.detail->title, item.title);
        EXPECT_EQ(answer.detail->listHeading, item.heading);
        EXPECT_EQ(answer.detail->exchanges, item.list);
    }
}

TEST_F(AreaDetailTest, IrelandHasNoDetailExceptAsARegionOfAnotherSpelling) {
    for (const char* type : {"CSG", "Exchange", "PostcodeDistrict"}) {
        const AreaAnswer answer = detailOfPolygon(about(type, "TblCSG"), 2);
        EXPECT_FALSE(answer.detail.has_value());
        EXPECT_EQ(answer.message, "") << type;
    }
    EXPECT_EQ(detailOfPolygon(about("TVRegion", "TblTV"), 2).message, "Details not found");
    gdbSystem->execute("UPDATE PGN_TV SET Name = 'Republic of Ireland' WHERE POLYGONID = 2");
    EXPECT_EQ(detailOfPolygon(about("TVRegion", "TblTV"), 2).message, "");
}

TEST_F(AreaDetailTest, ALongExchangeIsFoundByItsFirstTwentyCharacters) {
    addPolygon("PGN_EXCHANGEAREA", "Name", "LLANFAIRPWLLGWYNGYLLGOGERYCH", 1);
    addFigures("TblExchangeArea", "Exchange", "LLANFAIRPWLLGWYNGYLLXX");
    const AreaAnswer answer = detailOfPolygon(about("Exchange", "TblExchangeArea"), 1);
    ASSERT_TRUE(answer.detail.has_value());
    EXPECT_EQ(answer.detail->title, "Exchange = LLANFAIRPWLLGWYNGYLLGOGERYCH");
}

TEST_F(AreaDetailTest, RatesHaveThreeDecimalsAndCostsAreRoundedFirst) {
    addPolygon("PGN_TV", "Name", "Granada", 1);
    createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "tblTVByPopulation");
    gdbSystem->execute("INSERT INTO tblTVByPopulation (TVRegion, Answered1, Ineffective1, Cost1) VALUES ('Granada', "
                       "0.12345, 0.0005, 2.345)");
    gdbSystem->execute("INSERT INTO tblTVPopulationDensity (Reference, Population) VALUES ('Granada', 5000000)");
    AreaQuestion question = about("TVRegion", "tblTVByPopulation");
    question.densities = true;
    gbTVPopulation = true;
    const AreaAnswer answer = detailOfPolygon(question, 1);
    ASSERT_TRUE(answer.detail.has_value());
    EXPECT_EQ(answer.detail->answered, "Answered calls = 0.123 per head of population");
    EXPECT_EQ(answer.detail->ineffective, "Total Ineffective = 0 per head of population") << "halves go to the even";
    EXPECT_EQ(answer.detail->lostCallers, "Lost Callers = 0 per head of population");
    EXPECT_EQ(answer.detail->cost, "Cost\\(Revenue) = £2.340\\(£0.000) per head of population");
    EXPECT_EQ(answer.detail->population, "Population: 5000000");
    gbTVPopulation = false;
    EXPECT_FALSE(detailOfPolygon(question, 1).detail->population.has_value());
}

TEST_F(AreaDetailTest, TheCampaignIsDividedAndMultipliedByWhatIsShown) {
    addPolygon("PGN_TV", "Name", "Granada", 1);
    addFigures("TblTV", "TVRegion", "Granada");
    AreaQuestion question = about("TVRegion", "TblTV");
    question.campaign = CampaignCosts{.perAnsweredCall = 0.33349, .perAnsweredCaller = 1.5};
    auto campaign = detailOfPolygon(question, 1).detail->campaign;
    ASSERT_TRUE(campaign.has_value());
    EXPECT_EQ(campaign->costPerResponse, "Campaign Cost Per Answered Call = £0.333");
    EXPECT_EQ(campaign->costPerCaller, "Campaign Cost Per Answered Caller = £1.500");
    EXPECT_EQ(campaign->areaCostPerAnsweredCall, "Selected Area Cost For Answered Calls = £3.996");
    EXPECT_EQ(campaign->areaCostPerAnsweredCaller, "Selected Area Cost For Answered Callers = £13.5");
    question.campaign->perAnsweredCaller = -1;
    campaign = detailOfPolygon(question, 1).detail->campaign;
    EXPECT_EQ(campaign->costPerCaller, "Campaign Cost Per Answered Caller = £0.000");
    EXPECT_EQ(campaign->areaCostPerAnsweredCaller, "Selected Area Cost For Answered Callers = £0");
}

TEST_F(AreaDetailTest, CallsWithoutAPlaceHaveNoListAndExchangesNoCallersOfSomeOfThem) {
    for (const char* name : {"Mobile", "International"}) {
        addFigures("TblTV", "TVRegion", name);
        addFigures("TblExchangeArea", "Exchange", name);
        addFigures("TblPostCodeDistrict", "PostCodeDistrict", name);
    }
    const AreaAnswer mobile = detailOfCallType(about("TVRegion", "TblTV"), "Mobile");
    ASSERT_TRUE(mobile.detail.has_value());
    EXPECT_EQ(mobile.detail->title, "TV Region = Mobile");
    EXPECT_FALSE(mobile.detail->listHeading.has_value());
    EXPECT_EQ(detailOfCallType(about("PostcodeDistrict", "TblPostCodeDistrict"), "Mobile").detail->title,
              "Postcode District = Mobile");
    const AreaQuestion exchanges = about("Exchange", "TblExchangeArea");
    EXPECT_TRUE(detailOfCallType(exchanges, "Mobile").detail->lostCallers.has_value());
    EXPECT_FALSE(detailOfCallType(exchanges, "International").detail->lostCallers.has_value());
    EXPECT_FALSE(detailOfCallType(exchanges, "International").detail->answeredCallers.has_value());
    EXPECT_EQ(detailOfCallType(exchanges, "VOIP").message, "Details not found");
}

TEST_F(AreaDetailTest, AGroupListsTheExchangesOfItsAreasAndFromABarItsCallTypes) {
    addPolygon("PGN_GROUPS", "GroupName", "North", 1);
    addFigures("TblCustomerGroups", "GroupName", "North");
    installation_.addPlaces({{"A", "Granada", "WIGAN"}, {"B", "Border", "CARLISLE"}, {"C", "Anglia", "DISS"}});
    gdbProject->execute(
        "INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'Granada', 'North')");
    gdbProject->execute("INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'Mobile', 'North')");
    AreaQuestion question = about("CustomerGroups", "TblCustomerGroups");
    question.groupBaseGeography = 2;
    EXPECT_EQ(detailOfPolygon(question, 1).detail->exchanges, Texts{"WIGAN"});

    EXPECT_EQ(detailOfCallType(question, "Mobile").message, "This area is not included in a Group");
    gdbSystem->execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'Mobile', 'North')");
    const AreaAnswer answer = detailOfCallType(question, "Mobile");
    ASSERT_TRUE(answer.detail.has_value()) << answer.message;
    EXPECT_EQ(answer.detail->title, "Customer Group = North");
    EXPECT_EQ(answer.detail->exchanges, (Texts{"MOBILE", "WIGAN"}));
    EXPECT_EQ(detailOfPolygon(question, 99).message, "This area is not included in a Group");
}

} // namespace
