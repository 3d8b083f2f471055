#pragma once

#include "map/workbook/Workbook.h"

#include <vector>

class MultiMapSession;

/// What the workbook of several maps says of them: measure, the period of each, and the parameters of the selection.
std::vector<ParameterLine> parametersOfMaps(const MultiMapSession& session);
