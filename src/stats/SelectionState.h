#pragma once

#include <string>

/// What a selection leaves behind for the report that asked for it. SelectionSql itself is with the other globals of
/// the program.

/// Lines joined by CR LF that name the inbound, answer point, destination and overnight filters; never dates or times.
extern std::string SelectionDescription;
/// A community group holds more numbers than a selection can take; whoever runs the report clears it.
extern bool GroupLimitExceeded;
/// The parameters of the report differ from the whole project.
extern bool FilterActive;
