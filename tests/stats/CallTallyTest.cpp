#include "stats/CallTally.h"

#include "core/RuntimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

struct Outcome {
    const char* name;
    Value answerInd;
    std::int32_t answered, engaged, rtnr, other;
};

TEST(CallTally, ClassifiesEveryOutcome) {
    const Outcome outcomes[] = {
        {"answered", "0", 1, 0, 0, 0},
        {"answered, other code", "8", 1, 0, 0, 0},
        {"engaged", "2", 0, 1, 0, 0},
        {"engaged, other code", "9", 0, 1, 0, 0},
        {"ring tone, no reply", "4", 0, 0, 1, 0},
        {"a code of no kind", "3", 0, 0, 0, 1},
        {"above nine", "10", 0, 0, 0, 1},
        {"negative", "-2", 0, 0, 0, 1},
        {"more than 16 bits", "65536", 0, 0, 0, 1},
        {"no number", "x", 0, 0, 0, 1},
        {"empty", "", 0, 0, 0, 1},
        {"null", Value(), 0, 0, 0, 1},
        {"stored as a number", 8, 1, 0, 0, 0},
    };
    for (const Outcome& outcome : outcomes) {
        CallTally tally;
        tally.add(outcomeOf(outcome.answerInd), 3);
        EXPECT_EQ(tally.answered, outcome.answered * 3) << outcome.name;
        EXPECT_EQ(tally.engaged, outcome.engaged * 3) << outcome.name;
        EXPECT_EQ(tally.rtnr, outcome.rtnr * 3) << outcome.name;
        EXPECT_EQ(tally.other, outcome.other * 3) << outcome.name;
        EXPECT_EQ(tally.ineffective, outcome.answered ? 0 : 3) << outcome.name;
        EXPECT_EQ(tally.total(), 3) << outcome.name;
    }
}

TEST(CallTally, OverflowIsAnErrorAndChangesNothing) {
    CallTally tally;
    tally.add(2, std::numeric_limits<std::int32_t>::max());
    EXPECT_THROW(tally.add(4, 1), RuntimeError);
    EXPECT_EQ(tally.rtnr, 0);
    tally.add(0, 1);
    EXPECT_THROW(tally.total(), RuntimeError);
}

} // namespace
