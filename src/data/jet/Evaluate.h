#pragma once

#include "data/jet/Expression.h"

#include <functional>
#include <optional>

namespace jet {

/// The value of a column of the row at hand, by the position that `bound.column` holds.
using Cells = std::function<const Value&(int column)>;

/// The value of an expression whose columns and functions are bound; it must hold no query and no aggregate. Throws
/// DatabaseError with the position: 3464 for values of the wrong kind, and the numbers of the functions.
Value evaluate(const Expression& expression, const Cells& cells);
/// The same as a condition; nothing stands for null.
std::optional<bool> evaluateCondition(const Expression& expression, const Cells& cells);

} // namespace jet
