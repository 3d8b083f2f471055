#include "data/jet/Translate.h"

#include "data/types/DatabaseError.h"

#include <algorithm>

namespace jet {

namespace {

/// The tables of an UPDATE or DELETE, those of its joins included.
void collectTables(const FromItem& item, std::vector<const FromItem*>& tables) {
    if (item.kind == FromItem::Kind::Join) {
        collectTables(*item.left, tables);
        collectTables(*item.right, tables);
    } else {
        tables.push_back(&item);
    }
}

std::vector<const FromItem*> tablesOf(const std::vector<std::unique_ptr<FromItem>>& items) {
    std::vector<const FromItem*> tables;
    for (const auto& item : items)
        collectTables(*item, tables);
    return tables;
}

std::string rowOf(const Source& source) {
    return quoteIdentifier(source.name) + "." + rowidName(source.table->columns);
}

std::string aliased(const Source& source) {
    return qualifiedName(*source.table) + " AS " + quoteIdentifier(source.name);
}

const Field& fieldOf(const Expression& column) {
    return column.bound.source->table->columns[static_cast<std::size_t>(column.bound.column)];
}

const Source& changedSource(const Update::Assignment& assignment) {
    const Expression& target = *assignment.target;
    if (!target.bound.source->table)
        throw DatabaseError(3073, "The rows of a query cannot be changed", target.position);
    checkChangeable(*target.bound.source->table, target.position);
    return *target.bound.source;
}

/// SET of a single table: the library's own statement.
std::string updateOfOne(const Update& update, const Source& source, Emitter& emitter) {
    std::string sql = "UPDATE " + aliased(source) + " SET ";
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        const Field& field = fieldOf(*update.assignments[i].target);
        sql += (i == 0 ? "" : ", ") + quoteIdentifier(field.name) + " = " +
               emitter.assigned(*update.assignments[i].value, field);
    }
    return update.where ? sql + " WHERE " + emitter.condition(*update.where) : sql;
}

/// The joined rows with the row number of every changed table and every new value; rows that an outer join leaves empty
/// change nothing.
std::string joinedValues(const Update& update, const std::vector<const Source*>& changed, Emitter& emitter) {
    std::string sql = "SELECT ";
    for (std::size_t i = 0; i < changed.size(); ++i)
        sql += (i == 0 ? "" : ", ") + rowOf(*changed[i]) + " AS r" + std::to_string(i);
    for (std::size_t i = 0; i < update.assignments.size(); ++i)
        sql += ", " + emitter.assigned(*update.assignments[i].value, fieldOf(*update.assignments[i].target)) + " AS v" +
               std::to_string(i);
    sql += " FROM " + emitter.fromOfChange(update.from, update.where.get(), changed);
    return update.where ? sql + " WHERE " + emitter.condition(*update.where) : sql;
}

/// SET of one table of a join from the joined rows in `rows`.
std::string updateFromRows(const Update& update, const Source& source, std::size_t index, const std::string& rows) {
    std::string sql = "UPDATE " + qualifiedName(*source.table) + " AS \"%changed\" SET ";
    bool first = true;
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        if (update.assignments[i].target->bound.source != &source)
            continue;
        sql += (first ? "" : ", ") + quoteIdentifier(fieldOf(*update.assignments[i].target).name) + " = \"%rows\".v" +
               std::to_string(i);
        first = false;
    }
    return sql + " FROM " + rows + " AS \"%rows\" WHERE \"%changed\"." + rowidName(source.table->columns) +
           " = \"%rows\".r" + std::to_string(index);
}

} // namespace

Program translateUpdate(Update& update, Catalog& catalog) {
    Binder binder(catalog);
    Emitter emitter;
    Scope scope;
    binder.from(update.from, scope);
    std::vector<const Source*> changed;
    for (Update::Assignment& assignment : update.assignments) {
        binder.expression(*assignment.target, scope, Clause::Value);
        binder.expression(*assignment.value, scope, Clause::Value);
        const Source& source = changedSource(assignment);
        if (std::find(changed.begin(), changed.end(), &source) == changed.end())
            changed.push_back(&source);
    }
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (sameExpression(*update.assignments[i].target, *update.assignments[j].target))
                throw DatabaseError(3063, "The field '" + update.assignments[i].target->name + "' is set twice",
                                    update.assignments[i].target->position);
        }
    }
    if (update.where)
        binder.condition(*update.where, scope, Clause::Where);
    Program program;
    if (tablesOf(update.from).size() == 1) {
        program.steps.push_back({Step::Kind::Count, updateOfOne(update, *changed.front(), emitter)});
        return program;
    }
    const std::string values = joinedValues(update, changed, emitter);
    if (changed.size() == 1) {
        program.steps.push_back({Step::Kind::Count, updateFromRows(update, *changed.front(), 0, "(" + values + ")")});
        return program;
    }
    // Several tables at once: the new values are all taken before the first row changes.
    program.steps.push_back({Step::Kind::Execute, "DROP TABLE IF EXISTS temp.\"%update\""});
    program.steps.push_back({Step::Kind::Execute, "CREATE TEMP TABLE \"%update\" AS " + values});
    for (std::size_t i = 0; i < changed.size(); ++i)
        program.steps.push_back({Step::Kind::Count, updateFromRows(update, *changed[i], i, "temp.\"%update\"")});
    program.steps.push_back({Step::Kind::Execute, "DROP TABLE temp.\"%update\""});
    return program;
}

Program translateDelete(Delete& deletion, Catalog& catalog) {
    Binder binder(catalog);
    Emitter emitter;
    Scope scope;
    binder.from(deletion.from, scope);
    if (deletion.where)
        binder.condition(*deletion.where, scope, Clause::Where);
    const std::vector<const FromItem*> tables = tablesOf(deletion.from);
    const auto named = std::find_if(tables.begin(), tables.end(), [&](const FromItem* item) {
        return deletion.target.empty() || equalText(item->source->name, deletion.target);
    });
    if (named == tables.end())
        throw DatabaseError(3061, "Unknown name '" + deletion.target + "'", deletion.position);
    if (deletion.target.empty() && tables.size() > 1)
        throw DatabaseError(3128, "Specify the table from which rows are to be deleted", deletion.position);
    const Source& source = *(*named)->source;
    if (!source.table)
        throw DatabaseError(3073, "The rows of a query cannot be changed", deletion.position);
    checkChangeable(*source.table, deletion.position);
    Program program;
    std::string sql = "DELETE FROM " + aliased(source);
    if (tables.size() > 1)
        sql = "DELETE FROM " + qualifiedName(*source.table) + " WHERE " + rowidName(source.table->columns) +
              " IN (SELECT " + rowOf(source) + " FROM " +
              emitter.fromOfChange(deletion.from, deletion.where.get(), {&source});
    if (deletion.where)
        sql += " WHERE " + emitter.condition(*deletion.where);
    if (tables.size() > 1)
        sql += ")";
    program.steps.push_back({Step::Kind::Count, sql});
    return program;
}

} // namespace jet
