#include "data/jet/StatementParser.h"

#include "data/types/DatabaseError.h"

#include <algorithm>

namespace jet {

namespace {
constexpr long selectError = 3141;
constexpr long fromError = 3131;
constexpr long joinError = 3135;
constexpr long orderError = 3138;
/// The storage library joins no more tables and unites no more queries in one statement.
constexpr int mostTables = 64;
constexpr std::size_t mostUnited = 500;

void setPath(FromItem& item, const std::string& path) {
    if (item.kind == FromItem::Kind::Join) {
        setPath(*item.left, path);
        setPath(*item.right, path);
    } else if (item.kind == FromItem::Kind::Table && item.table.path.empty()) {
        item.table.path = path;
    }
}
} // namespace

std::unique_ptr<Query> StatementParser::query() {
    const Nesting nesting(*this);
    auto result = std::make_unique<Query>();
    unionMember(*result);
    while (tokens_.acceptWord("UNION")) {
        result->unionAll.push_back(tokens_.acceptWord("ALL"));
        // Only the order of the whole counts: one that stands before a UNION sorts nothing.
        if (!result->selects.back().top)
            result->order.clear();
        if (result->selects.size() >= mostUnited)
            throw DatabaseError(3360, "The statement is too complex: too many queries are united",
                                tokens_.peek().position);
        unionMember(*result);
    }
    return result;
}

/// One SELECT, bare or in brackets, with an ORDER BY behind it.
void StatementParser::unionMember(Query& into) {
    if (tokens_.isSymbol("(")) {
        const Nesting nesting(*this);
        tokens_.take();
        unionMember(into);
        tokens_.expectSymbol(")", selectError);
    } else {
        into.selects.push_back(select());
    }
    if (tokens_.isWord("ORDER"))
        into.order = orderTerms();
}

Select StatementParser::select() {
    Select result;
    result.position = tokens_.peek().position;
    tokens_.expectWord("SELECT", selectError);
    result.distinct = tokens_.acceptWord("DISTINCT");
    const bool distinctRow = !result.distinct && tokens_.acceptWord("DISTINCTROW");
    if (!result.distinct && !distinctRow)
        tokens_.acceptWord("ALL");
    selectTop(result);
    do {
        result.columns.push_back(selectColumn());
    } while (tokens_.acceptSymbol(","));
    if (tokens_.acceptWord("INTO")) {
        result.into = tableName(selectError);
        if (const std::string path = optionalPath(); !path.empty())
            result.into->path = path;
    }
    if (tokens_.acceptWord("FROM")) {
        result.from = fromList();
        externalFile(result.from);
    }
    // Every row of a single table is a row of its own, however much alike they look.
    const bool joins =
        result.from.size() > 1 || (result.from.size() == 1 && result.from.front()->kind == FromItem::Kind::Join);
    result.distinct = result.distinct || (distinctRow && joins);
    result.where = optionalWhere();
    if (tokens_.acceptWord("GROUP")) {
        tokens_.expectWord("BY", selectError);
        do {
            result.groupBy.push_back(expression());
        } while (tokens_.acceptSymbol(","));
    }
    if (tokens_.acceptWord("HAVING"))
        result.having = expression();
    return result;
}

void StatementParser::selectTop(Select& into) {
    if (!tokens_.isWord("TOP") || tokens_.peek(1).kind != Token::Kind::Number)
        return;
    tokens_.take();
    const auto* count = std::get_if<std::int64_t>(&tokens_.peek().value.storage());
    if (!count || *count < 1)
        tokens_.fail(selectError);
    into.top = *count;
    tokens_.take();
    into.topPercent = tokens_.acceptWord("PERCENT");
    if (into.topPercent && *into.top > 100)
        throw DatabaseError(selectError, "Syntax error: more than 100 percent", into.position);
}

SelectColumn StatementParser::selectColumn() {
    SelectColumn column;
    column.position = tokens_.peek().position;
    if (tokens_.acceptSymbol("*"))
        return column;
    if (tokens_.isName() && tokens_.isSymbol(".", 1) && tokens_.isSymbol("*", 2)) {
        column.qualifier = tokens_.take().text;
        tokens_.take();
        tokens_.take();
        return column;
    }
    // A keyword or comma where a column should stand is a fault of the list, not of an expression.
    if (tokens_.atEnd() || tokens_.isSymbol(",") || tokens_.isWord("FROM") || tokens_.isWord("WHERE") ||
        tokens_.isWord("INTO"))
        tokens_.fail(selectError);
    column.expression = expression(Follower::Alias);
    // A name before another name or a text is no alias but stands behind an apostrophe inside a pasted text:
    // 'KING'S LYNN', 'O'BRIEN' AS Name, 'x'.
    const Token::Kind behind = tokens_.isName() ? tokens_.peek(1).kind : Token::Kind::End;
    if (behind == Token::Kind::Text || behind == Token::Kind::Bad || (tokens_.isName() && tokens_.isName(1)))
        tokens_.fail(expressionError_);
    column.alias = optionalAlias(selectError);
    return column;
}

std::string StatementParser::optionalAlias(long error) {
    if (tokens_.acceptWord("AS")) {
        // Behind AS a name may begin with digits without brackets: AS 1141Code.
        const Token& digits = tokens_.peek();
        const Token& rest = tokens_.peek(1);
        if (digits.kind != Token::Kind::Number || rest.kind != Token::Kind::Word ||
            digits.position + digits.length != rest.position)
            return tokens_.expectName(error);
        const std::string name = digits.text + rest.text;
        tokens_.take();
        tokens_.take();
        return name;
    }
    return tokens_.isName() ? tokens_.take().text : std::string();
}

std::vector<OrderTerm> StatementParser::orderTerms() {
    tokens_.expectWord("ORDER", orderError);
    tokens_.expectWord("BY", orderError);
    std::vector<OrderTerm> terms;
    do {
        OrderTerm term;
        term.expression = expression();
        term.descending = tokens_.acceptWord("DESC");
        if (!term.descending)
            tokens_.acceptWord("ASC");
        terms.push_back(std::move(term));
    } while (tokens_.acceptSymbol(","));
    return terms;
}

std::vector<std::unique_ptr<FromItem>> StatementParser::fromList() {
    std::vector<std::unique_ptr<FromItem>> items;
    do {
        items.push_back(joined());
        if (items.size() > static_cast<std::size_t>(mostTables))
            throw DatabaseError(3360, "The statement is too complex: too many tables", items.back()->position);
    } while (tokens_.acceptSymbol(","));
    return items;
}

std::unique_ptr<FromItem> StatementParser::joined() {
    const Nesting nesting(*this);
    std::unique_ptr<FromItem> left = fromPrimary();
    while (true) {
        const std::size_t position = tokens_.peek().position;
        auto kind = FromItem::Join::Inner;
        if (tokens_.acceptWord("LEFT"))
            kind = FromItem::Join::Left;
        else if (tokens_.acceptWord("RIGHT"))
            kind = FromItem::Join::Right;
        else if (!tokens_.acceptWord("INNER") && !tokens_.isWord("JOIN"))
            return left;
        if (kind != FromItem::Join::Inner)
            tokens_.acceptWord("OUTER");
        tokens_.expectWord("JOIN", joinError);
        auto join = std::make_unique<FromItem>();
        join->kind = FromItem::Kind::Join;
        join->position = position;
        join->join = kind;
        join->left = std::move(left);
        join->right = fromPrimary();
        tokens_.expectWord("ON", joinError);
        join->on = expression();
        join->depth = std::max(join->left->depth, join->right->depth) + 1;
        if (join->depth > mostTables)
            throw DatabaseError(3360, "The statement is too complex: too many joins", position);
        left = std::move(join);
    }
}

/// A table, a derived table, or a join in brackets.
std::unique_ptr<FromItem> StatementParser::fromPrimary() {
    auto item = std::make_unique<FromItem>();
    item->position = tokens_.peek().position;
    if (!tokens_.acceptSymbol("(")) {
        item->table = tableName(fromError);
        item->alias = tableAlias();
        return item;
    }
    const Nesting nesting(*this);
    if (tokens_.isWord("SELECT")) {
        item->kind = FromItem::Kind::Derived;
        item->query = query();
        tokens_.expectSymbol(")", fromError);
        item->alias = tableAlias();
        return item;
    }
    item = joined();
    tokens_.expectSymbol(")", fromError);
    return item;
}

/// Words of joins that the dialect does not have are no alias: FULL JOIN must not pass for JOIN.
std::string StatementParser::tableAlias() {
    for (const std::string_view word : {"FULL", "CROSS", "NATURAL", "OUTER"}) {
        if (tokens_.isWord(word))
            tokens_.fail(joinError);
    }
    return optionalAlias(fromError);
}

/// FROM … IN 'path': the tables of the clause that name no file of their own.
void StatementParser::externalFile(std::vector<std::unique_ptr<FromItem>>& items) {
    const std::string path = optionalPath();
    if (path.empty())
        return;
    for (const auto& item : items)
        setPath(*item, path);
}

std::string StatementParser::optionalPath() {
    if (!tokens_.isWord("IN") || tokens_.peek(1).kind != Token::Kind::Text)
        return {};
    tokens_.take();
    return tokens_.take().value.asText();
}

TableName StatementParser::tableName(long error) {
    TableName name;
    name.position = tokens_.peek().position;
    name.name = tokens_.expectName(error);
    if (tokens_.acceptSymbol(".")) {
        name.path = std::move(name.name);
        if (tokens_.peek().kind != Token::Kind::Word && tokens_.peek().kind != Token::Kind::Name)
            tokens_.fail(error);
        name.name = tokens_.take().text;
    }
    return name;
}

} // namespace jet
