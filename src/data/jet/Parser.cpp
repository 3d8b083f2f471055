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

Statement StatementParser::statement() {
    Statement result;
    if (tokens_.isWord("SELECT") || tokens_.isSymbol("("))
        result = std::move(*query());
    else if (tokens_.isWord("INSERT"))
        result = insert();
    else if (tokens_.isWord("UPDATE"))
        result = update();
    else if (tokens_.isWord("DELETE"))
        result = deletion();
    else if (tokens_.isWord("CREATE"))
        result = create();
    else if (tokens_.isWord("DROP"))
        result = drop();
    else if (tokens_.isWord("ALTER"))
        result = alter();
    else
        throw DatabaseError(3129,
                            "Invalid SQL statement; expected SELECT, INSERT, UPDATE, DELETE, CREATE, DROP or ALTER",
                            tokens_.peek().position);
    if (tokens_.acceptSymbol(";") && !tokens_.atEnd())
        throw DatabaseError(3142, "Characters found behind the end of the statement", tokens_.peek().position);
    if (!tokens_.atEnd())
        tokens_.fail(3000);
    return result;
}

StatementParser::Nesting::Nesting(StatementParser& parser) : parser_(parser) {
    if (parser_.nesting_ >= maxDepth)
        throw DatabaseError(3360, "The statement is too complex: brackets are nested too deep",
                            parser_.tokens_.peek().position);
    ++parser_.nesting_;
}

} // namespace jet
