#pragma once

#include <string>

/// Raises mapMaxima to the largest values that one period of a statistics table holds, side-panel rows included. Of a
/// customer group table only the account's groups count. Average calls and callers are looked at in the tables of TV
/// regions and postcode districts only. An error is logged; its maximum keeps its value.
void ModData_MaxValues(const std::string& tableName, int period);
