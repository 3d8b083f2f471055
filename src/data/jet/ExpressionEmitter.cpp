#include "data/jet/Emitter.h"

#include "data/jet/Like.h"
#include "data/jet/ScalarFunctions.h"
#include "data/jet/StaticTypes.h"
#include "data/types/DatabaseError.h"

#include <charconv>
#include <optional>

namespace jet {

namespace {

using Kind = Expression::Kind;

std::string realText(double number) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
    std::string text(buffer, end);
    if (text.find_first_of(".en") == std::string::npos)
        text += ".0";
    return text;
}

/// Some forms stand more than once in what is emitted, so that few words nested in one another could become gigabytes.
std::string bounded(std::string emitted, const Expression& expression) {
    constexpr std::size_t longestEmitted = 16'000'000;
    if (emitted.size() > longestEmitted && expression.kind != Kind::Literal)
        throw DatabaseError(3360, "The expression is too complex", expression.position);
    return emitted;
}

std::string_view comparisonSign(Operator op) {
    switch (op) {
    case Operator::Equal:
        return " = ";
    case Operator::NotEqual:
        return " <> ";
    case Operator::Less:
        return " < ";
    case Operator::LessEqual:
        return " <= ";
    case Operator::Greater:
        return " > ";
    default:
        return " >= ";
    }
}

bool isLiteral(const Expression& expression) {
    return expression.kind == Kind::Literal;
}

/// A date that was calculated can miss its second by the last bits; columns, literals and functions cannot.
bool isCalculatedDate(const Expression& expression) {
    const Expression& shown = resolved(expression);
    return isDate(shown.bound.type) && (shown.kind == Kind::Arithmetic || shown.kind == Kind::Negate);
}

/// Whether the library holds the value as a real, so that it divides with a fraction. A sum or choice of type Double
/// can be whole.
bool isCertainlyReal(const Expression& expression) {
    const Expression& shown = resolved(expression);
    const bool wholeType = !shown.bound.type.type || isWhole(shown.bound.type) || isText(shown.bound.type);
    if (shown.kind == Kind::Column)
        return !wholeType && shown.bound.source->table && !shown.bound.source->table->isView;
    return shown.kind == Kind::Literal && std::holds_alternative<double>(shown.literal.storage());
}

std::string inSeconds(const std::string& date) {
    return "round((" + date + ") * 86400.0)";
}

} // namespace

const Expression& resolved(const Expression& expression) {
    const Expression* at = &expression;
    while (at->kind == Kind::Column && at->bound.target)
        at = at->bound.target;
    return *at;
}

const Expression& comparedPart(const Expression& expression) {
    const Expression* at = &resolved(expression);
    while (at->kind == Kind::Function && (at->bound.function->name == "UCASE" || at->bound.function->name == "LCASE") &&
           isText(at->operands.front()->bound.type))
        at = &resolved(*at->operands.front());
    return *at;
}

bool carriesCollation(const Expression& expression) {
    const Expression& shown = resolved(expression);
    return shown.kind == Kind::Column && shown.bound.source->table && !shown.bound.source->table->isView &&
           isText(shown.bound.type);
}

std::string literalText(const Value& value) {
    if (value.isNull())
        return "NULL";
    if (value.isText())
        return quoteLiteral(value.asText());
    if (const auto* truth = std::get_if<bool>(&value.storage()))
        return *truth ? "-1" : "0";
    if (const auto* whole = std::get_if<std::int64_t>(&value.storage()))
        return std::to_string(*whole);
    return realText(value.asDouble());
}

std::string columnText(const Source& source, int column) {
    return quoteIdentifier(source.name) + "." + quoteIdentifier(source.columns[static_cast<std::size_t>(column)].name);
}

std::string Emitter::value(const Expression& expression) {
    return bounded(valueText(expression), expression);
}
std::string Emitter::condition(const Expression& expression) {
    return bounded(conditionText(expression), expression);
}

std::string Emitter::valueText(const Expression& expression) {
    switch (expression.kind) {
    case Kind::Literal:
        return literalText(expression.literal);
    case Kind::Missing:
        return "NULL";
    case Kind::Column:
        if (expression.bound.target)
            return value(*expression.bound.target);
        return columnText(*expression.bound.source, expression.bound.column);
    case Kind::Negate:
        return "(- " + number(*expression.operands.front()) + ")";
    case Kind::Arithmetic:
        return arithmetic(expression);
    case Kind::And:
    case Kind::Or:
    case Kind::Not:
    case Kind::Logic:
        return isBitwise(expression) ? bitwise(expression) : "(- " + logic(expression) + ")";
    case Kind::Function:
        return function(expression);
    case Kind::Aggregate:
        return aggregate(expression);
    case Kind::ScalarQuery:
        return scalarQuery(*expression.query);
    default:
        return "(- " + condition(expression) + ")"; // the library's true is 1
    }
}

std::string Emitter::conditionText(const Expression& expression) {
    switch (expression.kind) {
    case Kind::Comparison:
        return comparison(expression);
    case Kind::Between:
        return between(expression);
    case Kind::Like:
        return like(expression);
    case Kind::InList:
        return inList(expression);
    case Kind::InQuery: {
        const Expression& tested = comparedPart(*expression.operands.front());
        const bool named = isText(tested.bound.type) && !carriesCollation(tested);
        return "(" + value(tested) + (named ? " COLLATE JET" : "") + (expression.negated ? " NOT IN (" : " IN (") +
               subquery(*expression.query) + "))";
    }
    case Kind::Exists:
        return "EXISTS (" + subquery(*expression.query) + ")";
    case Kind::IsNull:
        return "(" + value(*expression.operands.front()) + (expression.negated ? " IS NOT NULL)" : " IS NULL)");
    case Kind::And:
    case Kind::Or:
    case Kind::Not:
    case Kind::Logic:
        return isBitwise(expression) ? bitwise(expression) : logic(expression);
    case Kind::Function:
        if (expression.bound.function->name == "ISNULL")
            return "(" + value(*expression.operands.front()) + " IS NULL)";
        break;
    case Kind::Column:
        if (expression.bound.target)
            return condition(*expression.bound.target);
        break;
    default:
        break;
    }
    // Of a text that is taken for a condition the library would look at the digits only, not at "True".
    const StaticType& type = expression.bound.type;
    const std::string plain = value(expression);
    return isText(type) || isUnknown(type) ? "jet_to_boolean(" + plain + ")" : plain;
}

std::string Emitter::comparison(const Expression& expression) {
    const Expression& left = comparedPart(*expression.operands[0]);
    const Expression& right = comparedPart(*expression.operands[1]);
    std::string a = keyText(left);
    std::string b = keyText(right);
    const bool leftIsKey = !a.empty();
    if (!leftIsKey)
        a = value(left);
    if (b.empty())
        b = value(right);
    const bool textual = (isText(left.bound.type) || isUnknown(left.bound.type)) &&
                         (isText(right.bound.type) || isUnknown(right.bound.type));
    if (textual && !leftIsKey && !carriesCollation(left) && (left.kind == Kind::Column || !carriesCollation(right)))
        a += " COLLATE JET";
    if (isCalculatedDate(left) || isCalculatedDate(right)) {
        a = inSeconds(a);
        b = inSeconds(b);
    }
    return "(" + a + std::string(comparisonSign(expression.op)) + b + ")";
}

/// The bounds may stand in either order.
std::string Emitter::between(const Expression& expression) {
    const Expression& tested = comparedPart(*expression.operands[0]);
    const Expression& first = comparedPart(*expression.operands[1]);
    const Expression& second = comparedPart(*expression.operands[2]);
    std::string subject = value(tested);
    std::string low = value(first);
    std::string high = value(second);
    if (isText(tested.bound.type) && !carriesCollation(tested))
        subject += " COLLATE JET";
    if (isCalculatedDate(tested) || isCalculatedDate(first) || isCalculatedDate(second)) {
        subject = inSeconds(subject);
        low = inSeconds(low);
        high = inSeconds(high);
    }
    const std::string word = expression.negated ? " NOT BETWEEN " : " BETWEEN ";
    if (isLiteral(first) && isLiteral(second) && !first.literal.isNull() && !second.literal.isNull()) {
        const bool turned = first.literal.isText() ? compareText(first.literal.asText(), second.literal.asText()) > 0
                                                   : first.literal.asDouble() > second.literal.asDouble();
        return "(" + subject + word + (turned ? high + " AND " + low : low + " AND " + high) + ")";
    }
    const std::string either = expression.negated ? " AND " : " OR ";
    return "((" + subject + word + low + " AND " + high + ")" + either + "(" + subject + word + high + " AND " + low +
           "))";
}

std::string Emitter::inList(const Expression& expression) {
    const Expression& tested = comparedPart(*expression.operands.front());
    std::string sql = "(" + value(tested);
    if (isText(tested.bound.type) && !carriesCollation(tested))
        sql += " COLLATE JET";
    sql += expression.negated ? " NOT IN (" : " IN (";
    for (std::size_t i = 1; i < expression.operands.size(); ++i) {
        if (i > 1)
            sql += ", ";
        sql += value(*expression.operands[i]);
    }
    return sql + "))";
}

std::string Emitter::like(const Expression& expression) {
    const Expression& tested = comparedPart(*expression.operands[0]);
    const Expression& pattern = *expression.operands[1];
    const std::string negation = expression.negated ? "NOT " : "";
    if (pattern.kind == Kind::Literal && pattern.literal.isText()) {
        const std::string wanted = pattern.literal.asText();
        if (!hasWildcards(wanted)) {
            const std::string named = carriesCollation(tested) ? "" : " COLLATE JET";
            return "(" + text(tested) + named + (expression.negated ? " <> " : " = ") + quoteLiteral(wanted) + ")";
        }
        const std::string test = "jet_like(" + text(tested) + ", " + quoteLiteral(wanted) + ")";
        // Without the hint the library would rather join first and test every pair of rows.
        return expression.negated ? "(NOT " + test + ")" : "unlikely(" + test + ")";
    }
    // x Like y & '*' is the common test for a prefix held in another column.
    if (pattern.kind == Kind::Arithmetic && pattern.op == Operator::Concatenate &&
        pattern.operands[1]->kind == Kind::Literal && pattern.operands[1]->literal == Value("*"))
        return "(" + negation + "jet_begins(" + text(tested) + ", " + text(*pattern.operands[0]) + "))";
    return "(" + negation + "jet_like(" + text(tested) + ", " + text(pattern) + "))";
}

std::string textOf(const std::string& value, const StaticType& type) {
    if (isText(type) || type.alwaysNull)
        return value;
    if (isDate(type))
        return "jet_text_date(" + value + ")";
    if (type.type == FieldType::Boolean)
        return "jet_text_boolean(" + value + ")";
    if (isWhole(type))
        return "CAST(" + value + " AS TEXT)";
    return "jet_text(" + value + ")";
}

std::string Emitter::text(const Expression& expression) {
    return textOf(value(expression), expression.bound.type);
}

std::string Emitter::number(const Expression& expression) {
    const std::string plain = value(expression);
    return isText(expression.bound.type) || isUnknown(expression.bound.type) ? "jet_number(" + plain + ")" : plain;
}

std::string Emitter::arithmetic(const Expression& expression) {
    if (expression.op == Operator::Concatenate)
        return concatenation(expression);
    const StaticType& a = expression.operands[0]->bound.type;
    const StaticType& b = expression.operands[1]->bound.type;
    if (a.alwaysNull || b.alwaysNull)
        return "NULL";
    if (expression.op == Operator::Add && isText(a) && isText(b))
        return "(" + value(*expression.operands[0]) + " || " + value(*expression.operands[1]) + ")";
    if (expression.op == Operator::Add && (isUnknown(a) || isUnknown(b)))
        return "jet_add(" + value(*expression.operands[0]) + ", " + value(*expression.operands[1]) + ")";
    const std::string plain = plainArithmetic(expression);
    return expression.bound.type.type == FieldType::Currency ? "round(" + plain + ", 4)" : plain;
}

std::string Emitter::plainArithmetic(const Expression& expression) {
    const bool wholes = isWhole(expression.operands[0]->bound.type) && isWhole(expression.operands[1]->bound.type);
    const std::string a = number(*expression.operands[0]);
    const std::string b = number(*expression.operands[1]);
    switch (expression.op) {
    case Operator::Add:
        return "(" + a + " + " + b + ")";
    case Operator::Subtract:
        return "(" + a + " - " + b + ")";
    case Operator::Multiply:
        return "(" + a + " * " + b + ")";
    case Operator::Divide: // by zero gives null in the library, too
        if (isCertainlyReal(*expression.operands[0]) || isCertainlyReal(*expression.operands[1]))
            return "(" + a + " / " + b + ")";
        return "(CAST(" + a + " AS REAL) / " + b + ")";
    case Operator::IntegerDivide:
        return wholes ? "(" + a + " / " + b + ")" : "jet_intdivide(" + a + ", " + b + ")";
    case Operator::Modulo:
        return wholes ? "(" + a + " % " + b + ")" : "jet_modulo(" + a + ", " + b + ")";
    default:
        return "jet_power(" + a + ", " + b + ")";
    }
}

/// Null counts as empty text, but null & null is null.
std::string Emitter::concatenation(const Expression& expression) {
    std::vector<const Expression*> parts;
    const Expression* at = &expression;
    while (at->kind == Kind::Arithmetic && at->op == Operator::Concatenate) {
        parts.push_back(at->operands[1].get());
        at = at->operands[0].get();
    }
    parts.push_back(at);
    if (expression.bound.type.nullable) {
        // The library's functions take a limited number of arguments.
        constexpr std::size_t most = 50;
        std::string joined;
        std::size_t count = 0;
        for (std::size_t i = parts.size(); i-- > 0;) {
            joined += (joined.empty() ? "" : ", ") + text(*parts[i]);
            if (++count == most && i > 0) {
                joined = "jet_concat(" + joined + ")";
                count = 1;
            }
        }
        return "jet_concat(" + joined + ")";
    }
    std::string sql;
    for (std::size_t i = parts.size(); i-- > 0;) {
        const bool nullable = parts[i]->bound.type.nullable;
        sql += (sql.empty() ? "(" : " || ") + (nullable ? "ifnull(" + text(*parts[i]) + ", '')" : text(*parts[i]));
    }
    return sql + ")";
}

} // namespace jet
