#include "map/calltypes/CallTypeBands.h"

#include "core/ModDeclarations.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

const std::vector<std::string> breaks{"1", " 5", " 10"};

TEST(CallTypeBands, EdgesBelongToTheBandAboveExceptTheFirst) {
    const std::pair<long, std::size_t> cases[] = {{-3, 0}, {0, 0}, {1, 0},  {2, 1},  {4, 1},
                                                  {5, 2},  {9, 2}, {10, 3}, {900, 3}};
    for (const auto& [value, band] : cases)
        EXPECT_EQ(bandOf(value, breaks), band) << value;
    EXPECT_EQ(bandOf(1, {}), std::nullopt);
    EXPECT_EQ(bandOf(3, {"7"}), 0U);
    EXPECT_EQ(bandOf(7, {"7"}), 1U);
    EXPECT_EQ(bandOf(0, {"0", "0", "0"}), 3U) << "a map of nothing";
}

TEST(CallTypeBands, BarsTakeTheBandOfTheirRowAndStayWhiteWithout) {
    const SmallInstallation installation;
    gdbSystem->execute("INSERT INTO TblTV (TVRegion, TotalCalls1) VALUES ('MOBILE', 7)");
    gdbSystem->execute("INSERT INTO TblTV (TVRegion, TotalCalls1) VALUES ('Other', 12)");
    gdbSystem->execute("INSERT INTO TblTV (TVRegion, TotalCalls1) VALUES ('International', Null)");
    gdbSystem->execute("INSERT INTO TblTV (TVRegion, TotalCalls1) VALUES ('Granada', 3)");
    const CallTypeBars bars = callTypeBars("tbltv", "TotalCalls1", breaks);
    const std::pair<std::string_view, std::optional<std::size_t>> expected[] = {
        {"Mobile", 2}, {"International", std::nullopt}, {"VOIP", std::nullopt}, {"Other", 3}};
    for (std::size_t at = 0; at < bars.size(); ++at) {
        EXPECT_EQ(bars[at].name, expected[at].first);
        EXPECT_EQ(bars[at].band, expected[at].second) << bars[at].name;
    }
    EXPECT_EQ(callTypeBars("TblElsewhere", "TotalCalls1", breaks)[0].band, std::nullopt)
        << "a table that has no bars is not read";
}

TEST(CallTypeBands, OnAMapOfGroupsABarIsThatOfItsGroup) {
    const SmallInstallation installation;
    gdbSystem->execute("CREATE TABLE TblGroup_Link (TallyAccount TEXT(50), Reference TEXT(50), GroupName TEXT(50))");
    gdbSystem->execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'Mobile', 'Twenty characters ab')");
    gdbSystem->execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'VOIP', 'Twenty characters abc')");
    gdbSystem->execute("INSERT INTO TblGroup_Link VALUES ('OTHER', 'Other', 'North')");
    gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName, TotalCalls1) VALUES ('Twenty characters ab', 6)");
    const CallTypeBars bars = callTypeBarsOfGroups("TotalCalls1", breaks);
    EXPECT_EQ(bars[0].groupLabel, "Twenty characters ab");
    EXPECT_EQ(bars[0].band, 2U);
    EXPECT_EQ(bars[1].groupLabel, "(None)");
    EXPECT_EQ(bars[2].groupLabel, "Twenty characters ab...");
    EXPECT_EQ(bars[2].band, std::nullopt) << "the group has no row";
    EXPECT_EQ(bars[3].groupLabel, "(None)") << "a group of another account";
}

} // namespace
