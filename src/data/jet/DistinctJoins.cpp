#include "data/jet/Emitter.h"

#include <algorithm>

// Rows that a table lacks are asked for by an outer join of which only the missing side is tested: "SELECT DISTINCT
// a.Area FROM a LEFT JOIN b ON a.Area = b.Area WHERE b.Area IS NULL". The library makes a row of every pair first,
// which are millions where b has every area thousands of times. The rows of b count once in such a query, so that each
// of its values is enough.

namespace jet {

namespace {

using Kind = Expression::Kind;

bool isColumn(const Expression& expression, const Source* source, int column) {
    const Expression& shown = resolved(expression);
    return shown.kind == Kind::Column && shown.bound.source == source && shown.bound.column == column;
}

/// Whether the expression does not look at the table, or only asks whether the column is null.
bool onlyTests(const Expression& expression, const Source* source, int column) {
    const Expression& shown = resolved(expression);
    if (shown.query)
        return false;
    if (shown.kind == Kind::Column)
        return shown.bound.source != source;
    if (shown.kind == Kind::IsNull && isColumn(*shown.operands[0], source, column))
        return true;
    return std::all_of(shown.operands.begin(), shown.operands.end(),
                       [&](const ExpressionPtr& operand) { return onlyTests(*operand, source, column); });
}

/// The column of the table in "a = b" whose other side does not look at the table; -1 where there is none.
int comparedColumn(const Expression& on, const Source* source) {
    if (on.kind != Kind::Comparison || on.op != Operator::Equal)
        return -1;
    for (const std::size_t side : {std::size_t{0}, std::size_t{1}}) {
        const Expression& column = resolved(*on.operands[side]);
        if (column.kind == Kind::Column && column.bound.source == source &&
            onlyTests(*on.operands[1 - side], source, -1))
            return column.bound.column;
    }
    return -1;
}

} // namespace

void Emitter::findDistinctJoins(const Select& select) {
    if (!select.distinct || select.grouped || select.from.size() != 1)
        return;
    const FromItem& join = *select.from.front();
    if (join.kind != FromItem::Kind::Join || join.join == FromItem::Join::Inner)
        return;
    const FromItem& optional = join.join == FromItem::Join::Left ? *join.right : *join.left;
    const FromItem& certain = join.join == FromItem::Join::Left ? *join.left : *join.right;
    if (optional.kind != FromItem::Kind::Table || certain.kind != FromItem::Kind::Table)
        return;
    const Source* source = optional.source.get();
    const int column = comparedColumn(*join.on, source);
    const bool tested = column >= 0 && (!select.where || onlyTests(*select.where, source, column)) &&
                        std::all_of(select.outputs.begin(), select.outputs.end(), [&](const Select::Output& output) {
                            return onlyTests(*output.expression, source, column);
                        });
    if (tested)
        distinctColumns_[source] = column;
}

std::string Emitter::distinctValues(const Source& source, int column) const {
    const std::string name = quoteIdentifier(source.name);
    return "(SELECT DISTINCT " + columnText(source, column) + " FROM " + qualifiedName(*source.table) + " AS " + name +
           " LIMIT -1) AS " + name;
}

} // namespace jet
