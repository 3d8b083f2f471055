#include "data/jet/Functions.h"

#include "core/RuntimeError.h"
#include "data/jet/Characters.h"
#include "data/jet/LibraryAggregates.h"
#include "data/jet/LibraryValues.h"
#include "data/jet/Like.h"
#include "data/jet/Operators.h"
#include "data/jet/ScalarFunctions.h"

#include <sqlite3.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace jet {

namespace {

using LibraryFunction = void (*)(sqlite3_context*, int, sqlite3_value**);

/// A function of the dialect with the meaning of its first argument.
struct Entry {
    const ScalarFunction* function;
    Meaning meaning;
};

void callScalar(sqlite3_context* context, int count, sqlite3_value** arguments) {
    guarded(context, [&] {
        const auto* entry = static_cast<const Entry*>(sqlite3_user_data(context));
        std::array<Value, 8> few;
        std::vector<Value> many;
        std::span<Value> values(few);
        if (static_cast<std::size_t>(count) > few.size()) {
            many.resize(static_cast<std::size_t>(count));
            values = many;
        }
        for (int i = 0; i < count; ++i)
            values[static_cast<std::size_t>(i)] = valueOf(arguments[i], i == 0 ? entry->meaning : Meaning::Plain);
        giveResult(context, entry->function->apply(values.first(static_cast<std::size_t>(count))));
    });
}

std::string_view textOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

bool isNull(sqlite3_value* value) {
    return sqlite3_value_type(value) == SQLITE_NULL;
}

/// The text of the first argument against the Pattern read from the second.
template<typename Pattern, bool (Pattern::*fits)(std::string_view) const>
void matchPattern(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        if (isNull(arguments[0]))
            return;
        if (const auto* pattern = static_cast<const Pattern*>(sqlite3_get_auxdata(context, 1)))
            return sqlite3_result_int(context, (pattern->*fits)(textOf(arguments[0])));
        if (isNull(arguments[1]))
            return;
        // The library keeps it only where the pattern is constant, and may let go of it at once.
        auto made = std::make_unique<Pattern>(textOf(arguments[1]));
        sqlite3_result_int(context, (made.get()->*fits)(textOf(arguments[0])));
        sqlite3_set_auxdata(context, 1, made.release(), [](void* kept) { delete static_cast<Pattern*>(kept); });
    });
}

void beginsWith(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        if (!isNull(arguments[0]))
            sqlite3_result_int(context, begins(textOf(arguments[0]), textOf(arguments[1])));
    });
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The time of day in the characters 1-2 and 4-5 of a text.
void hourMinute(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        const std::string_view text = textOf(arguments[0]);
        if (text.size() >= 5 && isDigit(text[0]) && isDigit(text[1]) && isDigit(text[3]) && isDigit(text[4]) &&
            (text.size() == 5 || static_cast<unsigned char>(text[2]) < 0x80)) {
            const int hour = (text[0] - '0') * 10 + (text[1] - '0');
            const int minute = (text[3] - '0') * 10 + (text[4] - '0');
            if (hour < 24 && minute < 60 && static_cast<unsigned char>(text[2]) < 0x80)
                return sqlite3_result_double(context, static_cast<double>(hour * 3600 + minute * 60) / 86400.0);
        }
        const std::string time = std::string(characters(text, 0, 2)) + ":" + std::string(characters(text, 3, 2));
        giveResult(context, parseDate(time));
    });
}

void number(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        const Value value = valueOf(arguments[0]);
        if (value.isText())
            sqlite3_result_double(context, value.asDouble());
        else
            giveResult(context, value);
    });
}

template<Meaning meaning>
void text(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        const Value value = valueOf(arguments[0], meaning);
        if (!value.isNull())
            giveResult(context, value.asText());
    });
}

template<Operator op>
void operation(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] { giveResult(context, arithmetic(op, valueOf(arguments[0]), valueOf(arguments[1]))); });
}

void concat(sqlite3_context* context, int count, sqlite3_value** arguments) {
    guarded(context, [&] {
        std::string joined;
        bool any = false;
        for (int i = 0; i < count; ++i) {
            any = any || !isNull(arguments[i]);
            joined += textOf(arguments[i]);
            if (joined.size() > longestMade)
                throw RuntimeError(14, "Out of string space");
        }
        if (any)
            giveResult(context, joined);
    });
}

/// jet_fit(text, width, field): the text, where it is not too long.
void fit(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        const std::string_view content = textOf(arguments[0]);
        const auto width = static_cast<std::size_t>(sqlite3_value_int(arguments[1]));
        if (content.size() > width && characterCount(content) > width)
            throw RuntimeError(3163, "The field '" + std::string(textOf(arguments[2])) + "' is too small for the text");
        sqlite3_result_value(context, arguments[0]);
    });
}

double finite(double number) {
    if (!std::isfinite(number))
        throw RuntimeError(6, "Overflow");
    return number;
}

template<FieldType type>
void convert(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        const Value value = valueOf(arguments[0]);
        if (value.isNull())
            return;
        if constexpr (type == FieldType::Boolean)
            giveResult(context, value.asBoolean());
        else if constexpr (type == FieldType::Currency)
            giveResult(context, value.asMoney());
        else if constexpr (type == FieldType::Double)
            giveResult(context, finite(value.asDouble()));
        else if constexpr (type == FieldType::Date)
            giveResult(context, value.asDate());
        else if constexpr (type == FieldType::Single) {
            const double number = value.asDouble();
            if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max()))
                throw RuntimeError(6, "Overflow");
            giveResult(context, static_cast<double>(static_cast<float>(number)));
        } else {
            using Limits =
                std::numeric_limits<std::conditional_t<type == FieldType::Integer, std::int16_t, std::int32_t>>;
            constexpr std::int64_t least = type == FieldType::Byte ? 0 : Limits::min();
            constexpr std::int64_t most = type == FieldType::Byte ? 255 : Limits::max();
            const std::int64_t whole = value.asInteger();
            if (whole < least || whole > most)
                throw RuntimeError(6, "Overflow");
            giveResult(context, whole);
        }
    });
}

struct OwnFunction {
    const char* name;
    int arguments;
    LibraryFunction call;
};

constexpr std::array ownFunctions{
    OwnFunction{"jet_like", 2, matchPattern<LikePattern, &LikePattern::matches>},
    OwnFunction{"jet_like_any", 2, matchPattern<LikePatterns, &LikePatterns::anyMatches>},
    OwnFunction{"jet_begins", 2, beginsWith},
    OwnFunction{"jet_hourminute", 1, hourMinute},
    OwnFunction{"jet_number", 1, number},
    OwnFunction{"jet_text", 1, text<Meaning::Plain>},
    OwnFunction{"jet_text_date", 1, text<Meaning::Date>},
    OwnFunction{"jet_text_boolean", 1, text<Meaning::Boolean>},
    OwnFunction{"jet_add", 2, operation<Operator::Add>},
    OwnFunction{"jet_intdivide", 2, operation<Operator::IntegerDivide>},
    OwnFunction{"jet_modulo", 2, operation<Operator::Modulo>},
    OwnFunction{"jet_power", 2, operation<Operator::Power>},
    OwnFunction{"jet_concat", -1, concat},
    OwnFunction{"jet_fit", 3, fit},
    OwnFunction{"jet_to_boolean", 1, convert<FieldType::Boolean>},
    OwnFunction{"jet_to_byte", 1, convert<FieldType::Byte>},
    OwnFunction{"jet_to_integer", 1, convert<FieldType::Integer>},
    OwnFunction{"jet_to_long", 1, convert<FieldType::Long>},
    OwnFunction{"jet_to_currency", 1, convert<FieldType::Currency>},
    OwnFunction{"jet_to_single", 1, convert<FieldType::Single>},
    OwnFunction{"jet_to_double", 1, convert<FieldType::Double>},
    OwnFunction{"jet_to_date", 1, convert<FieldType::Date>},
};

constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

void check(int code) {
    if (code != SQLITE_OK)
        throw RuntimeError(7, "The functions of the dialect could not be registered");
}

void registerScalar(sqlite3* connection, const std::string& name, const ScalarFunction& function, Meaning meaning) {
    auto entry = std::make_unique<Entry>(Entry{&function, meaning});
    // The library also disposes of the entry where it refuses the function.
    check(sqlite3_create_function_v2(connection, name.c_str(), -1, flags, entry.release(), callScalar, nullptr, nullptr,
                                     [](void* held) { delete static_cast<Entry*>(held); }));
}

} // namespace

void registerFunctions(sqlite3* connection) {
    for (const ScalarFunction& function : scalarFunctions()) {
        const std::string name = "jet_" + lowerText(function.name);
        registerScalar(connection, name, function, Meaning::Plain);
        if (function.argument != ScalarFunction::Argument::Typed)
            continue;
        registerScalar(connection, name + "_date", function, Meaning::Date);
        registerScalar(connection, name + "_boolean", function, Meaning::Boolean);
        registerScalar(connection, name + "_currency", function, Meaning::Currency);
    }
    for (const OwnFunction& function : ownFunctions)
        check(sqlite3_create_function_v2(connection, function.name, function.arguments, flags, nullptr, function.call,
                                         nullptr, nullptr, nullptr));
    registerAggregates(connection);
}

} // namespace jet
