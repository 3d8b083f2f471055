#include "data/jet/StatementParser.h"

#include "data/types/DatabaseError.h"

#include <algorithm>
#include <array>

namespace jet {

namespace {

ExpressionPtr node(Expression::Kind kind, std::size_t position) {
    return std::make_unique<Expression>(kind, position);
}

struct BinaryWord {
    int level; ///< 0 binds least
    std::string_view word;
    Operator op;
};

/// The arithmetic operators by how tightly they bind; power stands above the sign and is read apart.
constexpr std::array<BinaryWord, 7> arithmeticWords{{
    {0, "&", Operator::Concatenate},
    {1, "+", Operator::Add},
    {1, "-", Operator::Subtract},
    {2, "MOD", Operator::Modulo},
    {3, "\\", Operator::IntegerDivide},
    {4, "*", Operator::Multiply},
    {4, "/", Operator::Divide},
}};
constexpr int tightest = 4;

constexpr std::array<std::pair<std::string_view, Operator>, 6> comparisonWords{{
    {"=", Operator::Equal},
    {"<>", Operator::NotEqual},
    {"<", Operator::Less},
    {"<=", Operator::LessEqual},
    {">", Operator::Greater},
    {">=", Operator::GreaterEqual},
}};

/// From the one that binds least.
constexpr std::array<std::pair<std::string_view, Operator>, 3> logicWords{{
    {"IMP", Operator::Implies},
    {"EQV", Operator::Equivalent},
    {"XOR", Operator::Xor},
}};

constexpr std::array<std::string_view, 10> aggregateNames{"COUNT", "SUM",  "AVG",   "MIN", "MAX",
                                                          "FIRST", "LAST", "STDEV", "VAR", "STDEVP"};

bool isAggregate(std::string_view name) {
    return equalText(name, "VARP") || std::any_of(aggregateNames.begin(), aggregateNames.end(),
                                                  [&](std::string_view other) { return equalText(name, other); });
}

} // namespace

ExpressionPtr StatementParser::wholeExpression() {
    expressionError_ = 3077;
    ExpressionPtr result = expression();
    if (!tokens_.atEnd())
        tokens_.fail(3077);
    return result;
}

ExpressionPtr StatementParser::expression(Follower follower) {
    const Nesting nesting(*this);
    ExpressionPtr result = logic(0);
    // A literal or name right behind an expression lacks an operator: mostly an apostrophe inside a pasted text.
    switch (tokens_.peek().kind) {
    case Token::Kind::Text:
    case Token::Kind::Number:
    case Token::Kind::DateTime:
    case Token::Kind::Bad:
        tokens_.fail(expressionError_);
    default:
        if (follower == Follower::NoName && tokens_.isName())
            tokens_.fail(expressionError_);
    }
    return result;
}

/// Xor, Eqv and Imp, each binding less than the one before it and all less than Or.
ExpressionPtr StatementParser::logic(int level) {
    if (level == static_cast<int>(logicWords.size()))
        return junction();
    const auto& [word, op] = logicWords[static_cast<std::size_t>(level)];
    ExpressionPtr left = logic(level + 1);
    while (tokens_.isWord(word)) {
        const std::size_t position = tokens_.take().position;
        left = binary(Expression::Kind::Logic, op, position, std::move(left), logic(level + 1));
    }
    return left;
}

void StatementParser::checkDepth(const Expression& expression) const {
    if (expression.depth > maxDepth)
        throw DatabaseError(3360, "The expression is too complex", expression.position);
}

ExpressionPtr StatementParser::binary(Expression::Kind kind, Operator op, std::size_t position, ExpressionPtr left,
                                      ExpressionPtr right) {
    ExpressionPtr result = node(kind, position);
    result->op = op;
    result->add(std::move(left));
    result->add(std::move(right));
    checkDepth(*result);
    return result;
}

/// A chain of Or is one node, so that long lists of tests make no deep tree.
ExpressionPtr StatementParser::junction() {
    ExpressionPtr left = conjunction();
    if (!tokens_.isWord("OR"))
        return left;
    ExpressionPtr chain = node(Expression::Kind::Or, left->position);
    chain->add(std::move(left));
    while (tokens_.acceptWord("OR"))
        chain->add(conjunction());
    checkDepth(*chain);
    return chain;
}

ExpressionPtr StatementParser::conjunction() {
    ExpressionPtr left = negation();
    if (!tokens_.isWord("AND"))
        return left;
    ExpressionPtr chain = node(Expression::Kind::And, left->position);
    chain->add(std::move(left));
    while (tokens_.acceptWord("AND"))
        chain->add(negation());
    checkDepth(*chain);
    return chain;
}

ExpressionPtr StatementParser::negation() {
    const std::size_t position = tokens_.peek().position;
    bool any = false;
    bool odd = false;
    while (tokens_.acceptWord("NOT")) {
        any = true;
        odd = !odd;
    }
    ExpressionPtr result = comparison();
    for (int times = any ? (odd ? 1 : 2) : 0; times > 0; --times) {
        ExpressionPtr negated = node(Expression::Kind::Not, position);
        negated->add(std::move(result));
        result = std::move(negated);
    }
    checkDepth(*result);
    return result;
}

ExpressionPtr StatementParser::comparison() {
    ExpressionPtr left = arithmetic(0);
    while (true) {
        const std::size_t position = tokens_.peek().position;
        const auto word = std::find_if(comparisonWords.begin(), comparisonWords.end(),
                                       [&](const auto& entry) { return tokens_.isSymbol(entry.first); });
        if (word != comparisonWords.end()) {
            tokens_.take();
            left = binary(Expression::Kind::Comparison, word->second, position, std::move(left), arithmetic(0));
            continue;
        }
        const bool negatedTest = tokens_.isWord("NOT") &&
                                 (tokens_.isWord("LIKE", 1) || tokens_.isWord("IN", 1) || tokens_.isWord("BETWEEN", 1));
        if (!negatedTest && !tokens_.isWord("LIKE") && !tokens_.isWord("IN") && !tokens_.isWord("BETWEEN") &&
            !tokens_.isWord("IS"))
            return left;
        left = test(std::move(left));
        checkDepth(*left);
    }
}

/// Is [Not] Null, [Not] Like, [Not] Between, [Not] In.
ExpressionPtr StatementParser::test(ExpressionPtr value) {
    const std::size_t position = tokens_.peek().position;
    if (tokens_.acceptWord("IS")) {
        ExpressionPtr result = node(Expression::Kind::IsNull, position);
        result->negated = tokens_.acceptWord("NOT");
        tokens_.expectWord("NULL", expressionError_);
        result->add(std::move(value));
        return result;
    }
    const bool negated = tokens_.acceptWord("NOT");
    if (tokens_.acceptWord("LIKE")) {
        ExpressionPtr result =
            binary(Expression::Kind::Like, Operator::Equal, position, std::move(value), arithmetic(0));
        result->negated = negated;
        return result;
    }
    if (tokens_.acceptWord("BETWEEN")) {
        ExpressionPtr result = node(Expression::Kind::Between, position);
        result->negated = negated;
        result->add(std::move(value));
        result->add(arithmetic(0));
        tokens_.expectWord("AND", expressionError_);
        result->add(arithmetic(0));
        return result;
    }
    tokens_.expectWord("IN", expressionError_);
    return listTest(std::move(value), negated);
}

ExpressionPtr StatementParser::listTest(ExpressionPtr value, bool negated) {
    const std::size_t position = value->position;
    tokens_.expectSymbol("(", expressionError_);
    ExpressionPtr result;
    if (tokens_.isWord("SELECT")) {
        const Nesting nesting(*this);
        result = node(Expression::Kind::InQuery, position);
        result->add(std::move(value));
        result->query = query();
    } else {
        result = node(Expression::Kind::InList, position);
        result->add(std::move(value));
        do {
            result->add(expression());
        } while (tokens_.acceptSymbol(","));
    }
    result->negated = negated;
    tokens_.expectSymbol(")", expressionError_);
    return result;
}

ExpressionPtr StatementParser::arithmetic(int level) {
    ExpressionPtr left = level == tightest ? unary() : arithmetic(level + 1);
    while (true) {
        const auto word = std::find_if(arithmeticWords.begin(), arithmeticWords.end(), [&](const BinaryWord& entry) {
            return entry.level == level && (tokens_.isSymbol(entry.word) || tokens_.isWord(entry.word));
        });
        if (word == arithmeticWords.end())
            return left;
        const std::size_t position = tokens_.take().position;
        left = binary(Expression::Kind::Arithmetic, word->op, position, std::move(left),
                      level == tightest ? unary() : arithmetic(level + 1));
    }
}

ExpressionPtr StatementParser::unary() {
    const std::size_t position = tokens_.peek().position;
    bool negative = false;
    while (tokens_.isSymbol("-") || tokens_.isSymbol("+"))
        negative ^= tokens_.take().text == "-";
    ExpressionPtr operand = power();
    if (!negative)
        return operand;
    ExpressionPtr result = node(Expression::Kind::Negate, position);
    result->add(std::move(operand));
    checkDepth(*result);
    return result;
}

ExpressionPtr StatementParser::power() {
    ExpressionPtr left = primary();
    while (tokens_.isSymbol("^")) {
        const std::size_t position = tokens_.take().position;
        bool negative = false;
        const std::size_t signAt = tokens_.peek().position;
        while (tokens_.isSymbol("-") || tokens_.isSymbol("+"))
            negative ^= tokens_.take().text == "-";
        ExpressionPtr right = primary();
        if (negative) {
            ExpressionPtr negated = node(Expression::Kind::Negate, signAt);
            negated->add(std::move(right));
            right = std::move(negated);
        }
        left = binary(Expression::Kind::Arithmetic, Operator::Power, position, std::move(left), std::move(right));
    }
    return left;
}

ExpressionPtr StatementParser::primary() {
    const Token& token = tokens_.peek();
    switch (token.kind) {
    case Token::Kind::Text:
    case Token::Kind::Number:
    case Token::Kind::DateTime: {
        ExpressionPtr result = node(Expression::Kind::Literal, token.position);
        result->literal = tokens_.take().value;
        return result;
    }
    case Token::Kind::Name:
        return columnName();
    case Token::Kind::Word:
        if (tokens_.isWord("TRUE") || tokens_.isWord("FALSE") || tokens_.isWord("NULL"))
            return literal();
        if (tokens_.isWord("EXISTS"))
            return bracketed();
        if (tokens_.isSymbol("(", 1))
            return call();
        if (!isReserved(token.text))
            return columnName();
        break;
    case Token::Kind::Symbol:
        if (tokens_.isSymbol("("))
            return bracketed();
        break;
    default:
        break;
    }
    tokens_.fail(expressionError_);
}

ExpressionPtr StatementParser::literal() {
    ExpressionPtr result = node(Expression::Kind::Literal, tokens_.peek().position);
    if (tokens_.acceptWord("TRUE"))
        result->literal = Value(true);
    else if (tokens_.acceptWord("FALSE"))
        result->literal = Value(false);
    else
        tokens_.expectWord("NULL", expressionError_);
    return result;
}

/// name, table.name or [path].[table].[name]; the table may also be set off with `!`.
ExpressionPtr StatementParser::columnName() {
    ExpressionPtr result = node(Expression::Kind::Column, tokens_.peek().position);
    result->name = tokens_.take().text;
    for (int parts = 1; parts < 3 && (tokens_.isSymbol(".") || tokens_.isSymbol("!")); ++parts) {
        tokens_.take();
        if (tokens_.peek().kind != Token::Kind::Word && tokens_.peek().kind != Token::Kind::Name)
            tokens_.fail(expressionError_);
        result->qualifier = std::move(result->name);
        result->name = tokens_.take().text;
    }
    return result;
}

/// A function or aggregate with its arguments; an argument may be left empty.
ExpressionPtr StatementParser::call() {
    const Nesting nesting(*this);
    const Token name = tokens_.take();
    std::string plain = name.text;
    if (plain.ends_with('$'))
        plain.pop_back();
    ExpressionPtr result =
        node(isAggregate(plain) ? Expression::Kind::Aggregate : Expression::Kind::Function, name.position);
    result->name = std::move(plain);
    tokens_.expectSymbol("(", expressionError_);
    if (result->kind == Expression::Kind::Aggregate && equalText(result->name, "COUNT") && tokens_.acceptSymbol("*")) {
        tokens_.expectSymbol(")", expressionError_);
        return result;
    }
    if (tokens_.acceptSymbol(")"))
        return result;
    while (true) {
        if (tokens_.isSymbol(",") || tokens_.isSymbol(")"))
            result->add(node(Expression::Kind::Missing, tokens_.peek().position));
        else
            result->add(expression());
        if (tokens_.acceptSymbol(")"))
            break;
        tokens_.expectSymbol(",", expressionError_);
    }
    checkDepth(*result);
    return result;
}

/// An expression or a query in brackets, and Exists (query).
ExpressionPtr StatementParser::bracketed() {
    const Nesting nesting(*this);
    const std::size_t position = tokens_.peek().position;
    const bool exists = tokens_.acceptWord("EXISTS");
    tokens_.expectSymbol("(", expressionError_);
    ExpressionPtr result;
    if (exists || tokens_.isWord("SELECT")) {
        result = node(exists ? Expression::Kind::Exists : Expression::Kind::ScalarQuery, position);
        result->query = query();
    } else {
        result = expression();
    }
    tokens_.expectSymbol(")", expressionError_);
    return result;
}

} // namespace jet
