#include "data/jet/Operators.h"

#include "core/RuntimeError.h"

#include <cmath>
#include <limits>

namespace jet {

namespace {

bool isWhole(const Value& value) {
    return std::holds_alternative<std::int64_t>(value.storage()) || std::holds_alternative<bool>(value.storage());
}

bool isMoney(const Value& value) {
    return std::holds_alternative<Money>(value.storage());
}

Value finite(double number) {
    if (!std::isfinite(number))
        throw RuntimeError(6, "Overflow");
    return number;
}

/// Whole as long as the result fits 64 bits.
Value wholeArithmetic(Operator op, std::int64_t a, std::int64_t b) {
    const auto x = static_cast<double>(a);
    const auto y = static_cast<double>(b);
    const double result = op == Operator::Add ? x + y : (op == Operator::Subtract ? x - y : x * y);
    constexpr double safe = 9.2e18; // further from 2^63 than rounding reaches
    if (std::fabs(result) > safe)
        return result;
    return op == Operator::Add ? a + b : (op == Operator::Subtract ? a - b : a * b);
}

/// Add, Subtract and Multiply.
Value linear(Operator op, const Value& a, const Value& b) {
    if (op == Operator::Add && a.isText() && b.isText())
        return a.asText() + b.asText();
    if (isWhole(a) && isWhole(b))
        return wholeArithmetic(op, a.asInteger(), b.asInteger());
    const double x = a.asDouble();
    const double y = b.asDouble();
    const double result = op == Operator::Add ? x + y : (op == Operator::Subtract ? x - y : x * y);
    if (a.isDate() || b.isDate()) {
        const bool staysDate = op == Operator::Add || (op == Operator::Subtract && !b.isDate());
        return staysDate ? Value(checkedDate(Date{result})) : finite(result);
    }
    if ((isMoney(a) || isMoney(b)) && !(op == Operator::Multiply && (std::holds_alternative<double>(a.storage()) ||
                                                                     std::holds_alternative<double>(b.storage()))))
        return Money::fromDouble(result);
    return finite(result);
}

/// `\` and Mod, on operands rounded to whole numbers.
Value wholeDivision(Operator op, const Value& a, const Value& b) {
    const std::int64_t x = a.asInteger();
    const std::int64_t y = b.asInteger();
    if (y == 0)
        return {};
    if (y == -1) // the smallest number has no counterpart
        return op == Operator::Modulo ? Value(std::int64_t{0}) : negated(x);
    return op == Operator::Modulo ? x % y : x / y;
}

} // namespace

Value negated(const Value& value) {
    if (value.isNull())
        return {};
    if (value.isDate())
        return Date{-value.asDouble()};
    return linear(Operator::Subtract, Value(0), value);
}

Value arithmetic(Operator op, const Value& a, const Value& b) {
    if (op == Operator::Concatenate)
        return a.isNull() && b.isNull() ? Value() : Value(a.asText() + b.asText());
    if (a.isNull() || b.isNull())
        return {};
    switch (op) {
    case Operator::Add:
    case Operator::Subtract:
    case Operator::Multiply:
        return linear(op, a, b);
    case Operator::Divide: {
        const double divisor = b.asDouble();
        const double number = a.asDouble();
        return divisor == 0.0 ? Value() : finite(number / divisor);
    }
    case Operator::IntegerDivide:
    case Operator::Modulo:
        return wholeDivision(op, a, b);
    default: {
        const double result = std::pow(a.asDouble(), b.asDouble());
        if (std::isnan(result))
            throw RuntimeError(5, "Invalid procedure call or argument");
        return finite(result);
    }
    }
}

int compareValues(const Value& a, const Value& b) {
    if (a.isText() != b.isText())
        throw RuntimeError(13, "Type mismatch: a text cannot be compared with a number or date");
    if (a.isText())
        return compareText(std::get<std::string>(a.storage()), std::get<std::string>(b.storage()));
    const double x = a.asDouble();
    const double y = b.asDouble();
    // Calculated dates can miss their second by the last bits.
    constexpr double sameInstant = 1e-8;
    if (a.isDate() && b.isDate() && std::fabs(x - y) < sameInstant)
        return 0;
    return x < y ? -1 : (x > y ? 1 : 0);
}

} // namespace jet
