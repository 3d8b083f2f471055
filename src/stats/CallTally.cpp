#include "stats/CallTally.h"

#include "core/RuntimeError.h"

#include <limits>

namespace {

std::int32_t sum(std::int64_t a, std::int64_t b) {
    const std::int64_t result = a + b;
    if (result > std::numeric_limits<std::int32_t>::max())
        throw RuntimeError(6, "Overflow");
    return static_cast<std::int32_t>(result);
}

} // namespace

void CallTally::add(std::optional<int> outcome, std::int64_t calls) {
    CallTally next = *this;
    switch (outcome.value_or(-1)) {
    case 0:
    case 8:
        next.answered = sum(answered, calls);
        *this = next;
        return;
    case 2:
    case 9:
        next.engaged = sum(engaged, calls);
        break;
    case 4:
        next.rtnr = sum(rtnr, calls);
        break;
    default:
        next.other = sum(other, calls);
    }
    next.ineffective = sum(ineffective, calls);
    *this = next;
}

std::int32_t CallTally::total() const {
    return sum(answered, ineffective);
}

std::optional<int> outcomeOf(const Value& answerInd) {
    try {
        const std::int64_t number = answerInd.asInteger();
        if (number < std::numeric_limits<std::int16_t>::min() || number > std::numeric_limits<std::int16_t>::max())
            return std::nullopt;
        return static_cast<int>(number);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}
