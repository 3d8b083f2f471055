#include "map/ClassBreaks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

std::vector<std::string> namesFor(double maximum, std::string_view unitSign = "") {
    std::vector<std::string> names;
    for (const NumericBand& band : numericBands(splitBandList(bandList(maximum)), unitSign))
        names.push_back(band.name);
    return names;
}

struct BandRow {
    double from;  ///< the smallest maximum with this list
    double below; ///< the first maximum with the next one
    std::string list;
};

class BandList : public testing::TestWithParam<BandRow> {};

} // namespace

TEST_P(BandList, HoldsFromItsRowToTheNext) {
    const BandRow& row = GetParam();
    EXPECT_EQ(bandList(row.from), row.list);
    EXPECT_EQ(bandList(std::nextafter(row.below, 0.0)), row.list);
    EXPECT_NE(bandList(row.below), row.list);
}

INSTANTIATE_TEST_SUITE_P(
    Ladder, BandList,
    testing::Values(
        BandRow{0.05, 0.1, "0.01625,0.0325,0.04875,0.065,0.08125,0.0975,0.11375,0.13"},
        BandRow{0.1, 0.2, "0.03125,0.0625,0.09375,0.125,0.15625,0.1875,0.21875,0.25"},
        BandRow{0.2, 0.25, "0.0375,0.075,0.1125,0.15,0.1875,0.225,0.2625,0.3"},
        BandRow{0.25, 0.5, "0.05,0.1,0.15,0.2,0.25,0.3,0.35,0.4"},
        BandRow{0.5, 0.75, "0.0875,0.175,0.2625,0.35,0.4375,0.525,0.6125,0.7"},
        BandRow{0.75, 1, "0.125,0.25,0.375,0.5,0.625,0.75,0.875,1"}, BandRow{1, 3, "0.25,0.5,0.75,1,1.25,1.5,1.75,2"},
        BandRow{3, 5, "0.375,0.75,1.125,1.5,1.875,2.25,2.625,3"}, BandRow{5, 8, "0.75,1.5,2.25,3,3.75,4.5,5.25,6"},
        BandRow{8, 10, "1, 3, 7"}, BandRow{10, 20, "1, 5, 10, 15"}, BandRow{20, 30, "3,6,9,12,15,18,21,24"},
        BandRow{30, 40, "4,8,12,16,20,24,28,32"}, BandRow{40, 60, "7,14,21,28,35,42,49,56"},
        BandRow{60, 80, "1, 5,9,18,27,36,45,54,63,72"}, BandRow{80, 100, "1, 5,12,24,36,48,60,72,84,96"},
        BandRow{100, 150, "1, 5,17,34,51,68,85,102,119,136"}, BandRow{150, 200, "1, 5,23,46,69,92,115,138,161,184"},
        BandRow{200, 300, "1, 5,30,60,90,120,150,180,210,240"}, BandRow{300, 400, "1, 5,40,80,120,160,200,240,280,320"},
        BandRow{400, 500, "1, 5,55,110,165,220,275,330,385,440"},
        BandRow{500, 600, "1, 5,70,140,210,280,350,420,490,560"},
        BandRow{600, 800, "1, 5,90,180,270,360,450,540,630,720"},
        BandRow{800, 1000, "1, 5,120,240,360,480,600,720,840,960"},
        BandRow{1000, 1500, "1, 5,170,340,510,680,850,1020,1190,1360"},
        BandRow{1500, 2000, "1, 5,230,460,690,920,1150,1380,1610,1840"},
        BandRow{2000, 3000, "1, 5,300,600,900,1200,1500,1800,2100,2400"},
        BandRow{3000, 4000, "1, 5,400,800,1200,1600,2000,2400,2800,3200"},
        BandRow{4000, 5000, "1, 5,550,1100,1650,2200,2750,3300,3850,4400"},
        BandRow{5000, 6000, "1, 5,700,1400,2100,2800,3500,4200,4900,5600"},
        BandRow{6000, 8000, "1, 5,900,1800,2700,3600,4500,5400,6300,7200"},
        BandRow{8000, 10000, "1, 5,1200,2400,3600,4800,6000,7200,8400,9600"},
        BandRow{10000, 20000, "1, 5,2300,4600,6900,9200,11500,13800,16100,18400"},
        BandRow{20000, 30000, "1, 5,3000,6000,9000,12000,15000,18000,21000,24000"},
        BandRow{30000, 40000, "1, 5,4000,8000,12000,16000,20000,24000,28000,32000"},
        BandRow{40000, 50000, "1, 5,5500,11000,16500,22000,27500,33000,38500,44000"},
        BandRow{50000, 60000, "1, 5,7000,14000,21000,28000,35000,42000,49000,56000"},
        BandRow{60000, 80000, "1, 5,9000,18000,27000,36000,45000,54000,63000,72000"},
        BandRow{80000, 100000, "1, 5,12000,24000,36000,48000,60000,72000,84000,96000"},
        BandRow{100000, 200000, "1, 5,23000,46000,69000,92000,115000,138000,161000,184000"},
        BandRow{200000, 300000, "1, 5,30000,60000,90000,120000,150000,180000,210000,240000"},
        BandRow{300000, 400000, "1, 5,40000,80000,120000,160000,200000,240000,280000,320000"},
        BandRow{400000, 500000, "1, 5,55000,110000,165000,220000,275000,330000,385000,440000"},
        BandRow{500000, 600000, "1, 5,70000,140000,210000,280000,350000,420000,490000,560000"},
        BandRow{600000, 800000, "1, 5,9000,18000,27000,36000,45000,54000,63000,72000"},
        BandRow{800000, 1000000, "1, 5,120000,240000,360000,480000,600000,720000,840000,960000"}),
    [](const auto& row) {
        std::string name = "From" + shortestText(row.param.from);
        for (char& c : name) {
            if (c == '.')
                c = '_';
        }
        return name;
    });

TEST(ClassBreaks, TinyMaximaHaveATopOfTwoThirds) {
    EXPECT_EQ(topOfScale(0.0), 0.0);
    EXPECT_EQ(topOfScale(0.03), 0.02);   // 0.0198
    EXPECT_EQ(topOfScale(0.049), 0.032); // 0.03234
    EXPECT_EQ(bandList(0.049), "0.004,0.008,0.012,0.016,0.02,0.024,0.028,0.032");
    EXPECT_EQ(bandList(0.0), "0,0,0,0,0,0,0,0");
}

TEST(ClassBreaks, TheSmallestStepsAreWrittenAsDecimals) {
    EXPECT_EQ(bandList(0.002), "0.000125,0.00025,0.000375,0.0005,0.000625,0.00075,0.000875,0.001");
    EXPECT_EQ(namesFor(0.002)[0], "0 to 0.000124");
    EXPECT_EQ(namesFor(0.002)[4], "0.0005 to 0.000624");
    EXPECT_EQ(topOfScale(0.0007), 0.0) << "0.000462 rounds to nothing";
    EXPECT_EQ(topOfScale(0.0025 / 0.66), 0.002) << "half to even";
}

TEST(ClassBreaks, FromAMillionOnTheMaximumIsTheTop) {
    EXPECT_EQ(bandList(1000000), "1, 5,125000,250000,375000,500000,625000,750000,875000,1000000");
    EXPECT_EQ(bandList(1234567), "1, 5,154320.875,308641.75,462962.625,617283.5,771604.375,925925.25,1080246.125,"
                                 "1234567");
    EXPECT_EQ(namesFor(1234567)[3], "154320.875 to 308641.74");
}

struct NameRow {
    std::string name;
    double maximum;
    std::string unitSign;
    std::vector<std::string> names;
};

class BandNames : public testing::TestWithParam<NameRow> {};

TEST_P(BandNames, ReadAsInTheKey) {
    EXPECT_EQ(namesFor(GetParam().maximum, GetParam().unitSign), GetParam().names);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, BandNames,
    testing::Values(
        NameRow{"NothingAtAll",
                0,
                "",
                {"0 to -0.1", "0 to -0.1", "0 to -0.1", "0 to -0.1", "0 to -0.1", "0 to -0.1", "0 to -0.1", "0 to -0.1",
                 "0 + "}},
        NameRow{"StepsOfThreeQuarters",
                7,
                "",
                {"0 to 0.74", "0.75 to 1.4", "1.5 to 2.24", "2.25 to 2.9", "3 to 3.74", "3.75 to 4.4", "4.5 to 5.24",
                 "5.25 to 5.9", "6 + "}},
        NameRow{"ThreeBreaks", 9, "", {"0", "1 to 2", " 3 to 6", " 7 + "}},
        NameRow{"FourBreaks", 15, "", {"0", "1 to 4", " 5 to 9", " 10 to 14", " 15 + "}},
        NameRow{"WholeSteps",
                25,
                "",
                {"0 to 2", "3 to 5", "6 to 8", "9 to 11", "12 to 14", "15 to 17", "18 to 20", "21 to 23", "24 + "}},
        NameRow{"ScaleThatEndsEarly",
                700000,
                "",
                {"0", "1 to 4", " 5 to 8999", "9000 to 17999", "18000 to 26999", "27000 to 35999", "36000 to 44999",
                 "45000 to 53999", "54000 to 62999", "63000 to 71999", "72000 + "}},
        NameRow{"FiveDigitsBehindThePoint",
                0.07,
                "",
                {"0 to 0.01624", "0.01625 to 0.0324", "0.0325 to 0.04874", "0.04875 to 0.064", "0.065 to 0.08124",
                 "0.08125 to 0.0974", "0.0975 to 0.11374", "0.11375 to 0.12", "0.13 + "}},
        NameRow{"TenthsUpToOne",
                0.8,
                "",
                {"0 to 0.124", "0.125 to 0.24", "0.25 to 0.374", "0.375 to 0.4", "0.5 to 0.624", "0.625 to 0.74",
                 "0.75 to 0.874", "0.875 to 0.9", "1 + "}},
        NameRow{"Pounds", 9, "£", {"£0", "£1 to £2", "£ 3 to £6", "£ 7 + "}}),
    [](const auto& row) { return row.param.name; });

TEST(ClassBreaks, RangesRunFromBreakToBreak) {
    const auto bands = numericBands(splitBandList("1, 5,9"), "");

    ASSERT_EQ(bands.size(), 4u);
    EXPECT_EQ(bands[0].from.asDouble(), 0.0);
    EXPECT_EQ(bands[0].to.asDouble(), 0.0) << "the band one wide is the single value 0";
    EXPECT_EQ(bands[1].from.asDouble(), 1.0);
    EXPECT_EQ(bands[1].to.asDouble(), 5.0);
    EXPECT_EQ(bands[3].from.asDouble(), 9.0);
    EXPECT_EQ(bands[3].to.asDouble(), 100000000.0);
}

TEST(ClassBreaks, RangesKeepFourDecimalsWhereTheKeyShowsFive) {
    const auto bands = numericBands(splitBandList(bandList(0.07)), "");

    EXPECT_EQ(bands[0].to.asDouble(), 0.0162) << "money rounds half to even";
    EXPECT_EQ(bands[1].from.asDouble(), 0.0162);
    EXPECT_EQ(bands[8].from.asDouble(), 0.13);
}

TEST(ClassBreaks, SplittingKeepsBlanksAndEmptyTexts) {
    EXPECT_EQ(splitBandList("1, 3, 7"), (std::vector<std::string>{"1", " 3", " 7"}));
    EXPECT_EQ(splitBandList("a,,b"), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_TRUE(splitBandList("").empty());
    EXPECT_TRUE(isNumericText(" 7"));
    EXPECT_FALSE(isNumericText("7a"));
    EXPECT_FALSE(isNumericText(" "));
}
