#include "fuzz/Mutator.h"

#include <algorithm>
#include <array>

namespace {

std::size_t below(std::size_t limit, std::mt19937_64& random) {
    return limit == 0 ? 0 : static_cast<std::size_t>(random() % limit);
}

bool isText(const std::string& input) {
    return input.find('\0') == std::string::npos;
}

bool isWordByte(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

/// A name in brackets, a text in quotes, a word or number, or one other byte: where it ends.
std::size_t endOfWord(const std::string& text, std::size_t at) {
    const char close = text[at] == '[' ? ']' : text[at];
    if (text[at] == '[' || text[at] == '\'' || text[at] == '#' || text[at] == '"') {
        const std::size_t end = text.find(close, at + 1);
        return end == std::string::npos ? at + 1 : end + 1;
    }
    std::size_t end = at;
    while (end < text.size() && isWordByte(text[end]))
        ++end;
    return std::max(end, at + 1);
}

struct Word {
    std::size_t at;
    std::size_t length;
    char kind; ///< 'a' a word or name, '0' a number, '\'' a literal, or the byte itself
};

std::vector<Word> wordsOf(const std::string& text) {
    std::vector<Word> words;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = endOfWord(text, at);
        const char first = text[at];
        char kind = first;
        if (isWordByte(first) || first == '[')
            kind = first >= '0' && first <= '9' ? '0' : 'a';
        else if (first == '#' || first == '"')
            kind = '\'';
        if (first != ' ' && first != '\n')
            words.push_back({at, end - at, kind});
        at = end;
    }
    return words;
}

/// Puts a word of `source` in the place of one of the text, mostly of the same kind, so that much of what results can
/// still be read.
void moveWord(std::string& text, const std::string& source, std::mt19937_64& random) {
    const std::vector<Word> from = wordsOf(source);
    const std::vector<Word> to = wordsOf(text);
    if (from.empty() || to.empty())
        return;
    const Word place = to[below(to.size(), random)];
    for (int tries = 0; tries < 20; ++tries) {
        const Word word = from[below(from.size(), random)];
        if (word.kind == place.kind || tries == 19) {
            const std::string moved = source.substr(word.at, word.length);
            text.replace(place.at, place.length, moved);
            return;
        }
    }
}

} // namespace

Mutator::Mutator(std::vector<std::string> inputs, std::vector<std::string> tokens, std::size_t longest)
    : inputs_(std::move(inputs)), tokens_(std::move(tokens)), longest_(longest) {}

std::string Mutator::next(std::mt19937_64& random) const {
    if (inputs_.empty())
        return mutated({}, random);
    return mutated(inputs_[below(inputs_.size(), random)], random);
}

std::string Mutator::mutated(std::string input, std::mt19937_64& random) const {
    do
        change(input, random);
    while (below(2, random) == 0);
    if (input.size() > longest_)
        input.resize(longest_);
    return input;
}

void Mutator::changeBytes(std::string& input, std::mt19937_64& random) const {
    static constexpr std::array<unsigned char, 10> telling{0, 1, 0x7F, 0x80, 0xFF, 0xFE, ' ', '\'', '9', 0x40};
    const std::size_t at = below(input.size(), random);
    switch (below(4, random)) {
    case 0:
        input[at] = static_cast<char>(random() & 0xFF);
        break;
    case 1:
        input[at] = static_cast<char>(input[at] ^ (1 << below(8, random)));
        break;
    case 2:
        input[at] = static_cast<char>(telling[below(telling.size(), random)]);
        break;
    default:
        for (std::size_t i = at; i < std::min(input.size(), at + 4); ++i)
            input[i] = static_cast<char>(telling[below(telling.size(), random)]);
    }
}

void Mutator::change(std::string& input, std::mt19937_64& random) const {
    if (isText(input) && !tokens_.empty() && below(2, random) == 0) {
        const bool own = inputs_.empty() || below(2, random) == 0;
        moveWord(input, own ? std::string(input) : inputs_[below(inputs_.size(), random)], random);
        return;
    }
    const std::size_t at = below(input.size() + 1, random);
    switch (below(8, random)) {
    case 0:
        input.erase(at, 1 + below(8, random));
        break;
    case 1:
    case 2:
        if (!tokens_.empty())
            input.insert(at, tokens_[below(tokens_.size(), random)]);
        break;
    case 3:
        input.insert(at, input.substr(below(input.size() + 1, random), below(40, random)));
        break;
    case 4:
        if (!inputs_.empty()) {
            const std::string& other = inputs_[below(inputs_.size(), random)];
            input = input.substr(0, at) + other.substr(below(other.size() + 1, random));
        }
        break;
    case 5:
        if (below(4, random) == 0)
            input.resize(at);
        break;
    default:
        if (!input.empty())
            changeBytes(input, random);
    }
}
