#include "data/jet/TokenStream.h"

#include "data/types/DatabaseError.h"

#include <algorithm>
#include <array>

namespace jet {

namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

bool sameWord(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return lower(x) == lower(y); });
}

constexpr std::array<std::string_view, 45> reservedWords{
    "ADD",    "ALL",   "ALTER",    "AND",         "AS",    "ASC",    "BETWEEN", "BY",     "CREATE",
    "DELETE", "DESC",  "DISTINCT", "DISTINCTROW", "DROP",  "EQV",    "IMP",     "EXISTS", "FALSE",
    "FROM",   "GROUP", "HAVING",   "IN",          "INNER", "INSERT", "INTO",    "IS",     "JOIN",
    "LEFT",   "LIKE",  "MOD",      "NOT",         "NULL",  "ON",     "OR",      "ORDER",  "RIGHT",
    "SELECT", "SET",   "TABLE",    "TRUE",        "UNION", "UPDATE", "VALUES",  "WHERE",  "XOR"};

} // namespace

bool isReserved(std::string_view word) {
    return std::any_of(reservedWords.begin(), reservedWords.end(),
                       [&](std::string_view reserved) { return sameWord(word, reserved); });
}

const Token& TokenStream::peek(std::size_t ahead) const {
    return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
}

const Token& TokenStream::take() {
    const Token& token = peek();
    if (at_ + 1 < tokens_.size())
        ++at_;
    return token;
}

bool TokenStream::isWord(std::string_view keyword, std::size_t ahead) const {
    const Token& token = peek(ahead);
    return token.kind == Token::Kind::Word && sameWord(token.text, keyword);
}

bool TokenStream::isSymbol(std::string_view symbol, std::size_t ahead) const {
    const Token& token = peek(ahead);
    return token.kind == Token::Kind::Symbol && token.text == symbol;
}

bool TokenStream::isName(std::size_t ahead) const {
    const Token& token = peek(ahead);
    return token.kind == Token::Kind::Name || (token.kind == Token::Kind::Word && !isReserved(token.text));
}

bool TokenStream::acceptWord(std::string_view keyword) {
    if (!isWord(keyword))
        return false;
    take();
    return true;
}

bool TokenStream::acceptSymbol(std::string_view symbol) {
    if (!isSymbol(symbol))
        return false;
    take();
    return true;
}

bool TokenStream::acceptWords(std::initializer_list<std::string_view> keywords) {
    std::size_t ahead = 0;
    for (const std::string_view keyword : keywords) {
        if (!isWord(keyword, ahead++))
            return false;
    }
    for (std::size_t i = 0; i < keywords.size(); ++i)
        take();
    return true;
}

void TokenStream::expectWord(std::string_view keyword, long error) {
    if (!acceptWord(keyword))
        fail(error);
}

void TokenStream::expectSymbol(std::string_view symbol, long error) {
    if (!acceptSymbol(symbol))
        fail(error);
}

std::string TokenStream::expectName(long error) {
    if (!isName())
        fail(error);
    return take().text;
}

void TokenStream::fail(long error) const {
    const Token& token = peek();
    switch (token.kind) {
    case Token::Kind::End:
        throw DatabaseError(error, "Syntax error: the statement ends too early", token.position);
    case Token::Kind::Bad: // always a fault of a literal or a name, whatever clause it stands in
        throw DatabaseError(error == 3077 ? error : 3075, token.text, token.position);
    case Token::Kind::Text:
        throw DatabaseError(error, "Syntax error near the text '" + token.value.asText() + "'", token.position);
    case Token::Kind::DateTime:
        throw DatabaseError(error, "Syntax error near the date", token.position);
    default:
        throw DatabaseError(error, "Syntax error near '" + token.text + "'", token.position);
    }
}

} // namespace jet
