#pragma once

#include <string>

/// Makes the font of a file known to this process; it is forgotten at its end. False where there is no such file or it
/// is no font.
bool addFontResource(const std::string& path);

/// Gives gsFontName, 10 points, to all windows. "Calibri" falls to Carlito, which has the same measures, where it is
/// missing.
void applyInterfaceFont();
