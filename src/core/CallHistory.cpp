#include "core/CallHistory.h"

#include "core/WriteLine.h"
#include "core/cPathControl.h"

#include <fstream>

namespace CallHistory {

namespace {

constexpr std::string_view separators = "/\\";
constexpr std::size_t longestWhole = 30; ///< characters, not bytes

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Byte offset behind the first `count` characters.
std::size_t endOfCharacters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    while (at < text.size() && count > 0) {
        ++at;
        while (at < text.size() && continuesCharacter(text[at]))
            ++at;
        --count;
    }
    return at;
}

} // namespace

std::vector<std::string> readRows(const std::string& file) {
    std::vector<std::string> rows;
    std::ifstream in(toPath(file));
    std::string line;
    while (rows.size() < mostRows && std::getline(in, line)) {
        if (line.ends_with('\r'))
            line.pop_back();
        rows.push_back(StripQuotes(line));
    }
    if (rows.empty())
        rows.emplace_back(moreFiles);
    return rows;
}

std::string shortened(std::string_view path) {
    if (endOfCharacters(path, longestWhole) == path.size())
        return std::string(path);
    // The search for separators begins at the last character but one and ends at the second.
    const std::size_t last = path.find_last_of(separators, path.size() - 2);
    const std::size_t second =
        last == std::string_view::npos || last == 0 ? last : path.find_last_of(separators, last - 1);
    if (second == std::string_view::npos || second == 0)
        return std::string(path);
    return std::string(path.substr(0, endOfCharacters(path, 3))) + ".." + std::string(path.substr(second + 1));
}

std::string shortName(std::string_view path) {
    const std::string_view stem = path.substr(0, path.find('.'));
    const std::size_t separator = stem.find_last_of(separators);
    return std::string(separator == std::string_view::npos ? stem : stem.substr(separator + 1));
}

} // namespace CallHistory
