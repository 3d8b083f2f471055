#include "data/jet/Expression.h"

#include "data/jet/Query.h"

#include <algorithm>

namespace jet {

Expression::Expression(Kind nodeKind, std::size_t at) : kind(nodeKind), position(at) {}
Expression::~Expression() = default;

void Expression::add(ExpressionPtr operand) {
    depth = std::max(depth, operand->depth + 1);
    operands.push_back(std::move(operand));
}

namespace {

const Expression& resolved(const Expression& expression) {
    const Expression* at = &expression;
    while (at->kind == Expression::Kind::Column && at->bound.target)
        at = at->bound.target;
    return *at;
}

} // namespace

bool sameExpression(const Expression& first, const Expression& second) {
    const Expression& a = resolved(first);
    const Expression& b = resolved(second);
    if (&a == &b)
        return true;
    if (a.kind != b.kind || a.query || b.query || a.operands.size() != b.operands.size())
        return false;
    if (a.kind == Expression::Kind::Column)
        return a.bound.source != nullptr && a.bound.source == b.bound.source && a.bound.column == b.bound.column;
    if (a.op != b.op || a.negated != b.negated || !(a.literal == b.literal) || !equalText(a.name, b.name))
        return false;
    return std::equal(a.operands.begin(), a.operands.end(), b.operands.begin(),
                      [](const ExpressionPtr& x, const ExpressionPtr& y) { return sameExpression(*x, *y); });
}

} // namespace jet
