#pragma once

#include "data/types/FieldType.h"
#include "data/types/Value.h"

#include <optional>
#include <span>
#include <string_view>

namespace jet {

using Arguments = std::span<const Value>;

/// A function of the dialect, written once over values; searches call it directly, emitted statements through the
/// storage library. `apply` throws RuntimeError: 13 where an argument is of the wrong kind, 94 on a null that is not
/// allowed, 5 on an argument outside its range, 6 on overflow.
struct ScalarFunction {
    /// What the result is before any row is read.
    enum class Result { Text, Boolean, Long, Double, Currency, Date, AsArgument, Choice };
    /// How its first argument is handed over by an emitted statement, where dates and booleans are bare numbers.
    enum class Argument {
        Plain, ///< numbers and dates: the bare number says enough
        Text,  ///< converted to text by its static type
        Typed, ///< needs to know whether it is a date, a boolean or money
    };
    std::string_view name; ///< in capitals
    int least = 0;         ///< arguments
    int most = 0;
    Result result = Result::Text;
    Argument argument = Argument::Plain;
    Value (*apply)(Arguments) = nullptr;
};

/// Null where the dialect has no such function.
const ScalarFunction* findFunction(std::string_view name);
std::span<const ScalarFunction> scalarFunctions();

} // namespace jet
