#include "data/jet/Lexer.h"

#include "core/RuntimeError.h"

#include <charconv>
#include <cmath>

namespace jet {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
/// Letters outside ASCII are bytes above 0x7F and belong to names.
bool startsWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

class Lexer {
public:
    explicit Lexer(std::string_view statement) : text_(statement) {}

    std::vector<Token> run() {
        while (true) {
            while (at_ < text_.size() && isBlank(text_[at_]))
                ++at_;
            Token token = next();
            token.length = at_ - token.position;
            const bool last = token.kind == Token::Kind::End || token.kind == Token::Kind::Bad;
            tokens_.push_back(std::move(token));
            if (last)
                break;
        }
        if (tokens_.back().kind == Token::Kind::Bad)
            tokens_.push_back(Token{Token::Kind::End, text_.size(), 0, {}, {}});
        return std::move(tokens_);
    }

private:
    Token make(Token::Kind kind, std::size_t start, std::string text = {}, Value value = {}) const {
        return Token{kind, start, 0, std::move(text), std::move(value)};
    }

    Token next() {
        const std::size_t start = at_;
        if (at_ == text_.size())
            return make(Token::Kind::End, start);
        const char c = text_[at_];
        if (startsWord(c))
            return word();
        if (isDigit(c) || (c == '.' && at_ + 1 < text_.size() && isDigit(text_[at_ + 1]) && !followsName()))
            return number();
        switch (c) {
        case '\'':
        case '"':
            return quoted(c);
        case '[':
            return bracketed();
        case '#':
            return date();
        default:
            return symbol();
        }
    }

    /// Behind a name a point separates, as in T.1141x; elsewhere it may begin a number.
    bool followsName() const {
        return !tokens_.empty() && tokens_.back().position + tokens_.back().length == at_ &&
               (tokens_.back().kind == Token::Kind::Word || tokens_.back().kind == Token::Kind::Name);
    }

    Token word() {
        const std::size_t start = at_;
        while (at_ < text_.size() && (startsWord(text_[at_]) || isDigit(text_[at_])))
            ++at_;
        if (at_ < text_.size() && text_[at_] == '$') // Left$ and the like
            ++at_;
        return make(Token::Kind::Word, start, std::string(text_.substr(start, at_ - start)));
    }

    void skipDigits() {
        while (at_ < text_.size() && isDigit(text_[at_]))
            ++at_;
    }

    Token number() {
        const std::size_t start = at_;
        skipDigits();
        bool whole = true;
        if (at_ < text_.size() && text_[at_] == '.') {
            whole = false;
            ++at_;
            skipDigits();
        }
        if (at_ < text_.size() && (text_[at_] == 'e' || text_[at_] == 'E')) {
            std::size_t digits = at_ + 1;
            if (digits < text_.size() && (text_[digits] == '+' || text_[digits] == '-'))
                ++digits;
            if (digits < text_.size() && isDigit(text_[digits])) {
                whole = false;
                at_ = digits;
                skipDigits();
            }
        }
        const std::string_view digits = text_.substr(start, at_ - start);
        if (whole) {
            std::int64_t integer = 0;
            if (std::from_chars(digits.data(), digits.data() + digits.size(), integer).ec == std::errc{})
                return make(Token::Kind::Number, start, std::string(digits), Value(integer));
        }
        double real = 0;
        if (std::from_chars(digits.data(), digits.data() + digits.size(), real).ec != std::errc{})
            return make(Token::Kind::Bad, start, "The number is too large or too small");
        return make(Token::Kind::Number, start, std::string(digits), Value(real));
    }

    Token quoted(char quote) {
        const std::size_t start = at_++;
        std::string content;
        while (at_ < text_.size()) {
            const char c = text_[at_++];
            if (c == quote) {
                if (at_ == text_.size() || text_[at_] != quote)
                    return make(Token::Kind::Text, start, {}, Value(std::move(content)));
                ++at_;
            } else if (c == '\0') {
                return make(Token::Kind::Bad, start, "The text holds a zero byte");
            }
            content += c;
        }
        return make(Token::Kind::Bad, start, "The text has no closing quote");
    }

    Token bracketed() {
        const std::size_t start = at_++;
        const std::size_t end = text_.find(']', at_);
        if (end == std::string_view::npos)
            return make(Token::Kind::Bad, start, "The name has no closing bracket");
        const std::string_view name = text_.substr(at_, end - at_);
        at_ = end + 1;
        if (name.empty() || name.find('\0') != std::string_view::npos)
            return make(Token::Kind::Bad, start, "The name between the brackets is not valid");
        return make(Token::Kind::Name, start, std::string(name));
    }

    Token date() {
        const std::size_t start = at_++;
        const std::size_t end = text_.find('#', at_);
        if (end == std::string_view::npos)
            return make(Token::Kind::Bad, start, "The date has no closing # sign");
        const std::string_view content = text_.substr(at_, end - at_);
        at_ = end + 1;
        try {
            return make(Token::Kind::DateTime, start, {}, Value(parseDate(content, true)));
        } catch (const RuntimeError&) {
            return make(Token::Kind::Bad, start, "Syntax error in the date '" + std::string(content) + "'");
        }
    }

    Token symbol() {
        const std::size_t start = at_;
        const std::string_view two = text_.substr(at_, 2);
        if (two == "<=" || two == ">=" || two == "<>") {
            at_ += 2;
            return make(Token::Kind::Symbol, start, std::string(two));
        }
        const char c = text_[at_];
        if (std::string_view("=<>+-*/\\^&(),.!;").find(c) == std::string_view::npos)
            return make(Token::Kind::Bad, start, "The sign cannot stand in a statement");
        ++at_;
        return make(Token::Kind::Symbol, start, std::string(1, c));
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::vector<Token> tokens_;
};

} // namespace

std::vector<Token> lex(std::string_view statement) {
    return Lexer(statement).run();
}

} // namespace jet
