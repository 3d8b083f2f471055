#include "data/jet/Emitter.h"

namespace jet {

std::string Emitter::from(const std::vector<std::unique_ptr<FromItem>>& items) {
    std::string sql;
    for (const auto& item : items)
        sql += (sql.empty() ? "" : ", ") + fromItem(*item);
    return sql;
}

std::string Emitter::fromItem(const FromItem& item) {
    switch (item.kind) {
    case FromItem::Kind::Table:
        return tableWithKeys(*item.source);
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
    return fromItem(left) + " LEFT JOIN " + bracketedItem(right) + " ON " + condition(*item.on);
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
