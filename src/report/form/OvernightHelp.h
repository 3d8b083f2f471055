#pragma once

#include <string>

/// What the overnight reading of the hours means, for a message.
inline std::string overnightHelp() {
    return "If 'Overnight' is checked and the 'hours after' is"
           " set to a value greater than the 'hours"
           " before' value then reports will show calls"
           " for the continuous period extending"
           " into the next day provided the period covered by"
           " the selected start and end dates include both days."
           " For example if"
           " parameters are set to show just calls on"
           " Monday with the 'hours after' set to 1800"
           " and the 'hours before' set to 0800 then the"
           " reports will show calls from Monday at"
           " 1800 until Tuesday at 0800. If the"
           " overnight option is unchecked the reports"
           " will show calls on Monday before 0800 and"
           " after 1800."
           " The selected call hours apply to the start time for the calls.";
}
