#include "SharedGeography.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

using namespace sample;

namespace {

/// The index into a list of areas, checked: a real area and not the Republic, which stands last.
const Area& checkedArea(const std::vector<Area>& areas, int index) {
    EXPECT_GE(index, 0);
    EXPECT_LT(index, static_cast<int>(areas.size()) - 1);
    return areas.at(static_cast<std::size_t>(index));
}

} // namespace

TEST(CallCodes, AreUniqueDigitsInOrder) {
    const std::vector<CallCode>& codes = sharedGeography().codes;
    double weights = 0;
    for (const CallCode& code : codes) {
        EXPECT_GE(code.code.size(), 6u);
        EXPECT_LE(code.code.size(), 8u);
        EXPECT_EQ(code.code.find_first_not_of("0123456789"), std::string::npos) << code.code;
        EXPECT_NE(code.code.front(), '0');
        EXPECT_GT(code.weight, 0);
        weights += code.weight;
    }
    EXPECT_TRUE(std::is_sorted(codes.begin(), codes.end(),
                               [](const CallCode& l, const CallCode& r) { return l.code <= r.code; }));
    EXPECT_NEAR(weights, 1, 1e-9);
}

TEST(CallCodes, BeginWithTheirOwnExchangesPrefixAndNoOther) {
    const Geography& geography = sharedGeography();
    ASSERT_EQ(geography.exchangePrefix.size(), geography.exchangeAreas.size());
    const std::set<std::string> prefixes(geography.exchangePrefix.begin(), geography.exchangePrefix.end());
    EXPECT_EQ(prefixes.size(), geography.exchangePrefix.size());
    for (const CallCode& code : geography.codes) {
        std::vector<std::string> matching;
        for (std::size_t length = 1; length <= code.code.size(); ++length)
            if (prefixes.contains(code.code.substr(0, length)))
                matching.push_back(code.code.substr(0, length));
        EXPECT_EQ(matching, std::vector{geography.exchangePrefix[static_cast<std::size_t>(code.exchange)]});
    }
}

TEST(CallCodes, ReferToAreasThatFitTogether) {
    const Geography& geography = sharedGeography();
    std::set<int> exchanges, districts, csgs, regions;
    for (const CallCode& code : geography.codes) {
        const Area& exchange = checkedArea(geography.exchangeAreas, code.exchange);
        const Area& district = checkedArea(geography.postcodeDistricts, code.postcodeDistrict);
        const Area& csg = checkedArea(geography.csgs, code.csg);
        const Area& region = checkedArea(geography.tvRegions, code.tvRegion);
        if (exchanges.insert(code.exchange).second) {
            EXPECT_TRUE(holds(csg, exchange.label)) << exchange.name << " is not in " << csg.name;
        }
        if (districts.insert(code.postcodeDistrict).second) {
            EXPECT_TRUE(holds(region, district.label)) << district.name << " is not in " << region.name;
        }
        csgs.insert(code.csg);
        regions.insert(code.tvRegion);
    }
    EXPECT_EQ(exchanges.size(), geography.exchangeAreas.size() - 1);
    EXPECT_EQ(districts.size(), geography.postcodeDistricts.size() - 1);
    EXPECT_EQ(csgs.size(), geography.csgs.size() - 1);
    EXPECT_EQ(regions.size(), geography.tvRegions.size() - 1);
}

TEST(CallCodes, WeighACityMoreThanTheHills) {
    const Geography& geography = sharedGeography();
    double london = 0, highlands = 0;
    for (const CallCode& code : geography.codes) {
        const std::string& region = geography.tvRegions[static_cast<std::size_t>(code.tvRegion)].name;
        london += region == "London" ? code.weight : 0;
        highlands += region == "North Scotland" ? code.weight : 0;
    }
    EXPECT_NEAR(london, 0.18, 0.06); // eleven million of sixty
    EXPECT_LT(highlands, 0.05);
}
