#include "data/jet/Emitter.h"

#include "data/jet/StaticTypes.h"

namespace jet {

using Kind = Expression::Kind;

std::string balanced(std::vector<std::string> parts, std::string_view word) {
    constexpr std::size_t flat = 8;
    while (parts.size() > 1) {
        std::vector<std::string> groups;
        for (std::size_t i = 0; i < parts.size(); i += flat) {
            std::string group = parts[i];
            const std::size_t end = std::min(i + flat, parts.size());
            for (std::size_t j = i + 1; j < end; ++j)
                group.append(word).append(parts[j]);
            groups.push_back(end - i > 1 ? "(" + group + ")" : group);
        }
        parts = std::move(groups);
    }
    return parts.front();
}

bool isBitwise(const Expression& expression) {
    return expression.bound.type.type == FieldType::Long;
}

/// A logical operator over conditions; the library's own three-valued logic.
std::string Emitter::logic(const Expression& expression) {
    if (expression.kind == Kind::And)
        return junction(expression, " AND ");
    if (expression.kind == Kind::Or)
        return junction(expression, " OR ");
    const std::string a = condition(*expression.operands.front());
    if (expression.kind == Kind::Not)
        return "(NOT " + a + ")";
    const std::string b = condition(*expression.operands[1]);
    switch (expression.op) {
    case Operator::Implies:
        return "((NOT " + a + ") OR " + b + ")";
    case Operator::Equivalent:
        return "((NOT " + a + ") = (NOT " + b + "))";
    default:
        return "((NOT " + a + ") <> (NOT " + b + "))";
    }
}

std::string Emitter::bits(const Expression& expression) {
    const std::string plain = value(expression);
    const StaticType& type = expression.bound.type;
    return isWhole(type) || type.alwaysNull ? plain : "jet_to_long(" + plain + ")";
}

/// The same operators over whole numbers, bit by bit.
std::string Emitter::bitwise(const Expression& expression) {
    std::vector<std::string> parts;
    for (const ExpressionPtr& operand : expression.operands)
        parts.push_back(bits(*operand));
    if (expression.kind == Kind::Not)
        return "(~ " + parts.front() + ")";
    if (expression.kind == Kind::And || expression.kind == Kind::Or)
        return balanced(std::move(parts), expression.kind == Kind::And ? " & " : " | ");
    const std::string& a = parts[0];
    const std::string& b = parts[1];
    const std::string different = "((" + a + " | " + b + ") & ~(" + a + " & " + b + "))";
    switch (expression.op) {
    case Operator::Implies:
        return "(~ " + a + " | " + b + ")";
    case Operator::Equivalent:
        return "(~ " + different + ")";
    default:
        return different;
    }
}

} // namespace jet
