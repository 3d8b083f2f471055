#include "data/jet/Emitter.h"

#include "data/jet/StaticTypes.h"

#include <algorithm>
#include <utility>

namespace jet {

namespace {

bool uses(const Expression& expression, const Source* source) {
    if (expression.kind == Expression::Kind::Column)
        return expression.bound.source == source;
    // What a query inside names is not looked into.
    return expression.query || std::any_of(expression.operands.begin(), expression.operands.end(),
                                           [&](const ExpressionPtr& operand) { return uses(*operand, source); });
}

/// Whether the expression names columns, and all of them of `source`.
bool usesOnly(const Expression& expression, const Source* source) {
    if (expression.kind == Expression::Kind::Column)
        return expression.bound.source == source;
    if (expression.query)
        return false;
    bool any = false;
    for (const ExpressionPtr& operand : expression.operands) {
        if (operand->kind == Expression::Kind::Literal)
            continue;
        if (!usesOnly(*operand, source))
            return false;
        any = true;
    }
    return any;
}

} // namespace

std::string Emitter::from(const std::vector<std::unique_ptr<FromItem>>& items) {
    std::string sql;
    for (const auto& item : items)
        sql += (sql.empty() ? "" : ", ") + fromItem(*item);
    return sql;
}

std::string Emitter::fromItem(const FromItem& item) {
    switch (item.kind) {
    case FromItem::Kind::Table: {
        const Table& table = *item.source->table;
        return quoteIdentifier(table.schema) + "." + quoteIdentifier(table.name) + " AS " +
               quoteIdentifier(item.source->name);
    }
    case FromItem::Kind::Derived:
        return "(" + subquery(*item.query) + ") AS " + quoteIdentifier(item.source->name);
    case FromItem::Kind::Join:
        break;
    }
    if (item.join == FromItem::Join::Inner)
        return innerJoin(item);
    return outerJoin(item);
}

/// A right join is the left join of the two in the other order.
std::string Emitter::outerJoin(const FromItem& item) {
    const FromItem& left = item.join == FromItem::Join::Left ? *item.left : *item.right;
    const FromItem& right = item.join == FromItem::Join::Left ? *item.right : *item.left;
    std::string keyed = needsRowids_ ? std::string() : keyedJoin(left, right, *item.on);
    if (!keyed.empty())
        return keyed;
    return fromItem(left) + " LEFT JOIN " + bracketedItem(right) + " ON " + condition(*item.on);
}

/// The library makes no index of its own over an expression. Where an outer join compares a text made from columns of
/// its right table, that text becomes a column, over which it can; without, each row of the left would look at all of
/// the right. Empty for any other join.
std::string Emitter::keyedJoin(const FromItem& left, const FromItem& right, const Expression& on) {
    if (right.kind != FromItem::Kind::Table || on.kind != Expression::Kind::Comparison || on.op != Operator::Equal)
        return {};
    const Source* source = right.source.get();
    const Expression* outer = &comparedPart(*on.operands[0]);
    const Expression* key = &comparedPart(*on.operands[1]);
    if (usesOnly(*outer, source))
        std::swap(outer, key);
    if (key->kind != Expression::Kind::Function || !isText(key->bound.type) || !isText(outer->bound.type) ||
        !usesOnly(*key, source) || uses(*outer, source))
        return {};
    const std::string name = quoteIdentifier(source->name);
    return fromItem(left) + " LEFT JOIN (SELECT *, CAST(" + value(*key) + " AS TEXT) COLLATE JET AS \"%key\" FROM " +
           fromItem(right) + " LIMIT -1) AS " + name + " ON (" + value(*outer) + " COLLATE JET = " + name +
           ".\"%key\")";
}

std::string Emitter::bracketedItem(const FromItem& item) {
    return item.kind == FromItem::Kind::Join ? "(" + fromItem(item) + ")" : fromItem(item);
}

/// Inner joins nested in brackets are one join of all their tables, which leaves the order of the joins to the library.
std::string Emitter::innerJoin(const FromItem& item) {
    std::vector<const FromItem*> tables;
    std::vector<const Expression*> conditions;
    collectInner(item, tables, conditions);
    std::string sql = fromItem(*tables.front());
    for (std::size_t i = 1; i < tables.size(); ++i)
        sql += " JOIN " + bracketedItem(*tables[i]);
    for (std::size_t i = 0; i < conditions.size(); ++i)
        sql += (i == 0 ? " ON " : " AND ") + condition(*conditions[i]);
    return sql;
}

void Emitter::collectInner(const FromItem& item, std::vector<const FromItem*>& tables,
                           std::vector<const Expression*>& conditions) {
    if (item.kind != FromItem::Kind::Join || item.join != FromItem::Join::Inner) {
        tables.push_back(&item);
        return;
    }
    collectInner(*item.left, tables, conditions);
    collectInner(*item.right, tables, conditions);
    conditions.push_back(item.on.get());
}

} // namespace jet
