#include "data/jet/Translate.h"

#include "data/jet/Lexer.h"
#include "data/jet/Parser.h"
#include "data/jet/TokenStream.h"
#include "data/types/DatabaseError.h"

#include <type_traits>

namespace jet {

namespace {

/// The statement for a bare table name, as openRecordset takes it; the statement itself where it is none.
std::string withoutShorthand(std::string_view statement, Catalog& catalog) {
    const std::vector<Token> words = lex(statement);
    if (words.size() == 2 && words.front().kind == Token::Kind::Name)
        return "SELECT * FROM [" + words.front().text + "]";
    const bool startsStatement = words.front().kind != Token::Kind::Word || isReserved(words.front().text);
    const std::size_t end = statement.find_last_not_of(" \t\r\n;");
    const std::size_t begin = statement.find_first_not_of(" \t\r\n");
    if (startsStatement || end == std::string_view::npos)
        return std::string(statement);
    const std::string_view name = statement.substr(begin, end + 1 - begin);
    const bool oneWord = words.size() == 2 || (words.size() == 3 && words[1].text == ";");
    if (name.find(']') == std::string_view::npos && (oneWord || catalog.findTable(name)))
        return "SELECT * FROM [" + std::string(name) + "]";
    return std::string(statement);
}

} // namespace

Program translate(std::string_view text, Catalog& catalog) {
    Statement statement = parse(withoutShorthand(text, catalog));
    return std::visit(
        [&](auto& tree) -> Program {
            using T = std::decay_t<decltype(tree)>;
            if constexpr (std::is_same_v<T, Query>)
                return translateQuery(tree, catalog);
            else if constexpr (std::is_same_v<T, Insert>)
                return translateInsert(tree, catalog);
            else if constexpr (std::is_same_v<T, Update>)
                return translateUpdate(tree, catalog);
            else if constexpr (std::is_same_v<T, Delete>)
                return translateDelete(tree, catalog);
            else if constexpr (std::is_same_v<T, CreateTable>)
                return translateCreateTable(tree, catalog);
            else if constexpr (std::is_same_v<T, CreateIndex>)
                return translateCreateIndex(tree, catalog);
            else if constexpr (std::is_same_v<T, DropTable>)
                return translateDropTable(tree, catalog);
            else if constexpr (std::is_same_v<T, DropIndex>)
                return translateDropIndex(tree, catalog);
            else
                return translateAlterTable(tree, catalog);
        },
        statement);
}

std::string qualifiedName(const Table& table) {
    return quoteIdentifier(table.schema) + "." + quoteIdentifier(table.name);
}

std::size_t columnIndex(const Table& table, std::string_view name, std::size_t position, long error) {
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (equalText(table.columns[i].name, name))
            return i;
    }
    throw DatabaseError(error, "Table '" + table.name + "' has no field '" + std::string(name) + "'", position);
}

void checkChangeable(const Table& table, std::size_t position) {
    if (table.isView)
        throw DatabaseError(3073, "The rows of '" + table.name + "' cannot be changed", position);
}

Table newTable(const TableName& name, Catalog& catalog) {
    const bool exists = name.path.empty() ? catalog.isLink(name.name) || catalog.findTable(name.name).has_value()
                                          : catalog.findTableIn(name.path, name.name).has_value();
    if (exists)
        throw DatabaseError(3010, "Table '" + name.name + "' already exists", name.position);
    if (upperText(name.name.substr(0, 7)) == "SQLITE_" || upperText(name.name.substr(0, 4)) == "MSYS")
        throw DatabaseError(3125, "'" + name.name + "' is not a valid name for a table", name.position);
    Table table;
    table.schema = name.path.empty() ? catalog.defaultSchema() : catalog.schemaOf(name.path);
    table.name = name.name;
    return table;
}

} // namespace jet
