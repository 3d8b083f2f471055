#include "data/jet/LibraryValues.h"

#include <sqlite3.h>

#include <type_traits>

namespace jet {

Value valueOf(sqlite3_value* argument, Meaning meaning) {
    switch (sqlite3_value_type(argument)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_TEXT: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(argument));
        return std::string(text, static_cast<std::size_t>(sqlite3_value_bytes(argument)));
    }
    case SQLITE_BLOB: {
        const auto* bytes = static_cast<const std::byte*>(sqlite3_value_blob(argument));
        return Bytes(bytes, bytes + sqlite3_value_bytes(argument));
    }
    default:
        break;
    }
    switch (meaning) {
    case Meaning::Date:
        return Date{sqlite3_value_double(argument)};
    case Meaning::Boolean:
        return sqlite3_value_double(argument) != 0.0;
    case Meaning::Currency:
        return Money::fromDouble(sqlite3_value_double(argument));
    case Meaning::Plain:
        break;
    }
    if (sqlite3_value_type(argument) == SQLITE_INTEGER)
        return std::int64_t{sqlite3_value_int64(argument)};
    return sqlite3_value_double(argument);
}

void giveResult(sqlite3_context* context, const Value& value) {
    std::visit(
        [&](const auto& held) {
            using T = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                sqlite3_result_null(context);
            else if constexpr (std::is_same_v<T, bool>)
                sqlite3_result_int(context, held ? -1 : 0);
            else if constexpr (std::is_same_v<T, std::int64_t>)
                sqlite3_result_int64(context, held);
            else if constexpr (std::is_same_v<T, double>)
                sqlite3_result_double(context, held);
            else if constexpr (std::is_same_v<T, Money>)
                sqlite3_result_double(context, held.toDouble());
            else if constexpr (std::is_same_v<T, Date>)
                sqlite3_result_double(context, held.days);
            else if constexpr (std::is_same_v<T, std::string>)
                sqlite3_result_text64(context, held.data(), held.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
            else
                sqlite3_result_blob64(context, held.data(), held.size(), SQLITE_TRANSIENT);
        },
        value.storage());
}

void giveError(sqlite3_context* context, long number, const char* words) {
    constexpr long mismatch = 13; // inside a statement the engine has its own number and words for it
    const std::string text = number == mismatch ? "jet:3464:Data type mismatch in criteria expression."
                                                : "jet:" + std::to_string(number) + ":" + words;
    sqlite3_result_error(context, text.data(), static_cast<int>(text.size()));
}

} // namespace jet
