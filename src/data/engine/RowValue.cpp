#include "data/engine/RowValue.h"

#include "data/types/DatabaseError.h"

#include <sqlite3.h>

#include <cmath>
#include <limits>

namespace {

/// A number too large for the type, as a damaged or foreign file may hold, is given as it lies there.
Value numberOfType(double number, FieldType type) {
    const auto fits = [number](double largest) { return number >= -largest && number <= largest; };
    constexpr double largestInteger = 9.2e18;
    constexpr double largestMoney = 9.2e14;
    switch (type) {
    case FieldType::Boolean:
        return Value(number != 0.0);
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return fits(largestInteger) ? Value(Value(number).asInteger()) : Value(number);
    case FieldType::Currency:
        return fits(largestMoney) ? Value(Money::fromDouble(number)) : Value(number);
    case FieldType::Date:
        return Date{number};
    default:
        return number;
    }
}

std::int64_t integerWithin(const Value& value, std::int64_t lowest, std::int64_t highest) {
    const std::int64_t number = value.asInteger();
    if (number < lowest || number > highest)
        throw RuntimeError(6, "Overflow");
    return number;
}

/// Characters, not bytes, of UTF-8.
std::size_t lengthOf(std::string_view text) {
    std::size_t length = 0;
    for (const char c : text)
        length += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return length;
}

Value textFor(const Field& field, const Value& value) {
    std::string text = value.asText();
    if (field.type == FieldType::Text && field.size > 0 && lengthOf(text) > static_cast<std::size_t>(field.size))
        throw DatabaseError(3163, "The field '" + field.name + "' is too small for the text '" + text + "'");
    return text;
}

} // namespace

Value readValue(const sqlite::Statement& row, int column, const jet::ResultColumn& type) {
    switch (row.columnStorage(column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER: {
        const std::int64_t integer = row.integer(column);
        if (type.type && !isText(*type.type) && *type.type != FieldType::LongBinary)
            return numberOfType(static_cast<double>(integer), *type.type);
        return integer;
    }
    case SQLITE_FLOAT: {
        const double real = row.real(column);
        if (type.sourceColumn.empty() && !std::isfinite(real))
            throw DatabaseError(6, "Overflow: a number of the result is too large");
        if (type.type && !isText(*type.type) && *type.type != FieldType::LongBinary)
            return numberOfType(real, *type.type);
        return real;
    }
    case SQLITE_BLOB: {
        const auto bytes = row.bytes(column);
        return Bytes(bytes.begin(), bytes.end());
    }
    default:
        return row.text(column);
    }
}

Value storedValue(const Field& field, const Value& value) {
    if (value.isNull())
        return value;
    try {
        switch (field.type) {
        case FieldType::Boolean:
            return value.asBoolean();
        case FieldType::Byte:
            return integerWithin(value, 0, 255);
        case FieldType::Integer:
            return integerWithin(value, std::numeric_limits<std::int16_t>::min(),
                                 std::numeric_limits<std::int16_t>::max());
        case FieldType::Long:
            return integerWithin(value, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max());
        case FieldType::Currency:
            return value.asMoney();
        case FieldType::Single:
            return static_cast<double>(static_cast<float>(value.asDouble()));
        case FieldType::Double:
            return value.asDouble();
        case FieldType::Date:
            return value.asDate();
        case FieldType::Text:
        case FieldType::Memo:
            return textFor(field, value);
        case FieldType::LongBinary:
            return value.asBytes();
        }
    } catch (const DatabaseError&) {
        throw;
    } catch (const RuntimeError& error) {
        if (error.number() != 13)
            throw;
        throw DatabaseError(3421, "The field '" + field.name + "' cannot take '" + value.asText() + "'");
    }
    return value;
}

void bindValue(sqlite::Statement& statement, int parameter, const Field& field, const Value& value) {
    const Value stored = storedValue(field, value);
    if (stored.isNull())
        statement.bindNull(parameter);
    else if (const auto* text = std::get_if<std::string>(&stored.storage()))
        statement.bind(parameter, std::string_view(*text));
    else if (const auto* bytes = std::get_if<Bytes>(&stored.storage()))
        statement.bind(parameter, std::span<const std::byte>(*bytes));
    else if (const auto* integer = std::get_if<std::int64_t>(&stored.storage()))
        statement.bind(parameter, *integer);
    else if (const auto* boolean = std::get_if<bool>(&stored.storage()))
        statement.bind(parameter, std::int64_t{*boolean ? -1 : 0});
    else
        statement.bind(parameter, stored.asDouble());
}
