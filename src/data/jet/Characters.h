#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace jet {

/// Bytes of the longest text that functions and `&` make; what would be longer is error 14.
constexpr std::size_t longestMade = 20'000'000;

/// UTF-8 by characters; positions and lengths count code points. A byte that begins no valid sequence counts as one.

/// Takes one code point off the front of `text`, which must not be empty.
char32_t takeCharacter(std::string_view& text);
/// Bytes of the first character.
std::size_t characterBytes(std::string_view text);
std::size_t characterCount(std::string_view text);
/// `count` characters from character `start` (from 0); fewer where the text ends.
std::string_view characters(std::string_view text, std::size_t start, std::size_t count);

} // namespace jet
