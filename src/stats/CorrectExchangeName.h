#pragma once

#include <string>
#include <string_view>

/// The name under which the statistics tables know an exchange of the map. The spellings of the two differ for a few
/// exchanges, and some are cut short; all others have one name. The comparison is exact. "WHITELEY" has no statistics:
/// empty.
std::string CorrectExchangeName(std::string_view mapName);
