#pragma once

#include "data/jet/Expression.h"
#include "data/types/Value.h"

namespace jet {

/// The operators of the dialect on values whose types are only known per row. Null in, null out, unless said otherwise.
/// They throw RuntimeError: 13 where a value is of the wrong kind, 6 on overflow.

/// Add to Power and Concatenate. Division by zero gives null; `&` takes null as empty text unless both are null.
Value arithmetic(Operator op, const Value& a, const Value& b);
Value negated(const Value& value);

/// Negative, 0 or positive for two values that are not null. Texts compare without case and trailing blanks, everything
/// else as numbers; a text with a number or date is error 13.
int compareValues(const Value& a, const Value& b);

} // namespace jet
