#include "data/jet/Binder.h"

#include "data/jet/ScalarFunctions.h"
#include "data/jet/StaticTypes.h"
#include "data/types/DatabaseError.h"

#include <algorithm>

namespace jet {

namespace {

StaticType booleanType(const Expression& expression) {
    StaticType type;
    type.type = FieldType::Boolean;
    type.nullable = expression.kind != Expression::Kind::IsNull && expression.kind != Expression::Kind::Exists;
    return type;
}

std::string written(const Expression& column) {
    return column.qualifier.empty() ? column.name : column.qualifier + "." + column.name;
}

[[noreturn]] void unknownName(const Expression& column) {
    throw DatabaseError(3061, "Unknown name '" + written(column) + "'", column.position);
}

enum class Group { Text, Number, Binary, Open };

Group groupOf(const StaticType& type) {
    if (!type.type)
        return Group::Open;
    if (isText(*type.type))
        return Group::Text;
    return *type.type == FieldType::LongBinary ? Group::Binary : Group::Number; // dates compare with numbers
}

int findColumn(const Source& source, std::string_view name) {
    for (std::size_t i = 0; i < source.columns.size(); ++i) {
        if (equalText(source.columns[i].name, name))
            return static_cast<int>(i);
    }
    return -1;
}

StaticType typeOfColumn(const ResultColumn& column) {
    StaticType type;
    type.type = column.type;
    type.size = column.size;
    return type;
}

/// Names of the output list stand for expressions, which may use such names in turn; what is behind a name is bounded,
/// as every further step walks through all of it.
constexpr int deepestThroughNames = 1000;
constexpr std::size_t mostThroughNames = 100'000;

[[noreturn]] void tooComplex(const Expression& expression) {
    throw DatabaseError(3360, "The expression is too complex", expression.position);
}

void measure(const Expression& at, int depth, Expression::Binding& total) {
    total.targetSize += 1 + at.bound.targetSize;
    total.targetDepth = std::max(total.targetDepth, depth + at.bound.targetDepth);
    for (const ExpressionPtr& operand : at.operands)
        measure(*operand, depth + 1, total);
}

void measureTarget(Expression& name, const Expression& target) {
    name.bound.targetSize = 0;
    name.bound.targetDepth = 0;
    measure(target, 1, name.bound);
    if (name.bound.targetSize > mostThroughNames || name.bound.targetDepth > deepestThroughNames)
        tooComplex(name);
}

/// Whether an expression names columns, but none of the query's own tables.
bool namesOuterColumnsOnly(const Expression& expression, const Scope& scope) {
    bool any = false;
    bool own = false;
    const auto look = [&](const auto& self, const Expression& at) -> void {
        if (at.kind == Expression::Kind::Column) {
            if (at.bound.target)
                return self(self, *at.bound.target);
            any = true;
            own = own || std::find(scope.sources.begin(), scope.sources.end(), at.bound.source) != scope.sources.end();
        }
        for (const ExpressionPtr& operand : at.operands)
            self(self, *operand);
    };
    look(look, expression);
    return any && !own;
}

StaticType sumOf(const StaticType& argument) {
    StaticType type;
    if (argument.type == FieldType::Currency)
        type.type = FieldType::Currency;
    else if (isWhole(argument) && argument.type != FieldType::Long)
        type.type = FieldType::Long;
    else
        type.type = FieldType::Double;
    return type;
}

} // namespace

void checkComparable(const StaticType& a, const StaticType& b, std::size_t position) {
    const Group first = groupOf(a);
    const Group second = groupOf(b);
    if (first != Group::Open && second != Group::Open && first != second)
        throw DatabaseError(3464, "Data type mismatch in criteria expression.", position);
}

void Binder::condition(Expression& expression, Scope& scope, Clause clause) {
    this->expression(expression, scope, clause);
    if (isText(expression.bound.type) || expression.bound.type.type == FieldType::LongBinary)
        throw DatabaseError(3464, "Data type mismatch in criteria expression.", expression.position);
}

void Binder::expression(Expression& expression, Scope& scope, Clause clause) {
    using Kind = Expression::Kind;
    if (expression.kind == Kind::Aggregate)
        return aggregate(expression, scope, clause);
    for (const ExpressionPtr& operand : expression.operands)
        this->expression(*operand, scope, clause);
    StaticType& type = expression.bound.type;
    const auto operand = [&](std::size_t i) -> const StaticType& { return expression.operands[i]->bound.type; };
    switch (expression.kind) {
    case Kind::Literal:
        type = typeOf(expression.literal);
        break;
    case Kind::Missing:
        type.alwaysNull = true;
        break;
    case Kind::Column:
        column(expression, scope);
        break;
    case Kind::Function:
        function(expression);
        break;
    case Kind::Negate: {
        StaticType zero;
        zero.type = FieldType::Integer;
        zero.nullable = false;
        type = arithmeticType(Operator::Subtract, zero, operand(0));
        if (isDate(operand(0)))
            type.type = FieldType::Date;
        break;
    }
    case Kind::Arithmetic:
        type = arithmeticType(expression.op, operand(0), operand(1));
        break;
    case Kind::Comparison:
        checkComparable(operand(0), operand(1), expression.position);
        type = booleanType(expression);
        break;
    case Kind::Between:
    case Kind::InList:
        for (std::size_t i = 1; i < expression.operands.size(); ++i)
            checkComparable(operand(0), operand(i), expression.operands[i]->position);
        type = booleanType(expression);
        break;
    case Kind::And:
    case Kind::Or:
    case Kind::Not:
    case Kind::Logic:
        for (const ExpressionPtr& part : expression.operands) {
            if (isText(part->bound.type))
                throw DatabaseError(3464, "Data type mismatch in criteria expression.", part->position);
        }
        type = logicType(expression);
        break;
    case Kind::Like:
    case Kind::IsNull:
        type = booleanType(expression);
        break;
    case Kind::InQuery:
    case Kind::Exists:
    case Kind::ScalarQuery:
        subquery(expression, scope);
        break;
    case Kind::Aggregate:
        break;
    }
}

void Binder::subquery(Expression& expression, Scope& scope) {
    if (expression.query->selects.front().into)
        throw DatabaseError(3129, "A subquery makes no table", expression.position);
    query(*expression.query, &scope);
    expression.bound.type = booleanType(expression);
    if (expression.kind == Expression::Kind::Exists)
        return;
    const auto& outputs = expression.query->outputs();
    if (outputs.size() != 1)
        throw DatabaseError(3306, "A subquery may show one column only, unless it stands behind EXISTS",
                            expression.position);
    const StaticType shown = typeOfColumn(outputs.front().column);
    if (expression.kind == Expression::Kind::InQuery)
        checkComparable(expression.operands.front()->bound.type, shown, expression.position);
    else
        expression.bound.type = shown;
}

void Binder::column(Expression& expression, Scope& scope) {
    for (Scope* at = &scope; at; at = const_cast<Scope*>(at->outer)) {
        if (columnIn(expression, *at))
            return;
    }
    if (!becomesTruth(expression))
        unknownName(expression);
    expression.bound.type = typeOf(expression.literal);
}

/// Looks the name up among the tables of one query, then among its aliases.
bool Binder::columnIn(Expression& expression, Scope& scope) {
    for (const Source* source : scope.sources) {
        if (!expression.qualifier.empty() && !equalText(source->name, expression.qualifier))
            continue;
        const int found = findColumn(*source, expression.name);
        if (found < 0) {
            if (!expression.qualifier.empty())
                unknownName(expression);
            continue;
        }
        if (expression.bound.source)
            throw DatabaseError(3079, "The name '" + expression.name + "' could stand for columns of several tables",
                                expression.position);
        expression.bound.source = source;
        expression.bound.column = found;
        expression.bound.type = typeOfColumn(source->columns[static_cast<std::size_t>(found)]);
    }
    if (expression.bound.source)
        return true;
    if (!scope.select || !expression.qualifier.empty())
        return false;
    for (std::size_t i = 0; i < scope.select->columns.size(); ++i) {
        SelectColumn& aliased = scope.select->columns[i];
        if (aliased.alias.empty() || !equalText(aliased.alias, expression.name))
            continue;
        if (scope.columnStates[i] == 1)
            throw DatabaseError(3103, "Circular reference caused by the alias '" + aliased.alias + "'",
                                expression.position);
        boundAliases_ += aliased.expression->depth;
        if (boundAliases_ > deepestThroughNames)
            tooComplex(expression);
        bindColumn(i, scope);
        boundAliases_ -= aliased.expression->depth;
        measureTarget(expression, *aliased.expression);
        if (inAggregate_ && hasAggregate(*aliased.expression))
            throw DatabaseError(3095, "An aggregate cannot stand inside another", expression.position);
        expression.bound.target = aliased.expression.get();
        expression.bound.type = aliased.expression->bound.type;
        return true;
    }
    return false;
}

bool becomesTruth(Expression& name) {
    const bool yes = equalText(name.name, "Yes");
    if (!name.qualifier.empty() || (!yes && !equalText(name.name, "No")))
        return false;
    name.kind = Expression::Kind::Literal;
    name.literal = Value(yes);
    return true;
}

const ScalarFunction& functionOf(const Expression& expression) {
    const ScalarFunction* function = findFunction(expression.name);
    if (!function)
        throw DatabaseError(3085, "Undefined function '" + expression.name + "' in expression", expression.position);
    const auto count = static_cast<int>(expression.operands.size());
    if (count < function->least || count > function->most)
        throw DatabaseError(3075, "Wrong number of arguments for the function '" + expression.name + "'",
                            expression.position);
    return *function;
}

void Binder::function(Expression& expression) {
    const ScalarFunction* function = &functionOf(expression);
    const auto count = expression.operands.size();
    expression.bound.function = function;
    StaticType& type = expression.bound.type;
    const auto operand = [&](std::size_t i) -> const StaticType& { return expression.operands[i]->bound.type; };
    switch (function->result) {
    case ScalarFunction::Result::Text:
        type.type = FieldType::Text;
        if (count > 0 && operand(0).type == FieldType::Memo)
            type.type = FieldType::Memo;
        break;
    case ScalarFunction::Result::Boolean:
        type.type = FieldType::Boolean;
        break;
    case ScalarFunction::Result::Long:
        type.type = FieldType::Long;
        break;
    case ScalarFunction::Result::Double:
        type.type = FieldType::Double;
        break;
    case ScalarFunction::Result::Currency:
        type.type = FieldType::Currency;
        break;
    case ScalarFunction::Result::Date:
        type.type = FieldType::Date;
        break;
    case ScalarFunction::Result::AsArgument:
        type.type = operand(0).type && isNumeric(*operand(0).type) ? operand(0).type : FieldType::Double;
        break;
    case ScalarFunction::Result::Choice:
        choice(expression);
        break;
    }
}

/// IIf, Nz, Choose and Switch give one of several arguments.
void Binder::choice(Expression& expression) {
    const auto& operands = expression.operands;
    const std::string name = upperText(expression.name);
    if (name == "SWITCH" && operands.size() % 2 != 0)
        throw DatabaseError(3075, "Wrong number of arguments for the function '" + expression.name + "'",
                            expression.position);
    const std::size_t first = name == "NZ" ? 0 : 1;
    const std::size_t step = name == "SWITCH" ? 2 : 1;
    StaticType type;
    type.alwaysNull = true;
    for (std::size_t i = first; i < operands.size(); i += step)
        type = i == first ? operands[i]->bound.type : commonType(type, operands[i]->bound.type);
    type.nullable = type.nullable || name == "SWITCH" || name == "CHOOSE" || (name == "IIF" && operands.size() < 3);
    expression.bound.type = type;
}

void Binder::aggregate(Expression& expression, Scope& scope, Clause clause) {
    if (clause == Clause::Where)
        throw DatabaseError(3096, "An aggregate cannot stand in the WHERE clause", expression.position);
    if (clause == Clause::On)
        throw DatabaseError(3097, "An aggregate cannot stand in a join", expression.position);
    if (clause == Clause::GroupBy)
        throw DatabaseError(3098, "An aggregate cannot stand in the GROUP BY clause", expression.position);
    if (clause == Clause::Value || inAggregate_)
        throw DatabaseError(3095, "An aggregate cannot stand here", expression.position);
    const bool isCount = equalText(expression.name, "COUNT");
    const bool countsRows = isCount && expression.operands.empty();
    if (!countsRows && expression.operands.size() != 1)
        throw DatabaseError(3075, "Wrong number of arguments for the function '" + expression.name + "'",
                            expression.position);
    inAggregate_ = true;
    try {
        for (const ExpressionPtr& operand : expression.operands)
            this->expression(*operand, scope, clause);
    } catch (...) {
        inAggregate_ = false;
        throw;
    }
    inAggregate_ = false;
    if (!countsRows && namesOuterColumnsOnly(*expression.operands.front(), scope))
        throw DatabaseError(3095, "An aggregate must name a column of its own query", expression.position);
    StaticType& type = expression.bound.type;
    if (isCount) {
        type.type = FieldType::Long;
        type.nullable = false;
        return;
    }
    const StaticType& argument = expression.operands.front()->bound.type;
    if (equalText(expression.name, "SUM"))
        type = sumOf(argument);
    else if (equalText(expression.name, "AVG"))
        type.type = argument.type == FieldType::Currency ? FieldType::Currency : FieldType::Double;
    else if (equalText(expression.name, "MIN") || equalText(expression.name, "MAX") ||
             equalText(expression.name, "FIRST") || equalText(expression.name, "LAST"))
        type = argument;
    else
        type.type = FieldType::Double;
    type.nullable = true;
}

bool hasAggregate(const Expression& expression) {
    if (expression.kind == Expression::Kind::Aggregate)
        return true;
    if (expression.kind == Expression::Kind::Column && expression.bound.target)
        return hasAggregate(*expression.bound.target);
    return std::any_of(expression.operands.begin(), expression.operands.end(),
                       [](const ExpressionPtr& operand) { return hasAggregate(*operand); });
}

void checkGrouped(const Expression& expression, const Select& select) {
    const bool isGroupKey = std::any_of(select.groupBy.begin(), select.groupBy.end(),
                                        [&](const ExpressionPtr& key) { return sameExpression(*key, expression); });
    if (isGroupKey || expression.kind == Expression::Kind::Aggregate)
        return;
    if (expression.kind == Expression::Kind::Column) {
        if (expression.bound.target)
            return checkGrouped(*expression.bound.target, select);
        const bool own = std::any_of(select.from.begin(), select.from.end(),
                                     [&](const auto& item) { return holdsSource(*item, expression.bound.source); });
        if (own)
            throw DatabaseError(3122, "The column '" + written(expression) + "' is neither grouped nor aggregated",
                                expression.position);
        return;
    }
    for (const ExpressionPtr& operand : expression.operands)
        checkGrouped(*operand, select);
}

} // namespace jet
