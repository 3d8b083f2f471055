#pragma once

#include <string>
#include <string_view>
#include <vector>

/// CallHistory.csv keeps the recent projects, one double-quoted text a line: first "More files ..", then up to ten full
/// paths, the latest first.
namespace CallHistory {

inline constexpr std::string_view fileName = "CallHistory.csv";
inline constexpr std::string_view moreFiles = "More files ..";
inline constexpr int mostRows = 10;  ///< rows that the list shows, "More files .." among them
inline constexpr int mostPaths = 10; ///< paths that the file keeps

/// The lines of the file without quotes, at most mostRows. Without a file, or with one that cannot be read, "More files
/// .." alone.
std::vector<std::string> readRows(const std::string& file);

/// How a row shows a path of more than 30 characters: its first three, "..", and what follows the last separator but
/// one. "C:\Data\Projects\Customer\March.mdb" shows as "C:\..Customer\March.mdb". Others show as they are.
std::string shortened(std::string_view path);

/// The history with `project` at its head: "More files ..", then `project` unless it is empty, then the paths of
/// `rows` without it, without blank rows and without "More files ..", at most mostPaths paths in all.
std::vector<std::string> withLatest(const std::string& project, const std::vector<std::string>& rows);

/// The name under which windows show a project: its path before the first ".", behind the last separator before that.
std::string shortName(std::string_view path);

} // namespace CallHistory

/// Puts the open project (gsProjectPath) at the head of the history file. Logs a fault and goes on; the file is then as
/// it was.
void ModUtilities_SaveHistory();

/// The rows of the list of recent projects, in the order of the file, with whole paths. Makes the file first where
/// there is none.
std::vector<std::string> ModUtilities_ReadHistory();
