#include "data/jet/Emitter.h"

#include "data/jet/Like.h"
#include "data/jet/StaticTypes.h"

// "c = 'a' Or c = 'b' Or …" and "c Like 'a*' Or c Like 'b*' Or …" come in lengths of hundreds. The library goes along
// such a chain from its beginning for every row, and looks for each pattern among those it has read. Neighbours in a
// chain that test the same value therefore become one list, in which it searches, or one test for all their patterns.

namespace jet {

namespace {

using Kind = Expression::Kind;

struct Link {
    enum class Kind { Other, Member, Pattern } kind = Kind::Other;
    const Expression* tested = nullptr;
};

/// "c = 1" and "c Like 'x'" in a chain of Or, "c <> 1" and "c Not Like 'x'" in one of And.
Link linkOf(const Expression& operand, bool isOr) {
    if (operand.operands.size() != 2 || operand.operands[1]->kind != Kind::Literal ||
        operand.operands[1]->literal.isNull())
        return {};
    const Expression& tested = comparedPart(*operand.operands[0]);
    const bool isColumn = tested.kind == Kind::Column && !isUnknown(tested.bound.type) &&
                          (!isText(tested.bound.type) || carriesCollation(tested));
    if (operand.kind == Kind::Comparison && operand.op == (isOr ? Operator::Equal : Operator::NotEqual))
        return isColumn ? Link{Link::Kind::Member, &tested} : Link{};
    if (operand.kind != Kind::Like || operand.negated == isOr || !operand.operands[1]->literal.isText())
        return {};
    if (hasWildcards(operand.operands[1]->literal.asText()))
        return {Link::Kind::Pattern, &tested};
    return isColumn && isText(tested.bound.type) ? Link{Link::Kind::Member, &tested} : Link{};
}

/// One past the last operand from `first` on that is a link of the same kind.
std::size_t endOfRun(const std::vector<ExpressionPtr>& operands, std::size_t first, const Link& link, bool isOr) {
    std::size_t end = first + 1;
    while (end < operands.size()) {
        const Link next = linkOf(*operands[end], isOr);
        if (next.kind != link.kind || !sameExpression(*next.tested, *link.tested))
            break;
        ++end;
    }
    return end;
}

} // namespace

std::string Emitter::junction(const Expression& expression, std::string_view word) {
    constexpr std::size_t worthIt = 4;
    const bool isOr = expression.kind == Kind::Or;
    const auto& operands = expression.operands;
    std::vector<std::string> parts;
    for (std::size_t i = 0; i < operands.size();) {
        const Link link = linkOf(*operands[i], isOr);
        const std::size_t end = link.tested ? endOfRun(operands, i, link, isOr) : i + 1;
        if (end - i < worthIt)
            parts.push_back(condition(*operands[i++]));
        else if (link.kind == Link::Kind::Member)
            parts.push_back(memberOf(*link.tested, {&operands[i], end - i}, isOr));
        else
            parts.push_back(likeAny(*link.tested, {&operands[i], end - i}, isOr));
        if (end - i >= worthIt)
            i = end;
    }
    return balanced(std::move(parts), word);
}

std::string Emitter::memberOf(const Expression& tested, std::span<const ExpressionPtr> links, bool isOr) {
    std::string sql = "(" + value(tested) + (isOr ? " IN (" : " NOT IN (");
    for (std::size_t i = 0; i < links.size(); ++i)
        sql += (i == 0 ? "" : ", ") + value(*links[i]->operands[1]);
    return sql + "))";
}

std::string Emitter::likeAny(const Expression& tested, std::span<const ExpressionPtr> links, bool isOr) {
    std::vector<std::string> patterns;
    for (const ExpressionPtr& link : links)
        patterns.push_back(link->operands[1]->literal.asText());
    const std::string test = "jet_like_any(" + text(tested) + ", " + quoteLiteral(joinedPatterns(patterns)) + ")";
    return isOr ? "unlikely(" + test + ")" : "(NOT " + test + ")";
}

} // namespace jet
