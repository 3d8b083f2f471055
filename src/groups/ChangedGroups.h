#pragma once

#include <string>
#include <vector>

/// The most groups that an account can have on the map.
inline constexpr int MaxCustomerGroups = 128;

/// What a procedure returns when the user stopped it.
inline constexpr long UserStopped = 32755;

/// Names of the groups whose members have changed since the last save, and one empty element behind them.
extern std::vector<std::string> ChangedGroups;

/// Nothing has changed; whenever groups are loaded.
void ResetChangedGroups();
/// A name that is there already is not added again.
void AddChangedGroup(const std::string& name);
