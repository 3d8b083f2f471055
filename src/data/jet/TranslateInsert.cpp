#include "data/jet/Translate.h"

#include "data/types/DatabaseError.h"

namespace jet {

namespace {

/// The columns that an INSERT fills, in the order of its values.
std::vector<Field> listedFields(const Insert& insert, const Table& table) {
    std::vector<Field> fields;
    for (const Insert::Column& column : insert.columns) {
        fields.push_back(table.columns[columnIndex(table, column.name, column.position, 3127)]);
        for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
            if (fields[i].name == fields.back().name)
                throw DatabaseError(3063, "The field '" + column.name + "' is listed twice", column.position);
        }
    }
    return fields;
}

/// Without a column list the columns of the query go to the fields of the same name.
std::vector<Field> fieldsByName(const Query& query, const Table& table) {
    std::vector<Field> fields;
    for (const Select::Output& output : query.outputs()) {
        const std::string& name = output.column.name;
        const std::size_t dot = name.rfind('.');
        const std::string plain = dot == std::string::npos ? name : name.substr(dot + 1);
        fields.push_back(table.columns[columnIndex(table, plain, output.expression->position, 3127)]);
        for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
            if (fields[i].name == fields.back().name)
                throw DatabaseError(3063, "Two columns go to the field '" + plain + "'", output.expression->position);
        }
    }
    return fields;
}

void checkCount(std::size_t given, std::size_t wanted, std::size_t position) {
    if (given != wanted)
        throw DatabaseError(3346, "The number of values and of fields is not the same", position);
}

std::string fieldList(const std::vector<Field>& fields) {
    std::string list;
    for (const Field& field : fields)
        list += (list.empty() ? "" : ", ") + quoteIdentifier(field.name);
    return list;
}

} // namespace

Program translateInsert(Insert& insert, Catalog& catalog) {
    Binder binder(catalog);
    Emitter emitter;
    const Table table = binder.table(insert.table);
    checkChangeable(table, insert.table.position);
    std::vector<Field> fields = listedFields(insert, table);
    std::string rows;
    if (insert.query) {
        if (insert.query->selects.front().into)
            throw DatabaseError(3134, "The query of an INSERT makes no table", insert.query->selects.front().position);
        binder.query(*insert.query);
        if (fields.empty())
            fields = fieldsByName(*insert.query, table);
        checkCount(insert.query->outputs().size(), fields.size(), insert.query->selects.front().position);
        rows = emitter.queryInto(*insert.query, fields);
    } else {
        if (fields.empty())
            fields = table.columns;
        checkCount(insert.values.size(), fields.size(), insert.values.front()->position);
        Scope scope;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            binder.expression(*insert.values[i], scope, Clause::Value);
            rows += (i == 0 ? "VALUES (" : ", ") + emitter.assigned(*insert.values[i], fields[i]);
        }
        rows += ")";
    }
    Program program;
    program.steps.push_back(
        {Step::Kind::Count, "INSERT INTO " + qualifiedName(table) + " (" + fieldList(fields) + ") " + rows});
    return program;
}

} // namespace jet
