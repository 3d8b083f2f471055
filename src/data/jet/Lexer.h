#pragma once

#include "data/jet/Token.h"

#include <string_view>
#include <vector>

namespace jet {

/// Cuts a statement into words; the last one is End. Never throws: what cannot be read becomes one Bad token, which the
/// parser reports when it gets there, so that an earlier fault is reported first. Nothing is read behind a Bad token.
std::vector<Token> lex(std::string_view statement);

} // namespace jet
