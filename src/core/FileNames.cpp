#include "core/FileNames.h"

#include "core/cPathControl.h"

#include <algorithm>
#include <system_error>

namespace {

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerAscii(x) == lowerAscii(y); });
}

/// In the order of the alphabet, so that the answer does not depend on the order of the directory.
std::string firstOtherSpelling(std::string_view folder, std::string_view name) {
    std::string found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(toPath(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string candidate = toText(entry->path().filename());
        if (sameName(candidate, name) && (found.empty() || candidate < found))
            found = candidate;
    }
    return found;
}

} // namespace

std::string fileInFolder(std::string_view folder, std::string_view name) {
    std::string path = joinPath(folder, name);
    std::error_code error;
    if (std::filesystem::exists(toPath(path), error))
        return path;
    const std::string other = firstOtherSpelling(folder, name);
    return other.empty() ? path : joinPath(folder, other);
}

bool fileExists(std::string_view folder, std::string_view name) {
    std::error_code error;
    return std::filesystem::is_regular_file(toPath(fileInFolder(folder, name)), error);
}

bool FileExistsInFolder(std::string_view path) {
    const std::size_t separator = path.find_last_of("/\\");
    if (path.empty() || separator == path.size() - 1)
        return false;
    if (separator == std::string_view::npos)
        return fileExists(".", path);
    return fileExists(path.substr(0, separator + 1), path.substr(separator + 1));
}
