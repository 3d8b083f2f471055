#pragma once

#include <string>

/// Brings the working system map database up to the delivered one. `line` is set to the number of the step at work, for
/// the log. False where the new file could not be stamped with its date (logged). Throws RuntimeError and
/// std::filesystem errors. Unless it ends well, the working copy is as it was; a half-made UKMap.upd may stay and is
/// made anew next time.
bool updateSystemMap(const std::string& systemDataPath, const std::string& applicationDataPath, int& line);
