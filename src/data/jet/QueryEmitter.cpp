#include "data/jet/Emitter.h"

#include "data/jet/Binder.h"
#include "data/jet/StaticTypes.h"

#include <algorithm>
#include <utility>

namespace jet {

namespace {

bool needsCollation(const Expression& expression) {
    return (isText(expression.bound.type) || isUnknown(expression.bound.type)) && !carriesCollation(expression);
}

} // namespace

std::string rowidName(const std::vector<Field>& columns) {
    for (const char* name : {"rowid", "_rowid_", "oid"}) {
        const bool taken = std::any_of(columns.begin(), columns.end(),
                                       [&](const Field& field) { return equalText(field.name, name); });
        if (!taken)
            return name;
    }
    return "rowid";
}

std::string Emitter::query(const Query& query) {
    Form form;
    form.order = &query.order;
    return queryText(query, form);
}

std::string Emitter::queryWithRowid(const Query& query) {
    Form form;
    form.order = &query.order;
    form.rowid = true;
    return queryText(query, form);
}

/// A conversion can make different values the same, so that rows must be chosen before it.
std::string Emitter::queryInto(const Query& query, const std::vector<Field>& fields) {
    const Select& first = query.selects.front();
    Form form;
    form.order = &query.order;
    const bool direct = query.selects.size() == 1 && !first.distinct && !first.top;
    if (direct) {
        form.fields = &fields;
        return queryText(query, form);
    }
    std::string list;
    bool converts = false;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Expression& shown = *first.outputs[i].expression;
        StaticType type = shown.bound.type;
        type.type = first.outputs[i].column.type;
        type.size = first.outputs[i].column.size;
        const std::string plain = quoteIdentifier(first.outputs[i].column.name);
        const std::string converted = convertedText(plain, type, fields[i], shown.position);
        converts = converts || converted != plain;
        list += (i == 0 ? "" : ", ") + converted;
    }
    const std::string inner = queryText(query, form);
    return converts ? "SELECT " + list + " FROM (" + inner + ")" : inner;
}

/// The order of a subquery's rows counts only where TOP chooses among them.
std::string Emitter::subquery(const Query& query) {
    Form form;
    if (query.selects.size() == 1 && query.selects.front().top)
        form.order = &query.order;
    return queryText(query, form);
}

/// A query in the place of a value; the library would take the first of several rows without a word.
std::string Emitter::scalarQuery(const Query& query) {
    const Select& select = query.selects.front();
    const bool oneRow = query.selects.size() == 1 && select.grouped && select.groupBy.empty();
    if (oneRow)
        return "(" + subquery(query) + ")";
    return "(SELECT jet_only(" + quoteIdentifier(query.outputs().front().column.name) + ") FROM (" + subquery(query) +
           "))";
}

std::string Emitter::queryText(const Query& query, Form form) {
    if (query.selects.size() == 1)
        return select(query.selects.front(), form);
    std::string sql;
    Form member;
    member.united = true;
    for (std::size_t i = 0; i < query.selects.size(); ++i) {
        if (i > 0)
            sql += query.unionAll[i - 1] ? " UNION ALL " : " UNION ";
        const std::string part = select(query.selects[i], member);
        sql += query.selects[i].top ? "SELECT * FROM (" + part + ")" : part;
    }
    for (std::size_t i = 0; form.order && i < form.order->size(); ++i) {
        const OrderTerm& term = (*form.order)[i];
        sql += (i == 0 ? " ORDER BY " : ", ") + std::to_string(term.column + 1);
        if (!query.outputs()[static_cast<std::size_t>(term.column)].column.type ||
            jet::isText(query.outputs()[static_cast<std::size_t>(term.column)].expression->bound.type))
            sql += " COLLATE JET";
        sql += term.descending ? " DESC" : "";
    }
    return sql;
}

std::string Emitter::select(const Select& select, const Form& form) {
    const bool ordered = form.order && !form.order->empty();
    if (select.top && (ordered || select.topPercent))
        return topByOrder(select, form);
    std::string sql = select.distinct ? "SELECT DISTINCT " : "SELECT ";
    sql += outputList(select, form) + clauses(select);
    if (ordered)
        sql += " ORDER BY " + orderBy(select, form);
    if (select.top)
        sql += " LIMIT " + std::to_string(*select.top);
    return sql;
}

std::string Emitter::outputList(const Select& select, const Form& form) {
    std::string list;
    if (form.rowid) {
        const Source& source = *select.from.front()->source;
        list = quoteIdentifier(source.name) + "." + rowidName(source.table->columns) + ", ";
    }
    for (std::size_t i = 0; i < select.outputs.size(); ++i) {
        const Select::Output& output = select.outputs[i];
        std::string shown = form.fields ? assigned(*output.expression, (*form.fields)[i]) : value(*output.expression);
        if ((select.distinct || form.united) && needsCollation(*output.expression))
            shown += " COLLATE JET";
        list += (i == 0 ? "" : ", ") + shown + " AS " + quoteIdentifier(output.column.name);
    }
    return list;
}

std::string Emitter::clauses(const Select& select, const std::string& alsoWhere) {
    std::string sql;
    if (!select.from.empty()) {
        findKeys(select.from, select.where.get());
        findDistinctJoins(select);
        sql += " FROM " + from(select.from);
    }
    if (select.where)
        sql += " WHERE " + condition(*select.where);
    if (!alsoWhere.empty())
        sql += (select.where ? " AND " : " WHERE ") + alsoWhere;
    for (std::size_t i = 0; i < select.groupBy.size(); ++i) {
        const Expression& key = *select.groupBy[i];
        sql += (i == 0 ? " GROUP BY " : ", ") + sortKey(key);
    }
    // Where a condition on groups stands alone, all rows are one group.
    if (select.having && select.groupBy.empty() && !hasAggregate(*select.having) &&
        std::none_of(select.outputs.begin(), select.outputs.end(),
                     [](const Select::Output& output) { return hasAggregate(*output.expression); }))
        sql += " GROUP BY NULL";
    if (select.having)
        sql += " HAVING " + condition(*select.having);
    return sql;
}

/// A key to group or sort by. The library would take a bare number for the position of a column.
std::string Emitter::sortKey(const Expression& key) {
    if (resolved(key).kind == Expression::Kind::Literal)
        return "NULL";
    return needsCollation(key) ? value(key) + " COLLATE JET" : value(key);
}

std::string Emitter::orderBy(const Select& select, const Form& form) {
    std::string sql;
    for (const OrderTerm& term : *form.order) {
        const Expression& key =
            term.column >= 0 ? *select.outputs[static_cast<std::size_t>(term.column)].expression : *term.expression;
        sql += sql.empty() ? "" : ", ";
        if (select.distinct)
            sql += std::to_string(term.column + 1) + (needsCollation(key) ? " COLLATE JET" : "");
        else
            sql += sortKey(key);
        sql += term.descending ? " DESC" : "";
    }
    return sql;
}

/// A condition that keeps all rows TOP n by order could show and few others: the first key is not behind that of the
/// n-th row. Ranking then sorts few rows where the table is long. Empty where it would not pay or not hold.
std::string Emitter::topBound(const Select& select, const Form& form) {
    const bool oneTable = select.from.size() == 1 && select.from.front()->kind == FromItem::Kind::Table;
    if (!oneTable || !form.order || form.order->empty() || select.distinct || select.grouped || select.topPercent)
        return {};
    const OrderTerm& first = form.order->front();
    const Expression& key =
        first.column >= 0 ? *select.outputs[static_cast<std::size_t>(first.column)].expression : *first.expression;
    const std::string sorted = sortKey(key);
    const std::string nth = "(SELECT " + sorted + clauses(select) + " ORDER BY " + sorted +
                            (first.descending ? " DESC" : "") + " LIMIT 1 OFFSET " + std::to_string(*select.top - 1) +
                            ")";
    return "ifnull(" + sorted + (first.descending ? " >= " : " <= ") + nth + ", 1)";
}

/// TOP n keeps every row whose key equals that of the n-th, so rows are ranked before they are cut off.
std::string Emitter::topByOrder(const Select& select, const Form& form) {
    const auto inner = [](std::size_t i) { return "\"%" + std::to_string(i) + "\""; };
    std::string rows = select.distinct ? "SELECT DISTINCT " : "SELECT ";
    std::string shown;
    if (form.rowid) {
        const Source& source = *select.from.front()->source;
        rows += quoteIdentifier(source.name) + "." + rowidName(source.table->columns) + " AS \"%row\", ";
        shown = "\"%row\", ";
    }
    for (std::size_t i = 0; i < select.outputs.size(); ++i) {
        const Expression& expression = *select.outputs[i].expression;
        rows += (i == 0 ? "" : ", ") + value(expression);
        rows += (select.distinct || form.united) && needsCollation(expression) ? " COLLATE JET" : "";
        rows += " AS " + inner(i);
        shown += (i == 0 ? "" : ", ") + inner(i) + " AS " + quoteIdentifier(select.outputs[i].column.name);
    }
    std::string keys;
    std::size_t extra = select.outputs.size();
    for (std::size_t i = 0; form.order && i < form.order->size(); ++i) {
        const OrderTerm& term = (*form.order)[i];
        std::size_t at = static_cast<std::size_t>(term.column);
        if (term.column < 0) {
            at = extra++;
            rows += ", " + value(*term.expression) + " AS " + inner(at);
        }
        const Expression& key = term.column < 0 ? *term.expression : *select.outputs[at].expression;
        const bool textual = isText(key.bound.type) || isUnknown(key.bound.type);
        keys += (i == 0 ? "" : ", ") + inner(at) + (textual ? " COLLATE JET" : "") + (term.descending ? " DESC" : "");
    }
    rows += clauses(select, topBound(select, form));
    const std::string over = keys.empty() ? "row_number() OVER ()" : "rank() OVER (ORDER BY " + keys + ")";
    const std::string limit = select.topPercent ? "(\"%count\" * " + std::to_string(*select.top) + " + 99) / 100"
                                                : std::to_string(*select.top);
    return "SELECT " + shown + " FROM (SELECT *, " + over + " AS \"%rank\"" +
           (select.topPercent ? ", count(*) OVER () AS \"%count\"" : "") + " FROM (" + rows +
           ")) WHERE \"%rank\" <= " + limit + " ORDER BY \"%rank\"";
}

} // namespace jet
