#include "core/cPathControl.h"

#include "core/ReplaceFile.h"
#include "core/RuntimeError.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <system_error>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace {

constexpr const char* productFolder = "Callscope";
constexpr long pathFileAccessError = 75;

struct PathKey {
    std::string_view key;
    std::string cPathControl::*property;
};

/// The keys of Paths.txt, in the order of its lines.
constexpr std::array<PathKey, 5> pathKeys{{{"AppFolder", &cPathControl::ApplicationDataPath},
                                           {"ProjectFolder", &cPathControl::ProjectDataPath},
                                           {"BackupFolder", &cPathControl::BackupFolderPath},
                                           {"SystemFolder", &cPathControl::ApplicationRootPath},
                                           {"AccountFolder", &cPathControl::AccountDataPath}}};

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isFolder(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

/// A folder as the properties hold it: the platform's separators, none at the end (a root keeps its own).
std::string folderText(std::string_view text) {
    std::filesystem::path folder = toPath(text).make_preferred();
    if (!folder.has_filename() && folder != folder.root_path())
        folder = folder.parent_path();
    return toText(folder);
}

std::string environmentText(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

#ifndef _WIN32
std::string userDataHome() {
    if (const std::string home = environmentText("XDG_DATA_HOME"); home.starts_with('/'))
        return folderText(home);
    return joinPath(environmentText("HOME"), ".local/share");
}
#endif

} // namespace

cPathControl::cPathControl(const std::string& programFolder, const std::string& commonDataFolder)
    : commonDataFolder_(commonDataFolder.empty() ? commonApplicationDataFolder() : folderText(commonDataFolder)) {
    SystemDataPath = joinPath(joinPath(commonDataFolder_, productFolder), "System");
    const std::filesystem::path file = toPath(joinPath(programFolder, "Paths.txt"));
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        createDefaults(file, programFolder);
    read(file);
}

std::string cPathControl::GetDefaultDataPath() const {
    return isFolder(toPath(commonDataFolder_)) ? joinPath(commonDataFolder_, productFolder) : std::string();
}

void cPathControl::createDefaults(const std::filesystem::path& file, const std::string& programFolder) const {
    const std::string data = GetDefaultDataPath();
    cPathControl defaults(*this);
    defaults.ApplicationDataPath = data;
    defaults.ProjectDataPath = joinPath(data, "Projects");
    defaults.BackupFolderPath = joinPath(data, "Backup");
    defaults.ApplicationRootPath = folderText(programFolder);
    defaults.AccountDataPath = joinPath(data, "Account");
    replaceFile(toText(file), defaults.settingsText());
}

std::string cPathControl::settingsText() const {
    std::string text;
    for (const PathKey& known : pathKeys)
        text.append(known.key).append("=").append(this->*known.property).append("\n");
    return text;
}

void cPathControl::read(const std::filesystem::path& file) {
    std::ifstream in(file);
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF"; // text editors put it there
    std::string line;
    while (std::getline(in, line)) {
        if (line.starts_with(byteOrderMark))
            line.erase(0, byteOrderMark.size());
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos)
            continue;
        const std::string_view key = trimmed(std::string_view(line).substr(0, equals));
        for (const PathKey& known : pathKeys)
            if (key == known.key)
                this->*known.property = folderText(trimmed(std::string_view(line).substr(equals + 1)));
    }
    if (!in.eof())
        throw RuntimeError(pathFileAccessError, "Path/File access error: cannot read " + toText(file));
}

std::string commonApplicationDataFolder() {
#ifdef _WIN32
    return folderText(environmentText("ProgramData"));
#else
    const std::string machine = "/var/lib";
    if (isFolder(toPath(joinPath(machine, productFolder))) || access(machine.c_str(), W_OK) == 0)
        return machine;
    return userDataHome();
#endif
}

std::string portableSystemFolder(std::string_view pathsFolder) {
    const std::string folder = joinPath(folderText(pathsFolder), "system");
    return isFolder(toPath(folder)) ? folder : std::string();
}

std::filesystem::path toPath(std::string_view utf8) {
    std::u8string text(utf8.begin(), utf8.end());
    if constexpr (std::filesystem::path::preferred_separator == '/')
        for (char8_t& c : text)
            if (c == u8'\\')
                c = u8'/';
    return std::filesystem::path(text);
}

std::string toText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

std::string joinPath(std::string_view folder, std::string_view name) {
    constexpr std::string_view separators = "/\\";
    while (!folder.empty() && separators.find(folder.back()) != std::string_view::npos)
        folder.remove_suffix(1);
    while (!name.empty() && separators.find(name.front()) != std::string_view::npos)
        name.remove_prefix(1);
    std::string joined(folder);
    joined += static_cast<char>(std::filesystem::path::preferred_separator);
    joined += name;
    return joined;
}
