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

/// Puts one word in the place of another, so that most of what results can still be read.
void moveWord(std::string& text, std::mt19937_64& random) {
    std::vector<std::pair<std::size_t, std::size_t>> words; // where they begin and how long they are
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = endOfWord(text, at);
        if (text[at] != ' ')
            words.emplace_back(at, end - at);
        at = end;
    }
    if (words.empty())
        return;
    const auto from = words[below(words.size(), random)];
    const auto to = words[below(words.size(), random)];
    text.replace(to.first, to.second, text.substr(from.first, from.second));
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
    const std::size_t at = below(input.size() + 1, random);
    switch (below(8, random)) {
    case 0:
        input.erase(at, 1 + below(8, random));
        break;
    case 1:
    case 2:
        if (!tokens_.empty())
            input.insert(at, tokens_[below(tokens_.size(), random)]);
        else if (!input.empty())
            changeBytes(input, random);
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
        if (below(8, random) == 0)
            input.resize(at);
        else if (isText(input))
            moveWord(input, random);
        break;
    default:
        if (isText(input) && below(2, random) == 0)
            moveWord(input, random);
        else if (!input.empty())
            changeBytes(input, random);
    }
}
