#include "data/jet/Search.h"

#include "data/jet/Binder.h"
#include "data/jet/Evaluate.h"
#include "data/jet/Parser.h"
#include "data/types/DatabaseError.h"

namespace jet {

namespace {

void bindColumns(Expression& expression, const Search::ColumnLookup& columns) {
    using Kind = Expression::Kind;
    switch (expression.kind) {
    case Kind::Column: {
        int column = -1;
        if (!expression.qualifier.empty())
            column = columns(expression.qualifier + "." + expression.name);
        if (column < 0)
            column = columns(expression.name);
        if (column < 0 && becomesTruth(expression))
            break;
        if (column < 0)
            throw DatabaseError(3070, "'" + expression.name + "' is not a valid field name or expression",
                                expression.position);
        expression.bound.column = column;
        break;
    }
    case Kind::Aggregate:
    case Kind::InQuery:
    case Kind::Exists:
    case Kind::ScalarQuery:
        throw DatabaseError(3077, "Syntax error: a query or aggregate cannot stand in a search", expression.position);
    case Kind::Function:
        expression.bound.function = &functionOf(expression);
        break;
    default:
        break;
    }
    for (const ExpressionPtr& operand : expression.operands)
        bindColumns(*operand, columns);
}

} // namespace

struct Search::State {
    ExpressionPtr expression;
};

Search::Search(std::string_view text, const ColumnLookup& columns) : state_(std::make_unique<State>()) {
    state_->expression = parseExpression(text);
    bindColumns(*state_->expression, columns);
}

Search::~Search() = default;
Search::Search(Search&&) noexcept = default;
Search& Search::operator=(Search&&) noexcept = default;

bool Search::matches(const std::function<const Value&(int column)>& cell) const {
    return evaluateCondition(*state_->expression, cell).value_or(false);
}

} // namespace jet
