#pragma once

#include <string>

/// Writes the user guide into a folder: CallscopeMapping.pdf, and CallscopeMapping.txt with lines of at most 78
/// characters. Files of these names are replaced. Needs a QGuiApplication. Throws RuntimeError 75 naming the file.
void writeGuideFiles(const std::string& folder);
