#include "sample/installation/CallGenerator.h"
#include "tests/sample/geography/SharedGeography.h"

#include <gtest/gtest.h>

#include <map>
#include <tuple>

namespace sample {
namespace {

class Calls : public testing::Test {
protected:
    static constexpr std::int64_t count = 60'000;
    const std::vector<ReferenceCode> codes = makeReferenceCodes(sharedGeography());
    const CallCalendar calendar{sharedGeography().tvRegions.size() - 1, 5};
    const CallerPool callers{codes, sharedGeography(), count / 4, 6};

    template<typename Visit>
    void forEach(Visit visit) const {
        CallGenerator generator(calendar, callers, count, 7);
        for (Call call; generator.next(call);)
            visit(call);
    }
};

TEST_F(Calls, ComeInTheOrderOfTheirTimes) {
    std::pair<int, int> last{0, 0};
    std::int64_t made = 0;
    forEach([&](const Call& call) {
        const std::pair<int, int> time{call.day, call.second};
        ASSERT_LE(last, time);
        ASSERT_LT(call.second, 24 * 3600);
        last = time;
        ++made;
    });
    EXPECT_EQ(made, count);
    EXPECT_EQ(last.first, calendar.dayCount() - 1);
}

TEST_F(Calls, DaysHaveTheirShares) {
    std::vector<double> ofDay(static_cast<std::size_t>(calendar.dayCount()));
    forEach([&](const Call& call) { ofDay[static_cast<std::size_t>(call.day)] += 1; });
    double all = 0;
    for (const double weight : calendar.dayWeights())
        all += weight;
    for (std::size_t day = 0; day < ofDay.size(); ++day)
        EXPECT_NEAR(ofDay[day], calendar.dayWeights()[day] / all * count, 1.01) << day;
}

TEST_F(Calls, CampaignsBringTheirNumberAndTheirRegion) {
    const Campaign& campaign = calendar.campaigns().front();
    const auto shareOfRegion = [&](int firstDay, int lastDay) {
        double calls = 0;
        double inRegion = 0;
        forEach([&](const Call& call) {
            if (call.number != campaign.number || call.day < firstDay || call.day > lastDay)
                return;
            const int code = callers.codeOf(call.caller).geographyCode;
            calls += 1;
            inRegion += code >= 0 && sharedGeography().codes[static_cast<std::size_t>(code)].tvRegion ==
                                         static_cast<int>(campaign.tvRegion);
        });
        return inRegion / calls;
    };
    EXPECT_GT(shareOfRegion(campaign.firstDay, campaign.lastDay), shareOfRegion(0, campaign.firstDay - 1) + 0.3);
}

TEST_F(Calls, CallersLiveNearBranchesMoreOftenThanPeopleDo) {
    const std::vector<MapPoint> branches = placeBranches(sharedGeography());
    ASSERT_GT(branches.size(), 40u);
    const auto isNear = [&](int code) {
        const auto district =
            static_cast<std::size_t>(sharedGeography().codes[static_cast<std::size_t>(code)].postcodeDistrict);
        const MapPoint place = sharedGeography().postcodeDistricts[district].label;
        return std::any_of(branches.begin(), branches.end(), [&](MapPoint b) { return distance(place, b) < 1000; });
    };
    double people = 0;
    for (std::size_t i = 0; i < sharedGeography().codes.size(); ++i)
        people += isNear(static_cast<int>(i)) ? sharedGeography().codes[i].weight : 0;
    double nearby = 0;
    double placed = 0;
    for (std::uint32_t i = 0; i < callers.size(); ++i) {
        if (const int code = callers.codeOf(i).geographyCode; code >= 0) {
            placed += 1;
            nearby += isNear(code);
        }
    }
    EXPECT_GT(nearby / placed, people + 0.03);
}

TEST(WeightedDraw, FollowsTheWeights) {
    const std::vector<double> weights{0, 5, 1, 0.01, 0, 3.99};
    const WeightedChoice choice(weights);
    SeededRandom random(11);
    std::vector<double> drawn(weights.size());
    for (int i = 0; i < 200'000; ++i)
        drawn[choice.draw(random)] += 1.0 / 200'000;
    for (std::size_t i = 0; i < weights.size(); ++i)
        EXPECT_NEAR(drawn[i], weights[i] / 10, 0.005) << i;
    EXPECT_EQ(drawn[0], 0);
    EXPECT_EQ(drawn[4], 0);
}

TEST(CsgNumbers, AreAllDifferent) {
    const std::vector<std::string> numbers = numberCsgs(sharedGeography());
    std::map<std::string, int> seen;
    for (const std::string& number : numbers)
        EXPECT_EQ(++seen[number], 1) << number;
    EXPECT_EQ(numbers.size(), sharedGeography().csgs.size());
}

} // namespace
} // namespace sample
