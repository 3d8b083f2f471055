#pragma once

#include "map/workbook/Workbook.h"

#include <span>
#include <string>
#include <vector>

class MultiMapSession;

/// What the sheet "Parameters" says of maps: measure, the period of each of them, and the parameters of the selection.
std::vector<ParameterLine> parametersOfMaps(const MultiMapSession& session);

/// Writes a workbook with these lines on a sheet "Parameters" and a picture, the bytes of a PNG file, on a sheet
/// "Maps". Throws RuntimeError 75, naming the path, where it cannot be written.
void writeMultiMapWorkbook(const std::string& path, const std::vector<ParameterLine>& parameters,
                           std::span<const unsigned char> picture);
