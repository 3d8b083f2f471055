#pragma once

#include <string>

/// Opens a project into gdbProject with the first of the known project passwords that fits, notes that password in
/// gsProjectPassword, and brings the project's tables up to the present layout and version.
///
/// False, without a message, where the file is missing, needs another password or is no database: gdbProject,
/// gsProjectPassword and the file are then as they were.
bool OpenProjectDatabase(const std::string& path);
