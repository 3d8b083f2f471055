#pragma once

#include "stats/calls/CallColumns.h"
#include "stats/calls/CallPredicate.h"

#include <cstdint>
#include <span>
#include <vector>

/// To which areas the calls of a code belong, by id of the code: none, one, or several, an area as often as it is
/// listed. Areas are numbered from 0.
struct ScanBoundary {
    std::vector<std::vector<std::uint32_t>> areasOfCode;
    std::uint32_t areas = 0;
};

/// Sums over calls. There was money where a sum is not 0, since each is of values of one sign.
struct CallSums {
    std::int64_t calls = 0;
    std::int64_t callsWithoutNumber = 0; ///< whose CalledNo is null
    std::int64_t cost = 0;               ///< of the positive values, in ten-thousandths of a pound
    std::int64_t revenue = 0;            ///< of the negative ones, not positive

    CallSums& operator+=(const CallSums& other);
};

struct CallScan {
    /// Code × AnswerInd, by their ids.
    std::vector<CallSums> sums;
    std::size_t answerInds = 0;
    const CallSums& of(std::size_t code, std::size_t answerInd) const { return sums[code * answerInds + answerInd]; }

    /// Distinct callers by area: answered at least once within the selection; unanswered at least once within it and
    /// answered at no time. Null is one caller. Or all of them, whatever became of their calls; null is none then.
    struct Callers {
        std::vector<std::int64_t> answered, lost, all;
    };
    std::vector<Callers> callers; ///< by boundary
};

enum class CallersBy { Outcome, All };

/// One pass over the calls that the predicate selects, all of them where it is null, for any number of boundaries.
/// Works on two threads, of which one is the caller's; a project of ten million calls takes a few dozen milliseconds.
CallScan scanCalls(const CallColumns& columns, const CallPredicate* predicate,
                   std::span<const ScanBoundary* const> boundaries, CallersBy callersBy = CallersBy::Outcome);

/// The sums over the selected calls from payphones by id of AnswerInd.
std::vector<CallSums> sumPayphoneCalls(const CallColumns& columns, const CallPredicate* predicate);
