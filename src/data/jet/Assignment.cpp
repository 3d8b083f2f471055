#include "data/jet/Emitter.h"

#include "data/jet/StaticTypes.h"
#include "data/types/DatabaseError.h"

#include <cmath>
#include <limits>

namespace jet {

namespace {

[[noreturn]] void mismatch(std::size_t position) {
    throw DatabaseError(3464, "Data type mismatch in criteria expression.", position);
}

std::string call(std::string_view function, const std::string& value) {
    return std::string(function) + "(" + value + ")";
}

std::string intoText(const std::string& value, const StaticType& type, const Field& field) {
    const std::string text = textOf(value, type);
    const bool fits = field.type == FieldType::Memo || field.size == 0 ||
                      (type.type == FieldType::Text && type.size > 0 && type.size <= field.size);
    return fits ? text : "jet_fit(" + text + ", " + std::to_string(field.size) + ", " + quoteLiteral(field.name) + ")";
}

bool isNumberOrDate(const StaticType& type) {
    return type.type && (isNumeric(*type.type) || *type.type == FieldType::Date);
}

std::string intoBoolean(const std::string& value, const StaticType& type) {
    const std::string truth = type.type == FieldType::Boolean ? value
                              : isNumberOrDate(type)          ? "(- (" + value + " <> 0))"
                                                              : call("jet_to_boolean", value);
    return type.nullable ? "ifnull(" + truth + ", 0)" : truth;
}

/// A number as a Single keeps it.
double narrowed(double number) {
    if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max()))
        throw RuntimeError(6, "Overflow");
    return static_cast<double>(static_cast<float>(number));
}

/// The literal as a value of the column's type. Throws RuntimeError where it is none.
Value convertedLiteral(const Value& literal, const Field& field) {
    switch (field.type) {
    case FieldType::Boolean:
        return literal.asBoolean();
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long: {
        const std::int64_t whole = literal.asInteger();
        const bool fits = field.type == FieldType::Byte      ? whole >= 0 && whole <= 255
                          : field.type == FieldType::Integer ? whole >= std::numeric_limits<std::int16_t>::min() &&
                                                                   whole <= std::numeric_limits<std::int16_t>::max()
                                                             : whole >= std::numeric_limits<std::int32_t>::min() &&
                                                                   whole <= std::numeric_limits<std::int32_t>::max();
        if (!fits)
            throw RuntimeError(6, "Overflow");
        return whole;
    }
    case FieldType::Currency:
        return literal.asMoney();
    case FieldType::Single:
        return narrowed(literal.asDouble());
    case FieldType::Double:
        return literal.asDouble();
    case FieldType::Date:
        return literal.asDate();
    case FieldType::Text:
    case FieldType::Memo:
        return literal.asText();
    case FieldType::LongBinary:
        throw RuntimeError(13, "Type mismatch");
    }
    return literal;
}

std::string assignedLiteral(const Expression& expression, const Field& field) {
    try {
        const Value converted = convertedLiteral(expression.literal, field);
        const int length = isText(field.type) ? typeOf(converted).size : 0;
        if (field.type == FieldType::Text && field.size > 0 &&
            (length > field.size || typeOf(converted).type == FieldType::Memo))
            throw DatabaseError(3163, "The field '" + field.name + "' is too small for the text", expression.position);
        return literalText(converted);
    } catch (const DatabaseError&) {
        throw;
    } catch (const RuntimeError& error) {
        if (error.number() == 6)
            throw DatabaseError(6, "Overflow: the number does not fit the field '" + field.name + "'",
                                expression.position);
        mismatch(expression.position);
    }
}

} // namespace

std::string convertedText(const std::string& value, const StaticType& type, const Field& field, std::size_t position) {
    if (type.alwaysNull)
        return field.type == FieldType::Boolean ? "0" : value; // yes or no, never null
    if (type.type == FieldType::LongBinary && field.type != FieldType::LongBinary)
        mismatch(position);
    switch (field.type) {
    case FieldType::Text:
    case FieldType::Memo:
        return intoText(value, type, field);
    case FieldType::Boolean:
        return intoBoolean(value, type);
    case FieldType::Byte:
        return type.type == FieldType::Byte ? value : call("jet_to_byte", value);
    case FieldType::Integer:
        return isWhole(type) && type.type != FieldType::Long ? value : call("jet_to_integer", value);
    case FieldType::Long:
        return isWhole(type) ? value : call("jet_to_long", value);
    case FieldType::Currency:
        return isWhole(type) || type.type == FieldType::Currency ? value : call("jet_to_currency", value);
    case FieldType::Single:
        return type.type == FieldType::Single || (isWhole(type) && type.type != FieldType::Long)
                   ? value
                   : call("jet_to_single", value);
    case FieldType::Double:
        return isNumberOrDate(type) ? value : call("jet_to_double", value);
    case FieldType::Date:
        return isDate(type) ? value : call("jet_to_date", value);
    case FieldType::LongBinary:
        if (type.type && type.type != FieldType::LongBinary)
            mismatch(position);
        return value;
    }
    return value;
}

std::string Emitter::assigned(const Expression& expression, const Field& field) {
    const Expression& shown = resolved(expression);
    if (shown.kind == Expression::Kind::Literal && !shown.literal.isNull())
        return assignedLiteral(shown, field);
    StaticType type = shown.bound.type;
    // What is calculated can outgrow the type that its operands have.
    const bool calculated = shown.kind == Expression::Kind::Arithmetic || shown.kind == Expression::Kind::Negate ||
                            shown.kind == Expression::Kind::Aggregate;
    const bool isCount = shown.kind == Expression::Kind::Aggregate && equalText(shown.name, "COUNT");
    if (calculated && isWhole(type) && type.type != FieldType::Boolean && !isCount)
        type.type = FieldType::Double;
    const std::string plain = value(shown);
    const bool mayOverflow = calculated && !isCount && isNumberOrDate(type);
    if (mayOverflow && field.type == FieldType::Double)
        return call("jet_to_double", plain);
    if (mayOverflow && field.type == FieldType::Date)
        return call("jet_to_date", plain);
    if (mayOverflow && field.type == FieldType::Currency)
        return call("jet_to_currency", plain);
    return convertedText(plain, type, field, shown.position);
}

} // namespace jet
