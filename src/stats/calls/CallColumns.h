#pragma once

#include "data/types/Value.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

/// The columns of TblTeleItem that selections and figures look at, apart from the caller and the money.
enum class CallField : std::uint8_t { Date, Time, CalledNo, AnswerLoc, NetAddress, Code, AnswerInd };
inline constexpr std::size_t callFieldCount = 7;

/// Whether a call was answered, by its AnswerInd; Unknown where that is null.
enum class AnswerKind : std::uint8_t { Answered, Unanswered, Unknown };

/// All calls of a project in memory, 18 bytes a call, the calls of one caller side by side. Null is a caller of its
/// own, and callers are the same where their numbers compare equal. Not changed once built, so any thread may read it.
struct CallColumns {
    /// Bits of `callerFlags`.
    static constexpr std::uint8_t firstOfCaller = 1;
    static constexpr std::uint8_t callerWasAnswered = 2; ///< at any time; never set for the null caller
    static constexpr std::uint8_t callerIsNull = 4;
    static constexpr std::uint8_t fromPayphone = 8; ///< of this one call
    static constexpr std::size_t flagCount = 16;    ///< all flags are below

    std::size_t size() const { return money.size(); }
    const std::vector<Value>& valuesOf(CallField field) const { return values[static_cast<std::size_t>(field)]; }
    const std::vector<std::uint16_t>& idsOf(CallField field) const { return ids[static_cast<std::size_t>(field)]; }
    std::size_t bytes() const; ///< of the calls, without the distinct values

    /// Distinct values by id, each spelling apart: texts, dates, or null. A time is the part of CallTime that counts,
    /// "hh:mm", with whatever characters stand there.
    std::array<std::vector<Value>, callFieldCount> values;
    /// Ids by call for every field but AnswerInd, whose vector is empty.
    std::array<std::vector<std::uint16_t>, callFieldCount> ids;
    std::vector<std::uint8_t> answerInd; ///< its ids
    std::vector<std::int32_t> money;     ///< Discounted in ten-thousandths of a pound; null is 0, as in every sum
    std::vector<std::uint8_t> callerFlags;
    std::vector<AnswerKind> answerKinds; ///< by id of AnswerInd
    std::uint32_t callers = 0;
};

/// The kind of each value of AnswerInd.
std::vector<AnswerKind> answerKindsOf(const std::vector<Value>& answerInds);
