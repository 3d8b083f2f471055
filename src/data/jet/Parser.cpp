#include "data/jet/Parser.h"

#include "data/jet/Lexer.h"
#include "data/jet/StatementParser.h"
#include "data/types/DatabaseError.h"

namespace jet {

Statement parse(std::string_view statement) {
    return StatementParser(lex(statement)).statement();
}

ExpressionPtr parseExpression(std::string_view text) {
    return StatementParser(lex(text)).wholeExpression();
}

/// The statement by its first word, with the number for words that cannot stand behind it.
Statement StatementParser::byFirstWord(long& error) {
    if (tokens_.isWord("SELECT") || tokens_.isSymbol("(")) {
        error = 3141;
        return std::move(*query());
    }
    if (tokens_.isWord("INSERT")) {
        error = 3134;
        return insert();
    }
    if (tokens_.isWord("UPDATE")) {
        error = 3144;
        return update();
    }
    if (tokens_.isWord("DELETE")) {
        error = 3128;
        return deletion();
    }
    if (tokens_.isWord("CREATE")) {
        error = 3290;
        return create();
    }
    if (tokens_.isWord("DROP")) {
        error = 3295;
        return drop();
    }
    if (tokens_.isWord("ALTER")) {
        error = 3293;
        return alter();
    }
    throw DatabaseError(3129, "Invalid SQL statement; expected SELECT, INSERT, UPDATE, DELETE, CREATE, DROP or ALTER",
                        tokens_.peek().position);
}

Statement StatementParser::statement() {
    long error = 3129;
    Statement result = byFirstWord(error);
    if (tokens_.acceptSymbol(";") && !tokens_.atEnd())
        throw DatabaseError(3142, "Characters found behind the end of the statement", tokens_.peek().position);
    if (!tokens_.atEnd())
        tokens_.fail(error);
    return result;
}

StatementParser::Nesting::Nesting(StatementParser& parser) : parser_(parser) {
    if (parser_.nesting_ >= maxDepth)
        throw DatabaseError(3360, "The statement is too complex: brackets are nested too deep",
                            parser_.tokens_.peek().position);
    ++parser_.nesting_;
}

} // namespace jet
