#include "data/types/Value.h"

#include <array>

namespace {

constexpr char32_t upperCodePoint(char32_t c) {
    if (c < 0x80)
        return c >= 'a' && c <= 'z' ? c - 0x20 : c;
    if (c == 0xFF)
        return 0x178;
    if (c >= 0xE0 && c <= 0xFE)
        return c == 0xF7 ? c : c - 0x20;
    if (c >= 0x100 && c <= 0x17F) {
        const bool evenIsUpper = (c < 0x138 && c != 0x131) || (c >= 0x14A && c < 0x178);
        if (evenIsUpper)
            return c & ~char32_t{1};
        const bool oddIsUpper = (c >= 0x139 && c < 0x149) || (c >= 0x179 && c < 0x17F);
        return oddIsUpper && c % 2 == 0 ? c - 1 : c;
    }
    if (c == 0x3C2)
        return 0x3A3;
    if (c >= 0x3B1 && c <= 0x3C9)
        return c - 0x20;
    if (c >= 0x430 && c <= 0x44F)
        return c - 0x20;
    if (c >= 0x450 && c <= 0x45F)
        return c - 0x50;
    return c;
}

constexpr char32_t lowerCodePoint(char32_t c) {
    if (c < 0x80)
        return c >= 'A' && c <= 'Z' ? c + 0x20 : c;
    if (c == 0x178)
        return 0xFF;
    if (c >= 0xC0 && c <= 0xDE)
        return c == 0xD7 ? c : c + 0x20;
    if (c >= 0x100 && c <= 0x17F) {
        if (upperCodePoint(c + 1) == c)
            return c + 1;
        return c;
    }
    if (c >= 0x391 && c <= 0x3A9)
        return c + 0x20;
    if (c >= 0x410 && c <= 0x42F)
        return c + 0x20;
    if (c >= 0x400 && c <= 0x40F)
        return c + 0x50;
    return c;
}

constexpr std::array<unsigned char, 256> makeAsciiUpper() {
    std::array<unsigned char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<unsigned char>(i < 0x80 ? upperCodePoint(static_cast<char32_t>(i)) : i);
    return table;
}
constexpr auto asciiUpper = makeAsciiUpper();

/// Takes one code point off the front; a byte that starts no valid sequence stands for itself.
char32_t nextCodePoint(std::string_view& text) {
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    const std::size_t length = lead < 0x80           ? 1
                               : (lead >> 5) == 0x6  ? 2
                               : (lead >> 4) == 0xE  ? 3
                               : (lead >> 3) == 0x1E ? 4
                                                     : 1;
    char32_t c = lead;
    if (length > 1 && text.size() >= length) {
        c = lead & (0xFFu >> (length + 1));
        for (std::size_t i = 1; i < length; ++i) {
            if ((byteAt(i) & 0xC0) != 0x80) {
                text.remove_prefix(1);
                return lead;
            }
            c = (c << 6) | (byteAt(i) & 0x3Fu);
        }
        text.remove_prefix(length);
        return c;
    }
    text.remove_prefix(1);
    return lead;
}

void appendCodePoint(std::string& out, char32_t c) {
    const auto put = [&](char32_t byte) { out.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0 | (c >> 6));
        put(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        put(0xE0 | (c >> 12));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    } else {
        put(0xF0 | (c >> 18));
        put(0x80 | ((c >> 12) & 0x3F));
        put(0x80 | ((c >> 6) & 0x3F));
        put(0x80 | (c & 0x3F));
    }
}

std::string_view withoutTrailingBlanks(std::string_view text) {
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

template<typename Map>
std::string mapText(std::string_view text, Map map) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const auto lead = static_cast<unsigned char>(text.front());
        if (lead < 0x80) {
            out.push_back(static_cast<char>(map(lead)));
            text.remove_prefix(1);
            continue;
        }
        const std::size_t before = text.size();
        const std::string_view rest = text;
        const char32_t c = nextCodePoint(text);
        if (before - text.size() == 1)
            out.push_back(rest.front()); // a stray byte is kept as it is
        else
            appendCodePoint(out, map(c));
    }
    return out;
}

int compareCodePoints(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        const char32_t ca = upperCodePoint(nextCodePoint(a));
        const char32_t cb = upperCodePoint(nextCodePoint(b));
        if (ca != cb)
            return ca < cb ? -1 : 1;
    }
    return a.empty() ? (b.empty() ? 0 : -1) : 1;
}

} // namespace

int compareText(std::string_view a, std::string_view b) {
    a = withoutTrailingBlanks(a);
    b = withoutTrailingBlanks(b);
    const std::size_t shared = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t i = 0; i < shared; ++i) {
        const auto ca = static_cast<unsigned char>(a[i]);
        const auto cb = static_cast<unsigned char>(b[i]);
        if ((ca | cb) >= 0x80)
            return compareCodePoints(a.substr(i), b.substr(i));
        const unsigned char ua = asciiUpper[ca];
        const unsigned char ub = asciiUpper[cb];
        if (ua != ub)
            return ua < ub ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

bool equalText(std::string_view a, std::string_view b) {
    return compareText(a, b) == 0;
}

std::string upperText(std::string_view text) {
    return mapText(text, upperCodePoint);
}
std::string lowerText(std::string_view text) {
    return mapText(text, lowerCodePoint);
}
std::string foldText(std::string_view text) {
    return upperText(withoutTrailingBlanks(text));
}

std::string trimmedText(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

namespace {

bool startsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

} // namespace

std::string firstCharacters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        if (startsCharacter(text[at]) && count-- == 0)
            break;
    }
    return std::string(text.substr(0, at));
}

std::string lastCharacters(std::string_view text, std::size_t count) {
    std::size_t at = text.size();
    while (at > 0 && count > 0) {
        --at;
        if (startsCharacter(text[at]))
            --count;
    }
    return std::string(text.substr(at));
}
