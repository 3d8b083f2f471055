#include "data/jet/Translate.h"

#include "data/jet/Characters.h"
#include "data/jet/Lexer.h"
#include "data/jet/Parser.h"
#include "data/jet/TokenStream.h"
#include "data/types/DatabaseError.h"

#include <type_traits>

namespace jet {

namespace {

/// The table that the text names alone, as openRecordset takes it; empty where it is a statement.
std::string bareTableName(std::string_view text, Catalog& catalog) {
    const std::vector<Token> words = lex(text);
    if (words.size() == 2 && words.front().kind == Token::Kind::Name)
        return words.front().text;
    const std::size_t begin = text.find_first_not_of(" \t\r\n");
    const std::size_t end = text.find_last_not_of(" \t\r\n;");
    const bool startsStatement = words.front().kind != Token::Kind::Word || isReserved(words.front().text);
    if (startsStatement || end == std::string_view::npos)
        return {};
    const std::string_view name = text.substr(begin, end + 1 - begin);
    if (words.size() == 2 || (words.size() == 3 && words[1].text == ";"))
        return std::string(name);
    const bool couldBeName = name.find(']') == std::string_view::npos && name.find('\0') == std::string_view::npos;
    return couldBeName && catalog.findTable(name) ? std::string(name) : std::string();
}

Program translateTable(const std::string& name, std::size_t position, Catalog& catalog) {
    try {
        Statement statement = parse("SELECT * FROM [" + name + "]");
        return translateQuery(std::get<Query>(statement), catalog);
    } catch (const DatabaseError& error) {
        throw DatabaseError(error.number(), error.description(), position);
    }
}

} // namespace

Program translate(std::string_view text, Catalog& catalog) {
    if (const std::string table = bareTableName(text, catalog); !table.empty())
        return translateTable(table, text.find_first_not_of(" \t\r\n"), catalog);
    Statement statement = parse(text);
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

void checkFieldCount(std::size_t fields, const TableName& name) {
    constexpr std::size_t mostFields = 255;
    if (fields > mostFields)
        throw DatabaseError(3190, "Too many fields defined in table '" + name.name + "'", name.position);
}

Table newTable(const TableName& name, Catalog& catalog) {
    const bool exists = name.path.empty() ? catalog.isLink(name.name) || catalog.findTable(name.name).has_value()
                                          : catalog.findTableIn(name.path, name.name).has_value();
    if (exists)
        throw DatabaseError(3010, "Table '" + name.name + "' already exists", name.position);
    constexpr std::size_t longestName = 64;
    if (upperText(name.name.substr(0, 7)) == "SQLITE_" || upperText(name.name.substr(0, 4)) == "MSYS" ||
        characterCount(name.name) > longestName)
        throw DatabaseError(3125, "'" + name.name + "' is not a valid name for a table", name.position);
    Table table;
    table.schema = name.path.empty() ? catalog.defaultSchema() : catalog.schemaOf(name.path);
    table.name = name.name;
    return table;
}

} // namespace jet
