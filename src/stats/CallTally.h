#pragma once

#include "data/types/Value.h"

#include <cstdint>
#include <optional>

/// The counters of one area. 32 bits, as the columns that they go to.
struct CallTally {
    std::int32_t answered = 0;
    std::int32_t ineffective = 0;
    std::int32_t engaged = 0;
    std::int32_t rtnr = 0; ///< ring tone, no reply
    std::int32_t other = 0;

    /// Adds calls of one outcome. `outcome` is AnswerInd as a number; nothing counts as an outcome of no known kind.
    /// Throws RuntimeError 6 on overflow, leaving the counters as they were.
    void add(std::optional<int> outcome, std::int64_t calls);
    /// Throws RuntimeError 6 on overflow.
    std::int32_t total() const;
};

/// AnswerInd read as a 16-bit integer; nothing where it is null or no such number.
std::optional<int> outcomeOf(const Value& answerInd);
