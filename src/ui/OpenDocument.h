#pragma once

#include <functional>
#include <string>

/// A path for a new document, "<name>.<ending>" in the user's folder of documents, with a number behind the name where
/// there is one already. Where that folder cannot be had, in that of temporary files.
std::string newDocumentPath(const std::string& name, const std::string& ending);

/// Opens a document with the program that the desktop has for it; where there is none, tells the user where it is.
void openDocument(const std::string& path);

/// Runs `step`; an error is logged under gsCurrentProc and shown to the user.
void logAndTell(const std::function<void()>& step);

/// What opens a document, in place of the desktop's: given a path, whether it did. For tests; an empty function returns
/// to the desktop.
void setDocumentOpener(std::function<bool(const std::string& path)> opener);
