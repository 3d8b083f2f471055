#pragma once

#include <string>
#include <string_view>

/// Appends one line to the error log, "CS Mapping Error.log" in the application data folder:
/// #date time#,"procedure",number,"description". A log above 1000000 bytes is first moved to "CS Mapping Error.bak".
/// Never throws; a full disk or a missing folder loses the line. Does nothing while gPaths is not set.
void LogError(std::string_view procedure, long number, std::string_view description) noexcept;
