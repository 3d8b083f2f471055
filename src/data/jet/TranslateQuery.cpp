#include "data/jet/Translate.h"

#include "data/jet/StaticTypes.h"

namespace jet {

namespace {

/// The table whose rows the query shows one by one, if any.
std::optional<Table> updatableTable(const Query& query) {
    const Select& select = query.selects.front();
    const bool plain = query.selects.size() == 1 && !select.distinct && !select.grouped && select.from.size() == 1 &&
                       select.from.front()->kind == FromItem::Kind::Table;
    if (!plain || select.from.front()->source->table->isView)
        return std::nullopt;
    return select.from.front()->source->table;
}

/// A column of a new table, with the type and width that the query shows.
Field fieldOf(const ResultColumn& column) {
    Field field;
    field.name = column.name;
    field.type = column.type.value_or(FieldType::Text);
    if (field.type == FieldType::Text)
        field.size = column.size > 0 ? column.size : 255;
    return field;
}

/// SELECT … INTO: makes the table, then fills it in the order of the query.
Program makeTable(const Query& query, Catalog& catalog) {
    Program program;
    program.changesSchema = true;
    const Table table = newTable(*query.selects.front().into, catalog);
    checkFieldCount(query.outputs().size(), *query.selects.front().into);
    std::vector<Field> fields;
    std::string columns;
    for (const Select::Output& output : query.outputs()) {
        fields.push_back(fieldOf(output.column));
        const auto dot = fields.back().name.find('.'); // "Table.Column" where two tables show the same name
        if (dot != std::string::npos)
            fields.back().name[dot] = '_';
        columns += (columns.empty() ? "" : ", ") + columnDefinition(fields.back());
    }
    program.steps.push_back({Step::Kind::Execute, "CREATE TABLE " + qualifiedName(table) + " (" + columns + ")"});
    program.steps.push_back(
        {Step::Kind::Count, "INSERT INTO " + qualifiedName(table) + " " + Emitter().queryInto(query, fields)});
    return program;
}

} // namespace

Program translateQuery(Query& query, Catalog& catalog) {
    Binder(catalog).query(query);
    if (query.selects.front().into)
        return makeTable(query, catalog);
    Program program;
    program.isQuery = true;
    program.updatable = updatableTable(query);
    for (const Select::Output& output : query.outputs())
        program.columns.push_back(output.column);
    program.query = Emitter().query(query);
    if (program.updatable)
        program.rowidQuery = Emitter().queryWithRowid(query);
    return program;
}

} // namespace jet
