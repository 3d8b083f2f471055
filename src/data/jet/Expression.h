#pragma once

#include "data/types/FieldType.h"
#include "data/types/Value.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace jet {

struct Query;
struct Source;
struct ScalarFunction;
struct Expression;
using ExpressionPtr = std::unique_ptr<Expression>;

enum class Operator {
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Add,
    Subtract,
    Multiply,
    Divide,
    IntegerDivide,
    Modulo,
    Power,
    Concatenate,
    Xor,
    Equivalent,
    Implies,
};

/// What is known of an expression's values before any row is read.
struct StaticType {
    std::optional<FieldType> type; ///< empty: only known per value, or always null
    int size = 0;                  ///< most characters of a Text; 0 where unknown
    bool alwaysNull = false;
    bool nullable = true;
};

/// One node of an expression's syntax tree. `operands` are in the order in which they were written.
struct Expression {
    enum class Kind {
        Literal,     ///< `literal`
        Column,      ///< `qualifier` (may be empty) and `name`
        Negate,      ///< one operand
        Not,         ///< one operand
        And,         ///< two or more operands; a chain is one node
        Or,          ///< likewise
        Logic,       ///< `op` from Xor to Implies; two operands
        Arithmetic,  ///< `op` from Add to Concatenate; two operands
        Comparison,  ///< `op` from Equal to GreaterEqual; two operands
        Between,     ///< value, bound, bound in either order; `negated`
        Like,        ///< value, pattern; `negated`
        InList,      ///< value, then the list; `negated`
        InQuery,     ///< value; `query`; `negated`
        Exists,      ///< `query`
        IsNull,      ///< one operand; `negated`
        Function,    ///< `name` and arguments
        Aggregate,   ///< `name` and one argument, none for Count(*)
        ScalarQuery, ///< `query`
        Missing,     ///< an argument left empty: null
    };

    Expression(Kind nodeKind, std::size_t at);
    ~Expression();
    Expression(const Expression&) = delete;
    Expression& operator=(const Expression&) = delete;

    void add(ExpressionPtr operand); ///< appends an operand and keeps `depth`

    Kind kind;
    std::size_t position; ///< byte offset in the statement
    std::vector<ExpressionPtr> operands;
    Value literal;
    std::string qualifier;
    std::string name;
    Operator op = Operator::Equal;
    bool negated = false;
    std::unique_ptr<Query> query;
    int depth = 1; ///< of the tree below, for the limit on nesting

    /// Filled by bind.
    struct Binding {
        StaticType type;
        const Source* source = nullptr;     ///< of a Column: the table or derived table it belongs to
        int column = -1;                    ///< of a Column: position there
        const Expression* target = nullptr; ///< of a Column that names another result column by its alias
        std::size_t targetSize = 0;         ///< nodes below the target, through all names that it uses
        int targetDepth = 0;                ///< of the tree below the target, likewise
        const ScalarFunction* function = nullptr;
    } bound;
};

/// Deepest tree and deepest nesting of brackets that a statement may have; deeper is error 3360.
constexpr int maxDepth = 300;

/// Whether two bound expressions always have the same value: the same shape over the same columns.
bool sameExpression(const Expression& a, const Expression& b);

} // namespace jet
