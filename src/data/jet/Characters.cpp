#include "data/jet/Characters.h"

namespace jet {

std::size_t characterBytes(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t wanted = lead < 0x80           ? 1
                               : (lead >> 5) == 0x6  ? 2
                               : (lead >> 4) == 0xE  ? 3
                               : (lead >> 3) == 0x1E ? 4
                                                     : 1;
    if (wanted > text.size())
        return 1;
    for (std::size_t i = 1; i < wanted; ++i) {
        if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80)
            return 1;
    }
    return wanted;
}

char32_t takeCharacter(std::string_view& text) {
    const std::size_t bytes = characterBytes(text);
    const auto lead = static_cast<unsigned char>(text.front());
    char32_t c = bytes == 1 ? lead : lead & (0xFFu >> (bytes + 1));
    for (std::size_t i = 1; i < bytes; ++i)
        c = (c << 6) | (static_cast<unsigned char>(text[i]) & 0x3Fu);
    text.remove_prefix(bytes);
    return c;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        text.remove_prefix(characterBytes(text));
        ++count;
    }
    return count;
}

std::string_view characters(std::string_view text, std::size_t start, std::size_t count) {
    for (; start > 0 && !text.empty(); --start)
        text.remove_prefix(characterBytes(text));
    std::string_view rest = text;
    for (; count > 0 && !rest.empty(); --count)
        rest.remove_prefix(characterBytes(rest));
    return text.substr(0, text.size() - rest.size());
}

} // namespace jet
