#pragma once

#include "data/jet/Expression.h"

namespace jet {

bool isText(const StaticType& type);
bool isDate(const StaticType& type);
bool isWhole(const StaticType& type);   ///< Boolean, Byte, Integer or Long: an integer in the file
bool isUnknown(const StaticType& type); ///< only known per value

StaticType typeOf(const Value& literal);
/// The type that holds the values of both, as for the branches of IIf and the members of a UNION.
StaticType commonType(const StaticType& a, const StaticType& b);
/// The type of `a op b` for the operators from Add to Concatenate.
StaticType arithmeticType(Operator op, const StaticType& a, const StaticType& b);
/// The type of And, Or, Not and the other logical operators: they work bit by bit where an operand is a number.
StaticType logicType(const Expression& expression);

} // namespace jet
