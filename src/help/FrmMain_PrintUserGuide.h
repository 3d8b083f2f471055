#pragma once

#include <functional>
#include <string>
#include <vector>

/// The ways to paper. Tests bring their own.
struct GuidePrinting {
    /// Prints a document through a word processor; false where there is none. Empty: this platform has none.
    std::function<bool(const std::string& path)> document;
    /// Prints pages of lines on the default printer.
    std::function<void(const std::vector<std::vector<std::string>>& pages)> text;
};

/// Prints the user guide of the application folder: through a word processor where there is one, else, with the user's
/// consent, as plain text. Errors are logged and shown.
void FrmMain_PrintUserGuide();
void FrmMain_PrintUserGuide(const GuidePrinting& printing);

/// Saves a copy of the user guide under a name that the user gives. Errors are logged and shown.
void saveUserGuide();
/// The same to a path that is known. Throws RuntimeError 75, naming the path, where it cannot be written.
void saveUserGuideAs(const std::string& path);

/// The lines of a text file on pages: a page ends once it has more than 80.
std::vector<std::vector<std::string>> pagesOfFile(const std::string& path);
