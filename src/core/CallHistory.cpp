#include "core/CallHistory.h"

#include "core/FileNames.h"
#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/ReplaceFile.h"
#include "core/RuntimeError.h"
#include "core/WriteLine.h"
#include "core/cPathControl.h"

#include <fstream>

namespace CallHistory {

namespace {

constexpr std::string_view separators = "/\\";
constexpr std::size_t longestWhole = 30; ///< characters, not bytes

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Byte offset behind the first `count` characters.
std::size_t endOfCharacters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    while (at < text.size() && count > 0) {
        ++at;
        while (at < text.size() && continuesCharacter(text[at]))
            ++at;
        --count;
    }
    return at;
}

/// The next line without quotes and line end.
bool readRow(std::istream& in, std::string& row) {
    std::string line;
    if (!std::getline(in, line))
        return false;
    if (line.ends_with('\r'))
        line.pop_back();
    row = StripQuotes(line);
    return true;
}

} // namespace

std::vector<std::string> readRows(const std::string& file) {
    std::vector<std::string> rows;
    std::ifstream in(toPath(file));
    std::string line;
    while (rows.size() < mostRows && readRow(in, line))
        rows.push_back(line);
    if (rows.empty())
        rows.emplace_back(moreFiles);
    return rows;
}

std::vector<std::string> withLatest(const std::string& project, const std::vector<std::string>& rows) {
    std::vector<std::string> history{std::string(moreFiles)};
    if (!project.empty())
        history.push_back(project);
    const std::size_t full = 1 + mostPaths - (project.empty() ? 1 : 0); // the first place is the open project's
    for (const std::string& row : rows)
        if (history.size() < full && row != project && row != moreFiles && !row.empty())
            history.push_back(row);
    return history;
}

std::string shortened(std::string_view path) {
    if (endOfCharacters(path, longestWhole) == path.size())
        return std::string(path);
    // The search for separators begins at the last character but one and ends at the second.
    const std::size_t last = path.find_last_of(separators, path.size() - 2);
    const std::size_t second =
        last == std::string_view::npos || last == 0 ? last : path.find_last_of(separators, last - 1);
    if (second == std::string_view::npos || second == 0)
        return std::string(path);
    return std::string(path.substr(0, endOfCharacters(path, 3))) + ".." + std::string(path.substr(second + 1));
}

std::string shortName(std::string_view path) {
    const std::string_view stem = path.substr(0, path.find('.'));
    const std::size_t separator = stem.find_last_of(separators);
    return std::string(separator == std::string_view::npos ? stem : stem.substr(separator + 1));
}

} // namespace CallHistory

namespace {

constexpr long pathFileAccessError = 75;

std::string historyFile() {
    return fileInFolder(gPaths ? gPaths->ApplicationDataPath : std::string(), CallHistory::fileName);
}

/// All rows of the file; none where there is no file. A file that cannot be read is a fault, for it would be lost.
std::vector<std::string> allRows(const std::string& file) {
    std::vector<std::string> rows;
    std::error_code error;
    if (!std::filesystem::exists(toPath(file), error))
        return rows;
    std::ifstream in(toPath(file));
    std::string row;
    while (CallHistory::readRow(in, row))
        rows.push_back(row);
    if (!in.eof())
        throw RuntimeError(pathFileAccessError, "Path/File access error: cannot read " + file);
    return rows;
}

} // namespace

void ModUtilities_SaveHistory() {
    gsCurrentProc = "ModUtilities_SaveHistory";
    const Hourglass hourglass;
    logAndGoOn([] {
        const std::string file = historyFile();
        std::string lines;
        for (const std::string& row : CallHistory::withLatest(gsProjectPath, allRows(file)))
            lines += WriteLine().text(row).str() + '\n';
        replaceFile(file, lines);
    });
}

std::vector<std::string> ModUtilities_ReadHistory() {
    gsCurrentProc = "ModUtilities_ReadHistory";
    std::error_code error;
    if (!std::filesystem::exists(toPath(historyFile()), error))
        ModUtilities_SaveHistory();
    return CallHistory::readRows(historyFile());
}
