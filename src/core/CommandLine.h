#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// The program's command line is one string of three double-quoted fields joined by commas: "…","…","project path".
/// Only the last field has an effect.
using CommandLineFields = std::array<std::string, 3>;

/// Cuts the string at every `","`. There are always three fields: missing ones are empty, further ones are dropped. A
/// double quote at the head of the first field and one at the end of the last are removed; all others stay.
CommandLineFields splitCommandLine(std::string_view commandLine);

/// The one string, from the arguments as the system hands them over: a ready line is taken as it stands, a plain
/// project path becomes the third field. Several arguments are joined by blanks first, for a path whose blanks were not
/// quoted.
std::string rebuildCommandLine(const std::vector<std::string>& arguments);
