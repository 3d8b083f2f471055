#pragma once

#include "data/types/Value.h"

#include <string>
#include <string_view>
#include <vector>

/// The top of the scale on which a map with this largest value is coloured, so chosen that its eighths are round.
double topOfScale(double maximum);

/// The class breaks of a map: three, four, eight or ten numbers, separated by commas. Some stand behind a blank, which
/// shows in the key.
std::string bandList(double maximum);

/// The texts between the commas, blanks kept. An empty list has none.
std::vector<std::string> splitBandList(std::string_view list);

/// Whether the whole text, blanks at its ends aside, is a decimal number.
bool isNumericText(std::string_view text);

/// One class of values of a numeric map: its words in the key, and its range, `from` inclusive and `to` exclusive;
/// equal ends mean that one value.
struct NumericBand {
    std::string name;
    Value from; ///< Money; of the open band the text of the last break
    Value to;   ///< Money; of the open band 100000000
};

/// The bands that numeric breaks divide the scale into, one more than there are breaks. `unitSign` stands in front of
/// every number in a name. Throws RuntimeError 13 where a break is no number.
std::vector<NumericBand> numericBands(const std::vector<std::string>& breaks, std::string_view unitSign);
