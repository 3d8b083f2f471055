#include "data/jet/Emitter.h"

#include "data/jet/StaticTypes.h"

namespace jet {

using Kind = Expression::Kind;

namespace {

/// Many parts in balanced brackets, so that the library's tree stays shallow.
std::string joined(std::vector<std::string> parts, std::string_view word) {
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

} // namespace

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

/// What many comparisons of one column with literals have in common: the column of "c = 1" in a chain of Or, of
/// "c <> 1" in one of And. Null where the operand is none.
const Expression* Emitter::listedColumn(const Expression& operand, Operator wanted) {
    if (operand.kind != Kind::Comparison || operand.op != wanted)
        return nullptr;
    const Expression& column = comparedPart(*operand.operands[0]);
    const Expression& literal = *operand.operands[1];
    const bool listed = column.kind == Kind::Column && literal.kind == Kind::Literal && !literal.literal.isNull() &&
                        (!isText(column.bound.type) || carriesCollation(column)) && !isUnknown(column.bound.type);
    return listed ? &column : nullptr;
}

/// Comparisons of one column with many literals, one behind the other, become a list, in which the library searches;
/// a chain it would go along from its beginning for every row.
std::string Emitter::junction(const Expression& expression, std::string_view word) {
    const bool isOr = expression.kind == Kind::Or;
    const Operator listed = isOr ? Operator::Equal : Operator::NotEqual;
    std::vector<std::string> parts;
    for (std::size_t i = 0; i < expression.operands.size();) {
        const Expression* column = listedColumn(*expression.operands[i], listed);
        std::size_t end = i + 1;
        while (column && end < expression.operands.size()) {
            const Expression* next = listedColumn(*expression.operands[end], listed);
            if (!next || !sameExpression(*next, *column))
                break;
            ++end;
        }
        constexpr std::size_t worthIt = 4;
        if (end - i < worthIt) {
            parts.push_back(condition(*expression.operands[i++]));
            continue;
        }
        std::string list = "(" + value(*column) + (isOr ? " IN (" : " NOT IN (");
        for (const std::size_t first = i; i < end; ++i)
            list += (i == first ? "" : ", ") + value(*expression.operands[i]->operands[1]);
        parts.push_back(list + "))");
    }
    return joined(std::move(parts), word);
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
        return joined(std::move(parts), expression.kind == Kind::And ? " & " : " | ");
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
