#pragma once

#include "data/jet/Token.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// Whether a word cannot be a name unless it stands in brackets.
bool isReserved(std::string_view word);

/// The words of a statement with a place in them. Keywords are compared without case.
class TokenStream {
public:
    explicit TokenStream(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    const Token& peek(std::size_t ahead = 0) const;
    const Token& take();

    bool isWord(std::string_view keyword, std::size_t ahead = 0) const;
    bool isSymbol(std::string_view symbol, std::size_t ahead = 0) const;
    bool isName(std::size_t ahead = 0) const; ///< a name in brackets or a word that is not reserved
    bool acceptWord(std::string_view keyword);
    bool acceptSymbol(std::string_view symbol);
    /// All of the keywords in a row, or none.
    bool acceptWords(std::initializer_list<std::string_view> keywords);

    void expectWord(std::string_view keyword, long error);
    void expectSymbol(std::string_view symbol, long error);
    std::string expectName(long error);

    bool atEnd() const { return peek().kind == Token::Kind::End; }
    /// Throws the syntax error at the next word.
    [[noreturn]] void fail(long error) const;

private:
    std::vector<Token> tokens_; ///< ends with End
    std::size_t at_ = 0;
};

} // namespace jet
