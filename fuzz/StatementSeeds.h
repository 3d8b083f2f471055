#pragma once

#include <string>
#include <vector>

/// All statements of the dialect's text cases.
std::vector<std::string> statementSeeds();
/// Words, operators, literals and function names of the dialect.
std::vector<std::string> dialectTokens();
/// The statements that make the small tables which the text cases speak of.
std::vector<std::string> fixtureStatements();
