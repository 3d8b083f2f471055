#pragma once

#include <array>
#include <string_view>

namespace jet {

inline constexpr std::array<std::string_view, 12> monthNames{"January",   "February", "March",    "April",
                                                             "May",       "June",     "July",     "August",
                                                             "September", "October",  "November", "December"};
/// From Sunday.
inline constexpr std::array<std::string_view, 7> weekdayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                              "Thursday", "Friday", "Saturday"};

} // namespace jet
