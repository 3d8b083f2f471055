#pragma once

#include <string>
#include <string_view>

/// File names of an installation are told without regard to case (UKMap.BAK and ukmap.bak are one file), on every
/// platform.

/// The path of the file `name` in `folder`: as spelled where that exists, else that of the first file whose name
/// differs in case alone, else as spelled. Never throws; an unreadable folder counts as empty.
std::string fileInFolder(std::string_view folder, std::string_view name);

/// Whether fileInFolder() leads to a plain file.
bool fileExists(std::string_view folder, std::string_view name);

/// Whether the folder of `path` has a plain file of the name behind its last separator. False for an empty path.
bool FileExistsInFolder(std::string_view path);
