#include "data/jet/Binder.h"

#include "data/jet/StaticTypes.h"
#include "data/types/DatabaseError.h"

#include <algorithm>
#include <utility>

namespace jet {

namespace {

/// Names that only the storage library knows are no tables of the dialect.
bool isLibraryName(std::string_view name) {
    return upperText(name.substr(0, 7)) == "SQLITE_";
}

std::string written(const TableName& name) {
    return name.path.empty() ? name.name : name.path + "." + name.name;
}

std::vector<ResultColumn> columnsOf(const Table& table) {
    std::vector<ResultColumn> columns;
    for (const Field& field : table.columns)
        columns.push_back(ResultColumn{field.name, field.type, field.size, field.name});
    return columns;
}

ExpressionPtr columnOf(const Source& source, std::size_t index, std::size_t position) {
    auto column = std::make_unique<Expression>(Expression::Kind::Column, position);
    column->qualifier = source.name;
    column->name = source.columns[index].name;
    column->bound.source = &source;
    column->bound.column = static_cast<int>(index);
    column->bound.type.type = source.columns[index].type;
    column->bound.type.size = source.columns[index].size;
    return column;
}

const Expression& resolved(const Expression& expression) {
    const Expression* at = &expression;
    while (at->kind == Expression::Kind::Column && at->bound.target)
        at = at->bound.target;
    return *at;
}

/// The position of a result column named by number or by name, or -1.
int outputNamed(const Expression& expression, const std::vector<Select::Output>& outputs) {
    if (expression.kind != Expression::Kind::Column)
        return -1;
    for (std::size_t i = 0; i < outputs.size(); ++i) {
        if (equalText(outputs[i].column.name, expression.name))
            return static_cast<int>(i);
    }
    return -1;
}

/// ORDER BY 2: a number that stands alone counts the result columns. Nothing where the term is no number.
std::optional<int> outputNumbered(const Expression& expression, std::size_t outputs) {
    const auto* number = std::get_if<std::int64_t>(&expression.literal.storage());
    if (expression.kind != Expression::Kind::Literal || !number)
        return std::nullopt;
    if (*number < 1 || *number > static_cast<std::int64_t>(outputs))
        throw DatabaseError(3138, "ORDER BY counts a column that is not shown", expression.position);
    return static_cast<int>(*number) - 1;
}

} // namespace

bool holdsSource(const FromItem& item, const Source* source) {
    if (item.kind == FromItem::Kind::Join)
        return holdsSource(*item.left, source) || holdsSource(*item.right, source);
    return item.source.get() == source;
}

Table Binder::table(const TableName& name) {
    std::optional<Table> found;
    if (!isLibraryName(name.name))
        found = name.path.empty() ? catalog_.findTable(name.name) : catalog_.findTableIn(name.path, name.name);
    if (!found)
        throw DatabaseError(3078, "Could not find the table or query '" + written(name) + "'", name.position);
    return *found;
}

void Binder::from(std::vector<std::unique_ptr<FromItem>>& items, Scope& scope) {
    for (const auto& item : items)
        fromItem(*item, scope);
}

/// The condition of a join sees the tables of that join alone.
void Binder::fromItem(FromItem& item, Scope& scope) {
    if (item.kind != FromItem::Kind::Join)
        return addSource(item, scope);
    const std::size_t before = scope.sources.size();
    fromItem(*item.left, scope);
    fromItem(*item.right, scope);
    Scope joined;
    joined.sources.assign(scope.sources.begin() + static_cast<std::ptrdiff_t>(before), scope.sources.end());
    joined.outer = scope.outer;
    condition(*item.on, joined, Clause::On);
}

void Binder::addSource(FromItem& item, Scope& scope) {
    auto source = std::make_unique<Source>();
    source->name = item.alias;
    if (item.kind == FromItem::Kind::Table) {
        source->table = table(item.table);
        source->columns = columnsOf(*source->table);
        if (source->name.empty())
            source->name = item.table.name;
    } else {
        if (item.query->selects.front().into)
            throw DatabaseError(3129, "A query inside FROM makes no table", item.position);
        query(*item.query, scope.outer);
        for (const Select::Output& output : item.query->outputs())
            source->columns.push_back(output.column);
        if (source->name.empty())
            source->name = "%derived" + std::to_string(++derivedTables_); // a name that no statement can use bare
    }
    for (const Source* other : scope.sources) {
        if (equalText(other->name, source->name))
            throw DatabaseError(3079, "The name '" + source->name + "' stands for two tables of the FROM clause",
                                item.position);
    }
    scope.sources.push_back(source.get());
    item.source = std::move(source);
}

void Binder::query(Query& query, const Scope* outer) {
    const bool wasInAggregate = std::exchange(inAggregate_, false);
    if (query.selects.size() == 1) {
        select(query.selects.front(), &query.order, outer);
    } else {
        for (Select& member : query.selects) {
            if (member.into && &member != &query.selects.front())
                throw DatabaseError(3141, "INTO can stand in the first query only", member.into->position);
            select(member, nullptr, outer);
            if (member.outputs.size() != query.outputs().size())
                throw DatabaseError(3307, "The queries that UNION joins show different numbers of columns",
                                    member.position);
        }
        mergeUnionTypes(query);
        unionOrder(query.order, query);
    }
    inAggregate_ = wasInAggregate;
}

void Binder::select(Select& select, std::vector<OrderTerm>* orderTerms, const Scope* outer) {
    Scope scope;
    scope.outer = outer;
    from(select.from, scope);
    if (select.where)
        condition(*select.where, scope, Clause::Where);
    for (const ExpressionPtr& key : select.groupBy)
        expression(*key, scope, Clause::GroupBy);
    scope.select = &select; // from here on result columns can be named by their alias
    scope.columnStates.assign(select.columns.size(), 0);
    expandStars(select, scope);
    if (select.having)
        condition(*select.having, scope, Clause::Having);
    nameOutputs(select, scope);
    select.grouped = !select.groupBy.empty() || select.having ||
                     std::any_of(select.outputs.begin(), select.outputs.end(),
                                 [](const Select::Output& output) { return hasAggregate(*output.expression); });
    if (orderTerms)
        order(*orderTerms, select, scope);
    if (!select.grouped)
        return;
    for (const Select::Output& output : select.outputs)
        checkGrouped(*output.expression, select);
    if (select.having)
        checkGrouped(*select.having, select);
    for (std::size_t i = 0; orderTerms && i < orderTerms->size(); ++i) {
        if ((*orderTerms)[i].column < 0)
            checkGrouped(*(*orderTerms)[i].expression, select);
    }
}

void Binder::bindColumn(std::size_t index, Scope& scope) {
    int& state = scope.columnStates[index];
    if (state == 2)
        return;
    state = 1;
    expression(*scope.select->columns[index].expression, scope, Clause::Column);
    scope.columnStates[index] = 2;
}

/// Every column of the result in order, the stars written out.
void Binder::expandStars(Select& select, Scope& scope) {
    for (std::size_t i = 0; i < select.columns.size(); ++i) {
        SelectColumn& column = select.columns[i];
        if (column.expression) {
            bindColumn(i, scope);
            Select::Output output;
            output.expression = column.expression.get();
            output.column.name = column.alias;
            select.outputs.push_back(std::move(output));
            continue;
        }
        bool any = false;
        for (const Source* source : scope.sources) {
            if (!column.qualifier.empty() && !equalText(source->name, column.qualifier))
                continue;
            any = true;
            for (std::size_t at = 0; at < source->columns.size(); ++at) {
                Select::Output output;
                output.expanded = columnOf(*source, at, column.position);
                output.expression = output.expanded.get();
                select.outputs.push_back(std::move(output));
            }
        }
        if (!any)
            throw DatabaseError(column.qualifier.empty() ? 3141 : 3061,
                                column.qualifier.empty() ? "There is no table whose columns could be shown"
                                                         : "Unknown name '" + column.qualifier + "'",
                                column.position);
    }
}

/// Result columns are named by alias, else by column; "Table.Column" where two tables show the same name, and
/// "Expr1003" where nothing gives a name (the number counts the columns from 1000).
void Binder::nameOutputs(Select& select, const Scope& scope) {
    std::vector<bool> plain(select.outputs.size(), false);
    for (std::size_t i = 0; i < select.outputs.size(); ++i) {
        Select::Output& output = select.outputs[i];
        output.column.type = output.expression->bound.type.type;
        output.column.size = output.expression->bound.type.size;
        const Expression& shown = resolved(*output.expression);
        const bool isColumn = shown.kind == Expression::Kind::Column;
        if (isColumn && scope.sources.size() == 1 && shown.bound.source == scope.sources.front())
            output.column.sourceColumn =
                shown.bound.source->columns[static_cast<std::size_t>(shown.bound.column)].sourceColumn;
        if (!output.column.name.empty())
            continue;
        plain[i] = isColumn && !output.expression->bound.target;
        if (plain[i])
            output.column.name = shown.bound.source->columns[static_cast<std::size_t>(shown.bound.column)].name;
        else
            output.column.name = "Expr" + std::to_string(1000 + i);
    }
    const auto shares = [&](std::size_t i) {
        for (std::size_t j = 0; j < select.outputs.size(); ++j) {
            if (j != i && equalText(select.outputs[j].column.name, select.outputs[i].column.name))
                return true;
        }
        return false;
    };
    std::vector<bool> qualified(select.outputs.size(), false);
    for (std::size_t i = 0; i < select.outputs.size(); ++i)
        qualified[i] = plain[i] && shares(i);
    for (std::size_t i = 0; i < select.outputs.size(); ++i) {
        if (qualified[i])
            select.outputs[i].column.name =
                select.outputs[i].expression->bound.source->name + "." + select.outputs[i].column.name;
    }
    for (std::size_t i = select.outputs.size(); i-- > 0;) {
        if (!shares(i))
            continue;
        if (!plain[i])
            throw DatabaseError(3062, "Two result columns are called '" + select.outputs[i].column.name + "'",
                                select.outputs[i].expression->position);
        select.outputs[i].column.name = "Expr" + std::to_string(1000 + i);
    }
}

void Binder::order(std::vector<OrderTerm>& terms, Select& select, Scope& scope) {
    for (OrderTerm& term : terms) {
        if (const auto number = outputNumbered(*term.expression, select.outputs.size())) {
            term.column = *number;
            continue;
        }
        // Where rows are made one, only what is shown can be sorted, under the name that it is shown by.
        if (select.distinct && term.expression->qualifier.empty())
            term.column = outputNamed(*term.expression, select.outputs);
        if (term.column >= 0)
            continue;
        expression(*term.expression, scope, Clause::OrderBy);
        for (std::size_t i = 0; i < select.outputs.size() && term.column < 0; ++i) {
            if (sameExpression(*term.expression, *select.outputs[i].expression))
                term.column = static_cast<int>(i);
        }
        if (select.distinct && term.column < 0)
            throw DatabaseError(3093, "ORDER BY names something that the DISTINCT query does not show",
                                term.expression->position);
    }
}

void Binder::unionOrder(std::vector<OrderTerm>& terms, Query& query) {
    for (OrderTerm& term : terms) {
        const auto number = outputNumbered(*term.expression, query.outputs().size());
        term.column = number ? *number : outputNamed(*term.expression, query.outputs());
        if (term.column < 0)
            throw DatabaseError(3061, "ORDER BY of a UNION must name a column of its first query",
                                term.expression->position);
    }
}

void Binder::mergeUnionTypes(Query& query) {
    for (std::size_t column = 0; column < query.outputs().size(); ++column) {
        StaticType type = query.outputs()[column].expression->bound.type;
        for (const Select& member : query.selects)
            type = commonType(type, member.outputs[column].expression->bound.type);
        ResultColumn& shown = query.selects.front().outputs[column].column;
        shown.type = type.type;
        shown.size = type.size;
        shown.sourceColumn.clear();
    }
}

} // namespace jet
