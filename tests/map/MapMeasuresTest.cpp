#include "map/MapMeasures.h"

#include <gtest/gtest.h>

TEST(MapMeasures, EachMapTypeHasItsColumnAndItsMaximum) {
    const MapMaxima maxima{1, 2, 3, 4, 5, 6, 7, 8};
    const std::pair<long, const char*> columns[] = {{1, "TotalCalls3"},  {2, "Answered3"},        {3, "Ineffective3"},
                                                    {4, "Cost3"},        {5, "Revenue3"},         {8, "AverageCalls3"},
                                                    {9, "LostCallers3"}, {10, "AnsweredCallers3"}};
    double expected = 1;
    for (const auto& [mapType, column] : columns) {
        EXPECT_EQ(statisticsColumn(mapType, 3), column);
        EXPECT_EQ(findMapMeasure(mapType)->maximum(maxima), expected++) << column;
    }
}

TEST(MapMeasures, OtherMapTypesHaveNoColumn) {
    for (long mapType : {0, 6, 7, 11, -1}) {
        EXPECT_EQ(statisticsColumn(mapType, 1), "");
        EXPECT_EQ(findMapMeasure(mapType), nullptr);
    }
}

TEST(MapMeasures, MoneyIsShownInPounds) {
    EXPECT_EQ(unitSignOf("Cost1"), "£");
    EXPECT_EQ(unitSignOf("rEvenue7"), "£");
    EXPECT_EQ(unitSignOf("AnsweredCallers1"), "");
}
