#include "core/RuntimeError.h"
#include "data/jet/FunctionLibrary.h"

#include <cmath>

namespace jet::functions {

namespace {

[[noreturn]] void invalidArgument() {
    throw RuntimeError(5, "Invalid procedure call or argument");
}

bool isWhole(const Value& value) {
    return std::holds_alternative<std::int64_t>(value.storage()) || std::holds_alternative<bool>(value.storage());
}

/// `number` in the kind of value that `like` is.
Value inKind(double number, const Value& like) {
    if (std::holds_alternative<Money>(like.storage()))
        return Money::fromDouble(number);
    if (like.isDate())
        return Date{number};
    return number;
}

Value ofNumber(Arguments a, double (*function)(double)) {
    if (a[0].isNull())
        return {};
    const double result = function(a[0].asDouble());
    if (!std::isfinite(result))
        throw RuntimeError(6, "Overflow");
    return result;
}

} // namespace

/// Halves go to the even neighbour. A number is taken as its shortest decimal text shows it, so that 2.675 has a half
/// to round.
Value round(Arguments a) {
    if (a[0].isNull() || (a.size() > 1 && a[1].isNull()))
        return {};
    const std::int64_t places = a.size() > 1 ? a[1].asInteger() : 0;
    if (places < 0)
        invalidArgument();
    if (isWhole(a[0]))
        return a[0].asInteger();
    const double number = a[0].asDouble();
    if (places > 15)
        return inKind(number, a[0]);
    const double factor = std::pow(10.0, static_cast<double>(places));
    const double scaled = number * factor;
    if (!std::isfinite(scaled) || std::fabs(scaled) >= 4503599627370496.0)
        return inKind(number, a[0]);
    const double nearest = std::nearbyint(scaled);
    const double half = std::floor(scaled) + 0.5;
    // 1.005 * 100 is not exactly a half, but stands for one.
    const bool isHalf = std::fabs(scaled - half) <= std::fabs(scaled) * 4e-16;
    const double rounded = isHalf ? std::nearbyint(half) : nearest;
    return inKind(rounded / factor, a[0]);
}

Value intOf(Arguments a) {
    if (a[0].isNull())
        return {};
    return isWhole(a[0]) ? Value(a[0].asInteger()) : inKind(std::floor(a[0].asDouble()), a[0]);
}

Value fix(Arguments a) {
    if (a[0].isNull())
        return {};
    return isWhole(a[0]) ? Value(a[0].asInteger()) : inKind(std::trunc(a[0].asDouble()), a[0]);
}

Value abs(Arguments a) {
    if (a[0].isNull())
        return {};
    if (isWhole(a[0])) {
        const std::int64_t number = a[0].asInteger();
        return number < 0 ? -number : number;
    }
    return inKind(std::fabs(a[0].asDouble()), a[0]);
}

Value sgn(Arguments a) {
    if (a[0].isNull())
        return {};
    const double number = a[0].asDouble();
    return std::int64_t{number < 0 ? -1 : (number > 0 ? 1 : 0)};
}

Value sqr(Arguments a) {
    if (a[0].isNull())
        return {};
    const double number = a[0].asDouble();
    if (number < 0)
        invalidArgument();
    return std::sqrt(number);
}

Value log(Arguments a) {
    if (a[0].isNull())
        return {};
    const double number = a[0].asDouble();
    if (number <= 0)
        invalidArgument();
    return std::log(number);
}

Value exp(Arguments a) {
    return ofNumber(a, std::exp);
}
Value sin(Arguments a) {
    return ofNumber(a, std::sin);
}
Value cos(Arguments a) {
    return ofNumber(a, std::cos);
}
Value tan(Arguments a) {
    return ofNumber(a, std::tan);
}
Value atn(Arguments a) {
    return ofNumber(a, std::atan);
}

} // namespace jet::functions
