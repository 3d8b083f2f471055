#include "data/jet/StatementParser.h"

#include "data/types/DatabaseError.h"

namespace jet {

namespace {
constexpr long insertError = 3134;
constexpr long updateError = 3144;
constexpr long deleteError = 3128;
} // namespace

ExpressionPtr StatementParser::optionalWhere() {
    return tokens_.acceptWord("WHERE") ? expression() : nullptr;
}

Insert StatementParser::insert() {
    Insert result;
    result.position = tokens_.peek().position;
    tokens_.expectWord("INSERT", insertError);
    tokens_.expectWord("INTO", insertError);
    result.table = tableName(insertError);
    if (const std::string path = optionalPath(); !path.empty())
        result.table.path = path;
    if (tokens_.isSymbol("(") && !tokens_.isWord("SELECT", 1)) {
        tokens_.take();
        do {
            Insert::Column column;
            column.position = tokens_.peek().position;
            column.name = tokens_.expectName(insertError);
            if (tokens_.acceptSymbol(".")) // the table's own name may stand before the column
                column.name = tokens_.expectName(insertError);
            result.columns.push_back(std::move(column));
        } while (tokens_.acceptSymbol(","));
        tokens_.expectSymbol(")", insertError);
    }
    if (tokens_.isWord("SELECT") || tokens_.isSymbol("(")) {
        result.query = query();
        return result;
    }
    tokens_.expectWord("VALUES", insertError);
    tokens_.expectSymbol("(", insertError);
    do {
        result.values.push_back(expression());
    } while (tokens_.acceptSymbol(","));
    tokens_.expectSymbol(")", insertError);
    return result;
}

Update StatementParser::update() {
    Update result;
    result.position = tokens_.peek().position;
    tokens_.expectWord("UPDATE", updateError);
    tokens_.acceptWord("DISTINCTROW");
    result.from = fromList();
    externalFile(result.from);
    tokens_.expectWord("SET", updateError);
    do {
        Update::Assignment assignment;
        if (!tokens_.isName())
            tokens_.fail(updateError);
        assignment.target = columnName();
        tokens_.expectSymbol("=", updateError);
        assignment.value = expression();
        result.assignments.push_back(std::move(assignment));
    } while (tokens_.acceptSymbol(","));
    result.where = optionalWhere();
    return result;
}

Delete StatementParser::deletion() {
    Delete result;
    result.position = tokens_.peek().position;
    tokens_.expectWord("DELETE", deleteError);
    tokens_.acceptWord("DISTINCTROW");
    if (!tokens_.acceptSymbol("*") && tokens_.isName())
        result.target = deletedTable();
    tokens_.expectWord("FROM", deleteError);
    result.from = fromList();
    externalFile(result.from);
    result.where = optionalWhere();
    return result;
}

/// The table of `table.*`. Columns of it may stand behind, as designers of queries list them for their criteria.
std::string StatementParser::deletedTable() {
    std::string table;
    do {
        const std::size_t at = tokens_.peek().position;
        const std::string name = tokens_.expectName(deleteError);
        if (!table.empty() && !equalText(name, table))
            throw DatabaseError(deleteError, "Rows can be deleted from one table only, not also from '" + name + "'",
                                at);
        tokens_.expectSymbol(".", deleteError);
        if (table.empty())
            tokens_.expectSymbol("*", deleteError);
        else if (!tokens_.acceptSymbol("*"))
            tokens_.expectName(deleteError);
        table = name;
    } while (tokens_.acceptSymbol(","));
    return table;
}

} // namespace jet
