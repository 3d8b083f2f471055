#pragma once

#include <string>

/// Adds to TblTeleItem of gdbProject the columns PayPhone and TotalAnswerTime where they are missing, fills the latter,
/// and then opens the project anew. All of it happens or nothing, so that a crash leaves no unfilled column behind.
/// Failures are logged.
void UpgradeTeleItemTable(const std::string& path, const std::string& password);

/// Fills TotalAnswerTime from the other times of each call: with one leg or none the answer time, with several the
/// whole duration less the first leg. Returns 0, or -1 where a statement failed (logged).
int UpdateTotalAnswerTime();
