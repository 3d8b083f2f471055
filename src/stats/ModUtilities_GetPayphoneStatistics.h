#pragma once

#include <string>

/// The figure `name` ("TotalCalls", "Cost", … as the measures of an area) of the selected calls that came from pay
/// telephones; 0 where there are none. Lost and answered callers are counted by calls here. An error, also a name that
/// is no figure, is logged and gives 0.
void ModUtilities_GetPayphoneStatistics(const std::string& name, double& value);
