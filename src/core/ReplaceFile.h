#pragma once

#include <string>
#include <string_view>

/// Puts `text` in the place of the file, or makes it. The old file stays whole until the new one is: a full disk or a
/// missing right loses nothing. Line ends are the platform's. Throws RuntimeError that names the file.
void replaceFile(const std::string& file, std::string_view text);
