#pragma once

#include "data/jet/Statement.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// Writes bound syntax trees as text for the storage library. Types known from the columns decide between its plain
/// operators and the dialect's own functions, which are called only where the meanings differ.
class Emitter {
public:
    /// A whole query.
    std::string query(const Query& query);
    /// The query of one SELECT with the row number of its first table in front.
    std::string queryWithRowid(const Query& query);
    /// A query whose columns are written into `fields`, in order.
    std::string queryInto(const Query& query, const std::vector<Field>& fields);

    /// A value: booleans are -1 and 0, dates and money reals.
    std::string value(const Expression& expression);
    /// A condition: not zero for true.
    std::string condition(const Expression& expression);
    /// A value converted to the type of the column it is written into. Throws 3163 where a literal is too long, 3464
    /// where the types do not convert at all.
    std::string assigned(const Expression& expression, const Field& field);

    /// The FROM clause of a change, in which the `changed` tables have their row numbers. To be called before the
    /// condition behind WHERE is written.
    std::string fromOfChange(const std::vector<std::unique_ptr<FromItem>>& items, const Expression* where,
                             std::vector<const Source*> changed);

private:
    /// How a SELECT is wanted.
    struct Form {
        bool rowid = false;  ///< the row number as first column
        bool united = false; ///< a member of a UNION
        const std::vector<OrderTerm>* order = nullptr;
        const std::vector<Field>* fields = nullptr; ///< to which its columns are converted
    };

    // QueryEmitter.cpp
    std::string queryText(const Query& query, Form form);
    std::string subquery(const Query& query);
    std::string scalarQuery(const Query& query);
    std::string select(const Select& select, const Form& form);
    std::string topByOrder(const Select& select, const Form& form);
    std::string outputList(const Select& select, const Form& form);
    std::string clauses(const Select& select, const std::string& alsoWhere = {});
    std::string topBound(const Select& select, const Form& form);
    std::string orderBy(const Select& select, const Form& form);
    std::string sortKey(const Expression& key);
    std::string from(const std::vector<std::unique_ptr<FromItem>>& items);
    std::string fromItem(const FromItem& item);
    std::string innerJoin(const FromItem& item);
    void collectInner(const FromItem& item, std::vector<const FromItem*>& tables,
                      std::vector<const Expression*>& conditions);
    std::string bracketedItem(const FromItem& item);
    std::string outerJoin(const FromItem& item);

    // KeyedTables.cpp
    void findKeys(const std::vector<std::unique_ptr<FromItem>>& from, const Expression* where);
    void keysOfJoins(const FromItem& item, const std::vector<const Source*>& certain);
    void keysOfCondition(const Expression& condition, const std::vector<const Source*>& certain, const Source* wanted);
    void addKey(const Expression& expression);
    std::string keyText(const Expression& expression) const;
    std::string tableWithKeys(const Source& source);

    // DistinctJoins.cpp
    void findDistinctJoins(const Select& select);
    std::string distinctValues(const Source& source, int column) const;

    // ExpressionEmitter.cpp
    std::string valueText(const Expression& expression);
    std::string conditionText(const Expression& expression);
    std::string text(const Expression& expression);
    std::string number(const Expression& expression);
    std::string arithmetic(const Expression& expression);
    std::string plainArithmetic(const Expression& expression);
    std::string concatenation(const Expression& expression);
    std::string comparison(const Expression& expression);
    std::string between(const Expression& expression);
    std::string like(const Expression& expression);
    std::string inList(const Expression& expression);

    // LogicEmitter.cpp
    std::string logic(const Expression& expression);
    std::string bits(const Expression& expression);
    std::string bitwise(const Expression& expression);

    // Chains.cpp
    /// A chain of And or Or.
    std::string junction(const Expression& expression, std::string_view word);
    std::string memberOf(const Expression& tested, std::span<const ExpressionPtr> links, bool isOr);
    std::string likeAny(const Expression& tested, std::span<const ExpressionPtr> links, bool isOr);

    // FunctionEmitter.cpp
    std::string function(const Expression& expression);
    std::string choice(const Expression& expression, std::string_view name);
    std::string nativeFunction(const Expression& expression);
    std::string dialectCall(const Expression& expression);
    std::string aggregate(const Expression& expression);

    /// Tables whose row numbers are needed, so that they stand bare among those that are joined.
    std::vector<const Source*> changed_;
    /// Calculated texts by which a table is joined, as columns "%key0", "%key1" … of it.
    std::map<const Source*, std::vector<const Expression*>> keys_;
    /// Tables of which the distinct values of one column are enough, with that column.
    std::map<const Source*, int> distinctColumns_;
};

/// Whether a logical operator works on numbers, bit by bit.
bool isBitwise(const Expression& expression);
/// Many parts in balanced brackets, so that the library's tree stays shallow.
std::string balanced(std::vector<std::string> parts, std::string_view word);
/// A value as the storage library writes it.
std::string literalText(const Value& value);
/// A column of the storage library, qualified.
std::string columnText(const Source& source, int column);
/// The name under which a table's row numbers can be reached: one that no column has.
std::string rowidName(const std::vector<Field>& columns);
/// `value` of static type `type` as text.
std::string textOf(const std::string& value, const StaticType& type);
/// `value` of static type `type`, converted to the type of `field`.
std::string convertedText(const std::string& value, const StaticType& type, const Field& field, std::size_t position);
/// Whether the library compares the expression as text under collation JET without being told.
bool carriesCollation(const Expression& expression);
/// Case does not count in comparisons: UCase(x) compares as x.
const Expression& comparedPart(const Expression& expression);
const Expression& resolved(const Expression& expression);

} // namespace jet
