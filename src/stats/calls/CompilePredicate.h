#pragma once

#include "stats/calls/CallPredicate.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

/// A truth as two bits; neither for null.
namespace truthBits {
inline constexpr std::uint8_t yes = 1;
inline constexpr std::uint8_t no = 2;
} // namespace truthBits

struct CallPredicate::Node {
    enum class Kind { Table, And, Or, Not };
    Kind kind = Kind::Table;
    CallField field = CallField::AnswerInd; ///< of a Table
    std::vector<std::uint8_t> table;        ///< truth by id
    std::vector<Node> operands;             ///< at least one for the other kinds
};

/// Null where the condition does not fit columns; throws RuntimeError where it is wrong or fails on a value.
std::unique_ptr<CallPredicate::Node> compileCondition(std::string_view condition, const CallTables& tables,
                                                      const CallColumns& columns);
