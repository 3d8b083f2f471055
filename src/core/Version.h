#pragma once

#include <string>

/// The program's title, as windows and message boxes carry it.
inline constexpr const char* programTitle = "Callscope Mapping";

/// "<major>.<minor, at least 2 digits>.<revision, at least 4 digits>", for example "1.00.0001".
std::string versionText(int major, int minor, int revision);

/// The version of this build, in that form.
std::string programVersion();
