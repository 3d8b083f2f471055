#include "map/calltypes/CallTypeSplit.h"

#include "core/ModDeclarations.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

void addRow(const std::string& name, int total, int answered, double cost) {
    gdbSystem->execute("INSERT INTO TblTV (TVRegion, TotalCalls1, Answered1, Cost1) VALUES ('" + name + "', " +
                       std::to_string(total) + ", " + std::to_string(answered) + ", " + std::to_string(cost) + ")");
}

std::vector<double> valuesOf(const std::optional<CallTypeSplit>& split) {
    std::vector<double> values;
    if (split) {
        for (const auto& series : split->series)
            values.push_back(series.value);
    }
    return values;
}

TEST(CallTypeSplit, LinesAreWhatTheFourPseudoAreasLeave) {
    const SmallInstallation installation;
    EXPECT_FALSE(callTypeSplit("TVRegion", 1).has_value()) << "an empty table";
    addRow("Granada", 0, 0, 0);
    EXPECT_FALSE(callTypeSplit("TVRegion", 1).has_value()) << "no calls";
    addRow("Anglia", 50, 40, 5);
    addRow("MOBILE", 20, 10, 2.25);
    addRow("International", 4, 3, 0.5);
    addRow("Other", 5, 1, 0);
    addRow("voip", 1, 1, 0.25);
    using Values = std::vector<double>;
    EXPECT_EQ(valuesOf(callTypeSplit("TVRegion", 1)), (Values{50, 0, 4, 20, 1, 5}));
    EXPECT_EQ(valuesOf(callTypeSplit("TVRegion", 2)), (Values{40, 0, 3, 10, 1, 1}));
    EXPECT_EQ(valuesOf(callTypeSplit("CustomerGroups", 4)), (Values{5, 0, 0.5, 2.25, 0.25, 0}))
        << "groups show the regions";
    EXPECT_EQ(valuesOf(callTypeSplit("TVRegion", 9)), valuesOf(callTypeSplit("TVRegion", 1)))
        << "callers show the calls";
    EXPECT_EQ(callTypeSplit("TVRegion", 4)->title, "Cost");
    EXPECT_EQ(callTypeSplit("TVRegion", 8)->title, "Total Calls");
    EXPECT_DOUBLE_EQ(callTypeSplit("TVRegion", 1)->total, 80);
    EXPECT_FALSE(callTypeSplit("CSG", 1).has_value()) << "each boundary has its own table";
}

} // namespace
