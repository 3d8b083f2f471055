#include "data/jet/Emitter.h"

#include "data/jet/StaticTypes.h"

#include <algorithm>

// The library makes indexes of its own over columns, none over an expression. Where tables are joined by texts that are
// calculated ("Trim(a.Name) = Trim(b.Name)"), such a text therefore becomes a column of its table; without, each row of
// the one table would look at all rows of the other.

namespace jet {

namespace {

using Kind = Expression::Kind;

/// The only table whose columns the expression names; null where there are none or several.
const Source* onlySource(const Expression& expression) {
    const Expression& shown = resolved(expression);
    if (shown.kind == Kind::Column)
        return shown.bound.source;
    if (shown.query)
        return nullptr;
    const Source* only = nullptr;
    for (const ExpressionPtr& operand : shown.operands) {
        if (operand->kind == Kind::Literal || operand->kind == Kind::Missing)
            continue;
        const Source* source = onlySource(*operand);
        if (!source || (only && source != only))
            return nullptr;
        only = source;
    }
    return only;
}

bool isCalculatedText(const Expression& expression) {
    return (expression.kind == Kind::Function || expression.kind == Kind::Arithmetic) && isText(expression.bound.type);
}

using Sources = std::vector<const Source*>;

bool holds(const Sources& sources, const Source* source) {
    return std::find(sources.begin(), sources.end(), source) != sources.end();
}

/// Tables that are not on the side of an outer join whose rows may be missing.
void collectCertain(const FromItem& item, Sources& sources) {
    if (item.kind == FromItem::Kind::Table)
        sources.push_back(item.source.get());
    if (item.kind != FromItem::Kind::Join)
        return;
    if (item.join != FromItem::Join::Right)
        collectCertain(*item.left, sources);
    if (item.join != FromItem::Join::Left)
        collectCertain(*item.right, sources);
}

} // namespace

void Emitter::addKey(const Expression& expression) {
    const Source* source = onlySource(expression);
    std::vector<const Expression*>& keys = keys_[source];
    if (std::find(keys.begin(), keys.end(), &expression) == keys.end())
        keys.push_back(&expression);
}

/// Where the condition compares calculated texts of two tables for equality, one of them becomes a key: that of
/// `wanted` tables, or either where none are named.
void Emitter::keysOfCondition(const Expression& condition, const Sources& certain, const Source* wanted) {
    if (condition.kind == Kind::And) {
        for (const ExpressionPtr& part : condition.operands)
            keysOfCondition(*part, certain, wanted);
        return;
    }
    if (condition.kind != Kind::Comparison || condition.op != Operator::Equal)
        return;
    const Expression& left = comparedPart(*condition.operands[0]);
    const Expression& right = comparedPart(*condition.operands[1]);
    const Source* leftSource = onlySource(left);
    const Source* rightSource = onlySource(right);
    if (!leftSource || !rightSource || leftSource == rightSource || !isText(left.bound.type) ||
        !isText(right.bound.type))
        return;
    if (wanted) {
        for (const Expression* side : {&left, &right}) {
            if (onlySource(*side) == wanted && isCalculatedText(*side) && !holds(changed_, wanted))
                addKey(*side);
        }
        return;
    }
    // A plain column on either side can have an index of the library's own.
    if (!isCalculatedText(left) || !isCalculatedText(right))
        return;
    if (!holds(certain, rightSource) || !holds(certain, leftSource))
        return;
    if (!holds(changed_, rightSource))
        addKey(right);
    else if (!holds(changed_, leftSource))
        addKey(left);
}

void Emitter::keysOfJoins(const FromItem& item, const Sources& certain) {
    if (item.kind != FromItem::Kind::Join)
        return;
    keysOfJoins(*item.left, certain);
    keysOfJoins(*item.right, certain);
    if (item.join == FromItem::Join::Inner)
        return keysOfCondition(*item.on, certain, nullptr);
    const FromItem& optional = item.join == FromItem::Join::Left ? *item.right : *item.left;
    if (optional.kind == FromItem::Kind::Table)
        keysOfCondition(*item.on, certain, optional.source.get());
}

void Emitter::findKeys(const std::vector<std::unique_ptr<FromItem>>& from, const Expression* where) {
    Sources certain;
    for (const auto& item : from)
        collectCertain(*item, certain);
    for (const auto& item : from)
        keysOfJoins(*item, certain);
    if (where && certain.size() > 1)
        keysOfCondition(*where, certain, nullptr);
}

std::string Emitter::fromOfChange(const std::vector<std::unique_ptr<FromItem>>& items, const Expression* where,
                                  Sources changed) {
    changed_ = std::move(changed);
    findKeys(items, where);
    return from(items);
}

std::string Emitter::keyText(const Expression& expression) const {
    const auto keys = keys_.find(onlySource(expression));
    if (keys == keys_.end())
        return {};
    const auto key = std::find(keys->second.begin(), keys->second.end(), &expression);
    if (key == keys->second.end())
        return {};
    return quoteIdentifier(keys->first->name) + ".\"%key" + std::to_string(key - keys->second.begin()) + "\"";
}

std::string Emitter::tableWithKeys(const Source& source) {
    const Table& table = *source.table;
    const std::string name = quoteIdentifier(source.name);
    const std::string plain = qualifiedName(table) + " AS " + name;
    const auto keys = keys_.find(&source);
    if (keys == keys_.end()) {
        const auto distinct = distinctColumns_.find(&source);
        return distinct == distinctColumns_.end() ? plain : distinctValues(source, distinct->second);
    }
    std::string sql = "(SELECT *";
    for (std::size_t i = 0; i < keys->second.size(); ++i)
        sql += ", CAST(" + value(*keys->second[i]) + " AS TEXT) COLLATE JET AS \"%key" + std::to_string(i) + "\"";
    return sql + " FROM " + plain + " LIMIT -1) AS " + name; // the limit keeps it a table of its own
}

} // namespace jet
