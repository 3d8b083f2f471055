#include "map/data/DataStatement.h"
#include "data/types/Value.h"

#include <gtest/gtest.h>

namespace {

const std::string costs = ", AreaCostPerAnsweredCall AS [Area Cost Per Answered Call], AreaCostPerAnsweredCaller AS "
                          "[Area Cost Per Answered Caller]";

/// The statement without what does not change its meaning: case, and blanks beside commas and at the end.
std::string normal(const std::string& statement) {
    std::string text;
    for (const char c : lowerText(statement)) {
        if (c == ' ' && (text.empty() || text.back() == ' ' || text.back() == ','))
            continue;
        if (c == ',' && !text.empty() && text.back() == ' ')
            text.pop_back();
        text += c;
    }
    return std::string(trimmedText(text));
}

struct Variant {
    const char* name;
    DataView view;
    std::string statement;
};

const Variant variants[] = {
    {"CSGs",
     {.boundary = 1, .table = "TblCSG", .dataSet = 1},
     "Select CSG, TotalCalls1 AS TotalCalls, Answered1 AS Answered,Ineffective1 AS Ineffective, FORMAT(Cost1, '£0.00') "
     "as [Cost(£)], FORMAT(Revenue1, '£0.00') as [Revenue(£)], Engaged1 AS Engaged, RTNR1 AS RTNR, Other1 AS Other, "
     "LostCallers1 AS LostCallers, AnsweredCallers1 AS AnsweredCallers" +
         costs + " FROM TblCSG ORDER BY Format( CSG, '0000')"},
    {"exchanges",
     {.boundary = 0, .table = "TblSelectedDataForExchangeArea", .dataSet = 7, .hasPopulation = true},
     "Select Exchange, TotalCalls7 AS TotalCalls, Answered7 AS Answered,Ineffective7 AS Ineffective, FORMAT(Cost7, "
     "'£0.00') as [Cost(£)], FORMAT(Revenue7, '£0.00') as [Revenue(£)],Engaged7 AS Engaged, RTNR7 AS RTNR, Other7 AS "
     "Other, LostCallers7 AS LostCallers, AnsweredCallers7 AS AnsweredCallers" +
         costs + " FROM TblSelectedDataForExchangeArea ORDER BY Exchange"},
    {"regions",
     {.boundary = 2, .table = "TblTV", .dataSet = 1},
     "Select TVRegion, TotalCalls1 AS TotalCalls, Answered1 As Answered,Ineffective1 AS Ineffective, FORMAT(Cost1, "
     "'£0.00') as [Cost(£)], FORMAT(Revenue1, '£0.00') as [Revenue(£)],Engaged1 AS Engaged, RTNR1 AS RTNR, Other1 AS "
     "Other, LostCallers1 AS LostCallers, AnsweredCallers1 AS AnsweredCallers" +
         costs + " FROM TblTV ORDER BY TVRegion"},
    {"a frame of an animation",
     {.boundary = 2, .table = "TblAnimatedTV2", .dataSet = 5, .hasPopulation = true},
     "Select TVRegion, TotalCalls5 AS TotalCalls, Answered5 As Answered,Ineffective5 AS Ineffective, FORMAT(Cost5, "
     "'£0.00') as [Cost(£)], FORMAT(Revenue5, '£0.00') as [Revenue(£)],Engaged5 AS Engaged, RTNR5 AS RTNR, Other5 AS "
     "Other, LostCallers5 AS LostCallers, AnsweredCallers5 AS AnsweredCallers, Population FROM TblAnimatedTV2 LEFT "
     "JOIN tblTVPopulationDensity ON TblAnimatedTV2.TVRegion = tblTVPopulationDensity.Reference ORDER BY TVRegion"},
    {"districts",
     {.boundary = 3, .table = "TblPostCodeDistrict", .dataSet = 1, .hasPopulation = true},
     "Select PostCodeDistrict, TotalCalls1 AS TotalCalls, Answered1 AS Answered,Ineffective1 AS Ineffective, "
     "FORMAT(Cost1, '£0.00') as [Cost(£)], FORMAT(Revenue1, '£0.00') as [Revenue(£)],Engaged1 AS Engaged, RTNR1 AS "
     "RTNR, Other1 AS Other, LostCallers1 AS LostCallers, AnsweredCallers1 AS AnsweredCallers" +
         costs +
         ", Population FROM TblPostCodeDistrict LEFT JOIN tblPostCodePopulationDensity ON "
         "TblPostCodeDistrict.PostCodeDistrict = tblPostCodePopulationDensity.Reference  ORDER BY PostCodeDistrict"},
    {"rates of regions",
     {.boundary = 2, .table = "tblTVByPopulation", .dataSet = 1, .hasPopulation = true},
     "Select TVRegion, FORMAT(TotalCalls1, '0.000') AS TotalCalls, FORMAT(Answered1, '0.000') AS Answered, "
     "FORMAT(Ineffective1, '0.000') AS Ineffective, FORMAT(Cost1, '£0.00') as [Cost(£)], FORMAT(Revenue1, '£0.00') as "
     "[Revenue(£)], FORMAT(Engaged1, '0.000') AS Engaged, FORMAT(RTNR1, '0.000') AS RTNR, FORMAT(Other1, '0.000') AS "
     "Other, FORMAT(LostCallers1, '0.000') AS LostCallers, FORMAT(AnsweredCallers1, '0.000') AS AnsweredCallers" +
         costs +
         ", Population FROM tblTVByPopulation LEFT JOIN tblTVPopulationDensity ON tblTVByPopulation.TVRegion = "
         "tblTVPopulationDensity.Reference ORDER BY TVRegion"},
    {"rates of districts",
     {.boundary = 3, .table = "tblPostCodeByPopulation", .dataSet = 1, .hasPopulation = true},
     "Select PostCodeDistrict, FORMAT(TotalCalls1, '0.000') AS TotalCalls, FORMAT(Answered1, '0.000') AS Answered, "
     "FORMAT(Ineffective1, '0.000') AS Ineffective, FORMAT(Cost1, '£0.00') as [Cost(£)], FORMAT(Revenue1, '£0.00') as "
     "[Revenue(£)], FORMAT(Engaged1, '0.000') AS Engaged, FORMAT(RTNR1, '0.000') AS RTNR, FORMAT(Other1, '0.000') AS "
     "Other, FORMAT(LostCallers1, '0.000') AS LostCallers, FORMAT(AnsweredCallers1, '0.000') AS AnsweredCallers, "
     "AreaCostPerAnsweredCall, AreaCostPerAnsweredCaller , Population FROM tblPostCodeByPopulation LEFT JOIN "
     "tblPostCodePopulationDensity ON tblPostCodeByPopulation.PostCodeDistrict = "
     "tblPostCodePopulationDensity.Reference  ORDER BY PostCodeDistrict"},
    {"customer groups",
     {.boundary = 5, .table = "TblCustomerGroups", .dataSet = 1, .hasPopulation = true},
     "Select GroupName, TotalCalls1, Answered1,Ineffective1, FORMAT(Cost1, '£0.00') as [Cost(£)], FORMAT(Revenue1, "
     "'£0.00') as [Revenue(£)],Engaged1, RTNR1, Other1, LostCallers1, AnsweredCallers1" +
         costs + " FROM TblCustomerGroups ORDER BY GroupName"},
    {"a map database without the shares of a spend",
     {.boundary = 5, .table = "TblCustomerGroups", .dataSet = 1, .hasCostColumns = false},
     "Select GroupName, TotalCalls1, Answered1,Ineffective1, FORMAT(Cost1, '£0.00') as [Cost(£)], FORMAT(Revenue1, "
     "'£0.00') as [Revenue(£)],Engaged1, RTNR1, Other1, LostCallers1, AnsweredCallers1 FROM TblCustomerGroups ORDER "
     "BY GroupName"},
    {"no boundary", {.boundary = 4, .table = "TblTV"}, ""},
};

TEST(DataStatement, FollowsBoundaryPeriodTableAndPopulation) {
    for (const Variant& variant : variants)
        EXPECT_EQ(normal(dataStatement(variant.view)), normal(variant.statement)) << variant.name;
}

} // namespace
