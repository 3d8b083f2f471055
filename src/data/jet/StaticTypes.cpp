#include "data/jet/StaticTypes.h"

#include <algorithm>
#include <limits>

namespace jet {

bool isText(const StaticType& type) {
    return type.type && isText(*type.type);
}
bool isDate(const StaticType& type) {
    return type.type == FieldType::Date;
}
bool isWhole(const StaticType& type) {
    return type.type == FieldType::Boolean || type.type == FieldType::Byte || type.type == FieldType::Integer ||
           type.type == FieldType::Long;
}
bool isUnknown(const StaticType& type) {
    return !type.type && !type.alwaysNull;
}

namespace {

std::size_t characters(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

StaticType wholeType(std::int64_t number) {
    StaticType type;
    type.nullable = false;
    if (number >= std::numeric_limits<std::int16_t>::min() && number <= std::numeric_limits<std::int16_t>::max())
        type.type = FieldType::Integer;
    else if (number >= std::numeric_limits<std::int32_t>::min() && number <= std::numeric_limits<std::int32_t>::max())
        type.type = FieldType::Long;
    else
        type.type = FieldType::Double;
    return type;
}

/// Place of a number type in the order from the narrowest to the widest.
int rank(FieldType type) {
    switch (type) {
    case FieldType::Boolean:
        return 0;
    case FieldType::Byte:
        return 1;
    case FieldType::Integer:
        return 2;
    case FieldType::Long:
        return 3;
    case FieldType::Single:
        return 4;
    case FieldType::Double:
        return 5;
    case FieldType::Currency:
        return 6;
    default:
        return 7;
    }
}

} // namespace

StaticType typeOf(const Value& literal) {
    StaticType type;
    type.nullable = false;
    if (literal.isNull()) {
        type.alwaysNull = true;
        type.nullable = true;
    } else if (literal.isText()) {
        const std::size_t length = characters(literal.asText());
        type.type = length > 255 ? FieldType::Memo : FieldType::Text;
        type.size = length > 255 ? 0 : static_cast<int>(length);
    } else if (literal.isDate()) {
        type.type = FieldType::Date;
    } else if (std::holds_alternative<bool>(literal.storage())) {
        type.type = FieldType::Boolean;
    } else if (const auto* whole = std::get_if<std::int64_t>(&literal.storage())) {
        return wholeType(*whole);
    } else {
        type.type = FieldType::Double;
    }
    return type;
}

StaticType commonType(const StaticType& a, const StaticType& b) {
    if (a.alwaysNull || b.alwaysNull) {
        StaticType type = a.alwaysNull ? b : a;
        type.nullable = true;
        return type;
    }
    StaticType type;
    type.nullable = a.nullable || b.nullable;
    if (!a.type || !b.type)
        return type;
    if (isText(a) && isText(b)) {
        const bool memo = a.type == FieldType::Memo || b.type == FieldType::Memo;
        type.type = memo ? FieldType::Memo : FieldType::Text;
        type.size = memo || a.size == 0 || b.size == 0 ? 0 : std::max(a.size, b.size);
    } else if (a.type == b.type) {
        type.type = a.type;
    } else if (isNumeric(*a.type) && isNumeric(*b.type)) {
        const FieldType wider = rank(*a.type) > rank(*b.type) ? *a.type : *b.type;
        type.type = wider == FieldType::Byte ? FieldType::Integer : wider; // a byte holds no -1
    }
    return type;
}

namespace {

/// The sum or difference of two types; Multiply where `dates` do not stay dates.
std::optional<FieldType> sumType(Operator op, const StaticType& a, const StaticType& b) {
    if (isDate(a) || isDate(b)) {
        if (op == Operator::Multiply || (op == Operator::Subtract && isDate(b)))
            return FieldType::Double;
        return FieldType::Date;
    }
    if (isText(a) || isText(b))
        return op == Operator::Add && isText(a) && isText(b) ? FieldType::Text : FieldType::Double;
    if (op == Operator::Multiply && (a.type == FieldType::Double || b.type == FieldType::Double))
        return FieldType::Double;
    const FieldType wider = rank(*a.type) > rank(*b.type) ? *a.type : *b.type;
    return rank(wider) <= rank(FieldType::Long) ? FieldType::Long : wider;
}

} // namespace

StaticType arithmeticType(Operator op, const StaticType& a, const StaticType& b) {
    StaticType type;
    type.nullable = a.nullable || b.nullable;
    switch (op) {
    case Operator::Concatenate:
        type.type = a.type == FieldType::Memo || b.type == FieldType::Memo ? FieldType::Memo : FieldType::Text;
        type.size = isText(a) && isText(b) && a.size > 0 && b.size > 0 && a.size + b.size <= 255 ? a.size + b.size : 0;
        type.nullable = a.nullable && b.nullable;
        return type;
    case Operator::Divide:
        type.type = FieldType::Double;
        type.nullable = true; // by zero
        return type;
    case Operator::Power:
        type.type = FieldType::Double;
        return type;
    case Operator::IntegerDivide:
    case Operator::Modulo:
        type.type = FieldType::Long;
        type.nullable = true;
        return type;
    default:
        break;
    }
    if (a.alwaysNull || b.alwaysNull)
        type.alwaysNull = true;
    else if (a.type && b.type)
        type.type = sumType(op, a, b);
    return type;
}

StaticType logicType(const Expression& expression) {
    StaticType type;
    type.type = FieldType::Boolean;
    for (const ExpressionPtr& operand : expression.operands) {
        const auto kind = operand->bound.type.type;
        if (kind && kind != FieldType::Boolean && (isNumeric(*kind) || kind == FieldType::Date))
            type.type = FieldType::Long;
    }
    return type;
}

} // namespace jet
