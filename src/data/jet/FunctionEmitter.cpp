#include "data/jet/Emitter.h"

#include "data/jet/ScalarFunctions.h"
#include "data/jet/StaticTypes.h"

#include <algorithm>

namespace jet {

namespace {

using Kind = Expression::Kind;

/// The argument where it is an integer literal of 0 or more, else -1.
std::int64_t countAt(const std::vector<ExpressionPtr>& arguments, std::size_t index) {
    if (index >= arguments.size() || arguments[index]->kind != Kind::Literal)
        return -1;
    const auto* whole = std::get_if<std::int64_t>(&arguments[index]->literal.storage());
    return whole ? *whole : -1;
}

bool isFunction(const Expression& expression, std::string_view name) {
    return expression.kind == Kind::Function && expression.bound.function->name == name;
}

bool isTextOperator(const Expression& expression) {
    return expression.kind == Kind::Arithmetic && expression.op == Operator::Concatenate;
}

/// The column of CDate(Left(c, 2) & ':' & Mid(c, 4, 2)), the time of day in a text "hh:mm"; null for any other shape.
const Expression* hourAndMinuteOf(const Expression& expression) {
    if (!isFunction(expression, "CDATE"))
        return nullptr;
    const Expression& whole = *expression.operands.front();
    if (!isTextOperator(whole) || !isTextOperator(*whole.operands[0]))
        return nullptr;
    const Expression& left = *whole.operands[0]->operands[0];
    const Expression& colon = *whole.operands[0]->operands[1];
    const Expression& mid = *whole.operands[1];
    if (!isFunction(left, "LEFT") || !isFunction(mid, "MID") || mid.operands.size() != 3 ||
        colon.kind != Kind::Literal || !(colon.literal == Value(":")))
        return nullptr;
    if (countAt(left.operands, 1) != 2 || countAt(mid.operands, 1) != 4 || countAt(mid.operands, 2) != 2 ||
        !sameExpression(*left.operands[0], *mid.operands[0]) || !isText(left.operands[0]->bound.type))
        return nullptr;
    return left.operands[0].get();
}

std::string lowered(std::string_view name) {
    return lowerText(name);
}

} // namespace

std::string Emitter::function(const Expression& expression) {
    const ScalarFunction& function = *expression.bound.function;
    if (function.result == ScalarFunction::Result::Choice)
        return choice(expression, function.name);
    if (function.name == "ISNULL")
        return "(- " + condition(expression) + ")";
    std::string native = nativeFunction(expression);
    return native.empty() ? dialectCall(expression) : native;
}

/// IIf, Nz, Switch and Choose.
std::string Emitter::choice(const Expression& expression, std::string_view name) {
    const auto& operands = expression.operands;
    if (name == "NZ") {
        const StaticType& type = operands[0]->bound.type;
        const std::string otherwise = operands.size() > 1          ? value(*operands[1])
                                      : isText(type) || !type.type ? "''"
                                                                   : "0";
        return "ifnull(" + value(*operands[0]) + ", " + otherwise + ")";
    }
    if (name == "IIF")
        return "CASE WHEN " + condition(*operands[0]) + " THEN " + value(*operands[1]) + " ELSE " +
               (operands.size() > 2 ? value(*operands[2]) : "NULL") + " END";
    std::string sql = "CASE";
    if (name == "SWITCH") {
        for (std::size_t i = 0; i + 1 < operands.size(); i += 2)
            sql += " WHEN " + condition(*operands[i]) + " THEN " + value(*operands[i + 1]);
        return sql + " END";
    }
    sql += " CAST(" + number(*operands[0]) + " AS INTEGER)";
    for (std::size_t i = 1; i < operands.size(); ++i)
        sql += " WHEN " + std::to_string(i) + " THEN " + value(*operands[i]);
    return sql + " END";
}

/// Functions that the library has with exactly the same meaning; empty where it has not.
std::string Emitter::nativeFunction(const Expression& expression) {
    const std::string_view name = expression.bound.function->name;
    const auto& operands = expression.operands;
    if (const Expression* time = hourAndMinuteOf(expression))
        return "jet_hourminute(" + value(*time) + ")";
    if (operands.empty())
        return {};
    if (name == "ABS" && operands[0]->bound.type.type && isNumeric(*operands[0]->bound.type.type))
        return "abs(" + value(*operands[0]) + ")";
    if (!isText(operands[0]->bound.type))
        return {};
    const std::int64_t second = countAt(operands, 1);
    const std::int64_t third = countAt(operands, 2);
    if (name == "LEFT" && second >= 0)
        return "substr(" + value(*operands[0]) + ", 1, " + std::to_string(second) + ")";
    if (name == "RIGHT" && second > 0)
        return "substr(" + value(*operands[0]) + ", -" + std::to_string(second) + ")";
    if (name == "MID" && second > 0 && (operands.size() == 2 || third >= 0))
        return "substr(" + value(*operands[0]) + ", " + std::to_string(second) +
               (third >= 0 ? ", " + std::to_string(third) : std::string()) + ")";
    if (name == "LEN")
        return "length(" + value(*operands[0]) + ")";
    if (name == "TRIM" || name == "LTRIM" || name == "RTRIM")
        return lowered(name) + "(" + value(*operands[0]) + ")";
    return {};
}

std::string Emitter::dialectCall(const Expression& expression) {
    const ScalarFunction& function = *expression.bound.function;
    std::string name = "jet_" + lowered(function.name);
    std::string arguments;
    for (std::size_t i = 0; i < expression.operands.size(); ++i) {
        const Expression& operand = *expression.operands[i];
        const StaticType& type = operand.bound.type;
        const bool asText =
            function.argument == ScalarFunction::Argument::Text && (isDate(type) || type.type == FieldType::Boolean);
        if (i == 0 && function.argument == ScalarFunction::Argument::Typed) {
            if (isDate(type))
                name += "_date";
            else if (type.type == FieldType::Boolean)
                name += "_boolean";
            else if (type.type == FieldType::Currency)
                name += "_currency";
        }
        arguments += (i == 0 ? "" : ", ") + (asText ? text(operand) : value(operand));
    }
    return name + "(" + arguments + ")";
}

std::string Emitter::aggregate(const Expression& expression) {
    const std::string name = upperText(expression.name);
    if (expression.operands.empty())
        return "count(*)";
    const Expression& argument = *expression.operands.front();
    if (name == "COUNT")
        return "count(" + value(argument) + ")";
    if (name == "MIN" || name == "MAX") {
        const bool named = isText(argument.bound.type) && !carriesCollation(argument);
        return lowered(name) + "(" + value(argument) + (named ? " COLLATE JET)" : ")");
    }
    if (name == "FIRST" || name == "LAST")
        return "jet_" + lowered(name) + "(" + value(argument) + ")";
    if (name == "SUM" || name == "AVG") {
        const std::string sum = lowered(name) + "(" + number(argument) + ")";
        return expression.bound.type.type == FieldType::Currency ? "round(" + sum + ", 4)" : sum;
    }
    return "jet_" + lowered(name) + "(" + number(argument) + ")";
}

} // namespace jet
