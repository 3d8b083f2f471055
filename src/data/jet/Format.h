#pragma once

#include "data/types/Value.h"

#include <string>
#include <string_view>

namespace jet {

/// Format(value, format): numbers by a picture of 0 # , . % ; and E+ or by name ("Currency", "Fixed", "Standard" …),
/// dates by d m y h n s and AM/PM or by name ("Short Date" …), texts by @ & < >. Texts that read as numbers or dates
/// are taken as such where the picture is one for them. Halves round away from zero. Null gives the
/// fourth section of a picture, else the empty text.
std::string formatValue(const Value& value, std::string_view format);

std::string formatNumber(double number, std::string_view picture);
std::string formatNull(std::string_view picture);
std::string formatDate(Date date, std::string_view picture);

} // namespace jet
