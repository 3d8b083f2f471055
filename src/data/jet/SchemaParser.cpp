#include "data/jet/StatementParser.h"
#include "data/jet/TypeNames.h"

#include "data/types/DatabaseError.h"

namespace jet {

namespace {

constexpr long createTableError = 3290;
constexpr long createIndexError = 3291;
constexpr long fieldError = 3292;
constexpr long alterError = 3293;
constexpr long dropError = 3295;
constexpr int widestText = 255;

/// A literal as the storage library writes it, for a DEFAULT.
std::string defaultText(const Value& value, bool negative) {
    if (value.isText())
        return quoteLiteral(value.asText());
    const std::string number = value.isDate() ? shortestText(value.asDouble())
                               : std::holds_alternative<bool>(value.storage())
                                   ? std::string(value.asBoolean() ? "-1" : "0")
                                   : value.asText();
    return (negative ? "-" : "") + number;
}

} // namespace

Statement StatementParser::create() {
    tokens_.expectWord("CREATE", createTableError);
    if (tokens_.acceptWord("TABLE"))
        return createTable();
    const bool unique = tokens_.acceptWord("UNIQUE");
    tokens_.expectWord("INDEX", unique ? createIndexError : createTableError);
    return createIndex(unique);
}

CreateTable StatementParser::createTable() {
    CreateTable table;
    table.table = tableName(createTableError);
    tokens_.expectSymbol("(", createTableError);
    do {
        if (tokens_.isWord("CONSTRAINT") || (tokens_.isWord("PRIMARY") && tokens_.isWord("KEY", 1)) ||
            (tokens_.isWord("UNIQUE") && tokens_.isSymbol("(", 1)))
            tableConstraint(table);
        else
            table.columns.push_back(columnDefinition(createTableError));
    } while (tokens_.acceptSymbol(","));
    tokens_.expectSymbol(")", createTableError);
    return table;
}

/// [CONSTRAINT name] PRIMARY KEY | UNIQUE (columns)
void StatementParser::tableConstraint(CreateTable& table) {
    IndexDefinition key;
    key.position = tokens_.peek().position;
    if (tokens_.acceptWord("CONSTRAINT"))
        key.name = tokens_.expectName(createTableError);
    key.unique = true;
    key.primary = tokens_.acceptWords({"PRIMARY", "KEY"});
    if (!key.primary)
        tokens_.expectWord("UNIQUE", createTableError);
    key.columns = indexColumns(createTableError);
    table.keys.push_back(std::move(key));
}

CreateIndex StatementParser::createIndex(bool unique) {
    CreateIndex result;
    result.index.unique = unique;
    result.index.position = tokens_.peek().position;
    result.index.name = tokens_.expectName(createIndexError);
    tokens_.expectWord("ON", createIndexError);
    result.table = tableName(createIndexError);
    result.index.columns = indexColumns(createIndexError);
    if (!tokens_.acceptWord("WITH"))
        return result;
    if (tokens_.acceptWord("PRIMARY"))
        result.index.primary = result.index.unique = true;
    else if (!tokens_.acceptWords({"DISALLOW", "NULL"}) && !tokens_.acceptWords({"IGNORE", "NULL"}))
        tokens_.fail(createIndexError);
    return result;
}

std::vector<IndexDefinition::Column> StatementParser::indexColumns(long error) {
    std::vector<IndexDefinition::Column> columns;
    tokens_.expectSymbol("(", error);
    do {
        IndexDefinition::Column column;
        column.position = tokens_.peek().position;
        column.name = tokens_.expectName(error);
        column.descending = tokens_.acceptWord("DESC");
        if (!column.descending)
            tokens_.acceptWord("ASC");
        columns.push_back(std::move(column));
    } while (tokens_.acceptSymbol(","));
    tokens_.expectSymbol(")", error);
    return columns;
}

ColumnDefinition StatementParser::columnDefinition(long error) {
    ColumnDefinition column;
    column.position = tokens_.peek().position;
    column.field.name = tokens_.expectName(error);
    columnType(column, fieldError);
    columnConstraints(column, error);
    return column;
}

void StatementParser::columnType(ColumnDefinition& column, long error) {
    if (tokens_.peek().kind != Token::Kind::Word)
        tokens_.fail(error);
    const auto named = typeNamed(tokens_.peek().text);
    if (!named)
        tokens_.fail(error);
    const bool plainDouble = isNumeric(named->type);
    tokens_.take();
    column.field.type = named->type;
    column.field.counter = named->counter;
    column.field.size = named->type == FieldType::Text ? widestText : 0;
    if (!tokens_.acceptSymbol("("))
        return;
    const Token width = tokens_.take();
    const auto* size = std::get_if<std::int64_t>(&width.value.storage());
    if (width.kind != Token::Kind::Number || !size || *size < 1)
        throw DatabaseError(error, "Syntax error in the width of field '" + column.field.name + "'", width.position);
    if (plainDouble && tokens_.acceptSymbol(",")) // Decimal(18, 4): the places are not kept
        tokens_.take();
    if (named->type == FieldType::Text) {
        if (*size > widestText)
            throw DatabaseError(error, "The field '" + column.field.name + "' is too wide", width.position);
        column.field.size = static_cast<int>(*size);
    }
    tokens_.expectSymbol(")", error);
}

/// NOT NULL, PRIMARY KEY, UNIQUE and DEFAULT, in any order.
void StatementParser::columnConstraints(ColumnDefinition& column, long error) {
    while (true) {
        if (tokens_.acceptWord("CONSTRAINT")) {
            tokens_.expectName(error);
            if (!tokens_.isWord("PRIMARY") && !tokens_.isWord("UNIQUE") && !tokens_.isWord("NOT"))
                tokens_.fail(error);
        } else if (tokens_.acceptWords({"NOT", "NULL"})) {
            column.field.required = true;
        } else if (tokens_.acceptWords({"PRIMARY", "KEY"})) {
            column.primaryKey = true;
        } else if (tokens_.acceptWord("UNIQUE")) {
            column.unique = true;
        } else if (tokens_.acceptWord("DEFAULT")) {
            const bool negative = tokens_.acceptSymbol("-");
            const ExpressionPtr value = primary();
            if (value->kind != Expression::Kind::Literal || (negative && !value->literal.isNumber()))
                throw DatabaseError(error, "A default value is a single text, number or date", value->position);
            if (!value->literal.isNull())
                column.field.defaultValue = defaultText(value->literal, negative);
        } else if (!tokens_.acceptWord("NULL")) {
            return;
        }
    }
}

Statement StatementParser::drop() {
    tokens_.expectWord("DROP", dropError);
    if (tokens_.acceptWord("INDEX")) {
        DropIndex index;
        index.position = tokens_.peek().position;
        index.name = tokens_.expectName(dropError);
        tokens_.expectWord("ON", dropError);
        index.table = tableName(dropError);
        return index;
    }
    tokens_.expectWord("TABLE", dropError);
    return DropTable{tableName(dropError)};
}

AlterTable StatementParser::alter() {
    AlterTable result;
    tokens_.expectWord("ALTER", alterError);
    tokens_.expectWord("TABLE", alterError);
    result.table = tableName(alterError);
    if (tokens_.acceptWord("ADD"))
        result.action = AlterTable::Action::Add;
    else if (tokens_.acceptWord("ALTER"))
        result.action = AlterTable::Action::Alter;
    else if (tokens_.acceptWord("DROP"))
        result.action = AlterTable::Action::Drop;
    else
        tokens_.fail(alterError);
    // A column may itself be called Column.
    const bool keyword = tokens_.isWord("COLUMN") && (tokens_.isName(1));
    if (keyword &&
        !(result.action != AlterTable::Action::Drop && typeNamed(tokens_.peek(1).text) && !tokens_.isName(2)))
        tokens_.take();
    do {
        if (result.action == AlterTable::Action::Drop) {
            ColumnDefinition column;
            column.position = tokens_.peek().position;
            column.field.name = tokens_.expectName(alterError);
            result.columns.push_back(std::move(column));
        } else {
            result.columns.push_back(columnDefinition(alterError));
        }
    } while (tokens_.acceptSymbol(","));
    return result;
}

} // namespace jet
