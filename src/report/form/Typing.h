#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// How texts are typed into the lists of the main window. Texts are UTF-8.

/// Whether the box for an inbound number takes a character. Digits and letters, and the control characters of
/// backspace (8), return (13), copy (3) and paste (22).
bool isInboundCharacter(char32_t character);

/// The first row that begins with what was typed, without regard to case. Nothing for an empty text.
std::optional<std::size_t> rowBeginningWith(const std::vector<std::string>& rows, std::string_view typed);

/// Whether a text is a row, letter by letter.
bool isRow(const std::vector<std::string>& rows, std::string_view text);
