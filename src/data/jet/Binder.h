#pragma once

#include "data/jet/Catalog.h"
#include "data/jet/Statement.h"

namespace jet {

/// Where an expression stands; decides whether aggregates are allowed.
enum class Clause { Column, Where, On, GroupBy, Having, OrderBy, Value };

/// The names that an expression may use: the tables of its own query, then those of the queries around it.
struct Scope {
    std::vector<const Source*> sources;
    const Scope* outer = nullptr;
    Select* select = nullptr;      ///< whose result columns may be named by alias; may be null
    std::vector<int> columnStates; ///< of those columns: 0 not bound, 1 being bound, 2 bound
};

/// Gives every name of a syntax tree its column and every expression its type, and checks what can be checked without
/// rows. Throws DatabaseError with the position: 3061 unknown name, 3078 unknown table, 3079 ambiguous name, 3085
/// unknown function, 3093, 3095 to 3098 and 3122 (grouping rules), 3103 circular alias, 3306 a subquery with several
/// columns, 3307 UNION of different widths, 3464 text compared with a number or date.
class Binder {
public:
    explicit Binder(Catalog& catalog) : catalog_(catalog) {}

    void query(Query& query, const Scope* outer = nullptr);
    /// Adds the tables of FROM items to the scope.
    void from(std::vector<std::unique_ptr<FromItem>>& items, Scope& scope);
    void expression(Expression& expression, Scope& scope, Clause clause);
    /// An expression that must be usable as a condition.
    void condition(Expression& expression, Scope& scope, Clause clause);
    /// The table of a statement that changes it. Throws 3078.
    Table table(const TableName& name);

private:
    // QueryBinder.cpp
    void select(Select& select, std::vector<OrderTerm>* order, const Scope* outer);
    void fromItem(FromItem& item, Scope& scope);
    void addSource(FromItem& item, Scope& scope);
    void expandStars(Select& select, Scope& scope);
    void bindColumn(std::size_t index, Scope& scope);
    void nameOutputs(Select& select, const Scope& scope);
    void order(std::vector<OrderTerm>& terms, Select& select, Scope& scope);
    void unionOrder(std::vector<OrderTerm>& terms, Query& query);
    void mergeUnionTypes(Query& query);

    // ExpressionBinder.cpp
    void column(Expression& expression, Scope& scope);
    bool columnIn(Expression& expression, Scope& scope);
    void function(Expression& expression);
    void choice(Expression& expression);
    void aggregate(Expression& expression, Scope& scope, Clause clause);
    void subquery(Expression& expression, Scope& scope);

    Catalog& catalog_;
    int derivedTables_ = 0;
    bool inAggregate_ = false;
    int boundAliases_ = 0; ///< depth of the output columns that are being bound because others name them
};

/// Throws 3122 where an expression of a grouped query shows a column that is neither grouped nor aggregated.
void checkGrouped(const Expression& expression, const Select& select);
bool hasAggregate(const Expression& expression);
/// Whether a table of the FROM item, or one joined in it, is `source`.
bool holdsSource(const FromItem& item, const Source* source);

/// Makes a truth of the words Yes and No where no column has that name.
bool becomesTruth(Expression& name);
/// The function that the expression calls. Throws 3085 where there is none, 3075 for a wrong number of arguments.
const ScalarFunction& functionOf(const Expression& expression);

/// Throws 3464 where two types cannot be compared.
void checkComparable(const StaticType& a, const StaticType& b, std::size_t position);

} // namespace jet
