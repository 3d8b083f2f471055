#include "core/FileNames.h"
#include "core/ReplaceFile.h"
#include "core/RuntimeError.h"
#include "core/WriteLine.h"
#include "core/cPathControl.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr int failed = 1;

constexpr std::array<std::string_view, 6> dataExtensions{"MDB", "TXT", "INI", "LOG", "DAT", "CSV"};

/// Files of the application data folder that the parent product makes anew where it needs them.
constexpr std::array<std::string_view, 8> filesThatStay{"CSTSANDCS.TXT", "TEXT.DAT",    "PATHS.TXT", "CS ERROR.LOG",
                                                        "CALLSCOPE.INI", "NUMBERS.MDB", "NEWS.TXT",  "NEWS.DAT"};

/// Databases of the parent product, which moves them itself.
constexpr std::array<std::string_view, 12> parentDatabases{"ACCOUNTS", "COMGROUPS", "CSPROJECT", "CUSTOMERGROUPS",
                                                           "LOOKUP",   "NUMBERS",   "REPORTS",   "SETTINGS",
                                                           "SYSTEM",   "TARIFFS",   "UKMAP",     "USERS"};

template<std::size_t size>
bool isOneOf(const std::array<std::string_view, size>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::string upperCase(std::string text) {
    for (char& c : text)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return text;
}

int statusOf(const std::error_code& error) {
    return error ? std::max(error.value(), failed) : 0;
}

bool isFolder(const std::string& path) {
    std::error_code error;
    return fs::is_directory(toPath(path), error);
}

bool sameFolder(const std::string& a, const std::string& b) {
    std::error_code error;
    return fs::equivalent(toPath(a), toPath(b), error);
}

/// A folder copied below itself would never come to an end.
bool liesWithin(const std::string& inner, const std::string& outer) {
    std::error_code error;
    const fs::path folder = fs::weakly_canonical(toPath(outer), error);
    fs::path path = fs::weakly_canonical(toPath(inner), error);
    for (; !error && path.has_relative_path(); path = path.parent_path())
        if (path == folder)
            return true;
    return false;
}

int copyOrDelete(const cPathControl& paths, const std::string& file, const std::string& destination, bool deleting) {
    if (!deleting)
        return paths.CopyFile(file, destination);
    std::error_code error;
    fs::remove(toPath(file), error);
    return statusOf(error);
}

/// Keeps the first failure of several steps.
void note(int& status, int step) {
    if (status == 0)
        status = step;
}

} // namespace

bool cPathControl::CanWriteToOstelSuiteAppPath(const std::string& strAppPath) const {
    std::string file = joinPath(strAppPath, "Test.dat");
    std::error_code error;
    for (int i = 1; fs::exists(toPath(file), error); ++i)
        file = joinPath(strAppPath, "Test" + std::to_string(i) + ".dat");
    std::ofstream out(toPath(file));
    out << "Test";
    out.close();
    return out && fs::remove(toPath(file), error);
}

int cPathControl::SavePathSettingsFile() const {
    try {
        replaceFile(joinPath(ApplicationRootPath, "Paths.txt"), settingsText());
    } catch (const RuntimeError&) {
        return failed;
    }
    return 0;
}

std::string cPathControl::GetFileExtension(const std::string& strFilename) const {
    const std::size_t point = strFilename.rfind('.');
    return point == std::string::npos ? std::string() : strFilename.substr(point + 1);
}

int cPathControl::CopyFile(const std::string& Source, const std::string& Destination) const {
    const fs::path from = toPath(Source);
    const fs::path to = isFolder(Destination) ? toPath(Destination) / from.filename() : toPath(Destination);
    std::error_code error;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
    return statusOf(error);
}

int cPathControl::CopyFolder(const std::string& Source, const std::string& Destination) const {
    if (!isFolder(Source) || liesWithin(Destination, Source))
        return failed;
    fs::path from = toPath(Source);
    if (!from.has_filename())
        from = from.parent_path();
    const fs::path to = isFolder(Destination) ? toPath(Destination) / from.filename() : toPath(Destination);
    std::error_code error;
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing, error);
    return statusOf(error);
}

int cPathControl::DeleteFolder(const std::string& strPath) const {
    if (!isFolder(strPath))
        return failed;
    std::error_code error;
    fs::remove_all(toPath(strPath), error);
    return statusOf(error);
}

std::vector<std::string> cPathControl::ListAllFilesInDirectory(const std::string& strPath) const {
    std::vector<std::string> names{std::string()};
    std::error_code error, kind;
    for (fs::directory_iterator entry(toPath(strPath), error), end; !error && entry != end; entry.increment(error))
        if (entry->is_regular_file(kind))
            names.push_back(toText(entry->path().filename()));
    std::sort(names.begin() + 1, names.end());
    return names;
}

int cPathControl::moveApplicationData(const std::string& source, const std::string& destination, bool deleting) const {
    int status = 0;
    for (const std::string& name : ListAllFilesInDirectory(source)) {
        const std::string upper = upperCase(name);
        if (isOneOf(dataExtensions, GetFileExtension(upper)) && !isOneOf(filesThatStay, upper))
            note(status, copyOrDelete(*this, joinPath(source, name), destination, deleting));
    }
    for (const char* name : {"Log", "Archives"}) {
        const std::string folder = fileInFolder(source, name);
        if (isFolder(folder))
            note(status, deleting ? DeleteFolder(folder) : CopyFolder(folder, destination));
    }
    if (fileExists(destination, "LastPath.csv")) {
        try {
            replaceFile(fileInFolder(destination, "LastPath.csv"), WriteLine().text(destination).str() + '\n');
        } catch (const RuntimeError&) {
            note(status, failed);
        }
    }
    return status;
}

int cPathControl::moveDatabases(const std::string& source, const std::string& destination, bool deleting) const {
    int status = 0;
    for (const std::string& name : ListAllFilesInDirectory(source)) {
        const std::string upper = upperCase(name);
        if (upper.ends_with(".MDB") && !isOneOf(parentDatabases, upper.substr(0, upper.size() - 4)))
            note(status, copyOrDelete(*this, joinPath(source, name), destination, deleting));
    }
    if (deleting)
        note(status, DeleteFolder(source));
    return status;
}

int cPathControl::CopyFilesAndFolders(const std::string& Source, const std::string& Destination, int intFolderType,
                                      bool blnDeleteOperation) {
    int status = 0;
    const bool known = intFolderType >= 0 && intFolderType <= 4;
    if (known && !sameFolder(Source, Destination))
        status = intFolderType == 0 ? moveApplicationData(Source, Destination, blnDeleteOperation)
                                    : moveDatabases(Source, Destination, blnDeleteOperation);
    std::string* const properties[] = {&ApplicationDataPath, &ProjectDataPath, &BackupFolderPath, nullptr,
                                       &AccountDataPath};
    if (known && properties[intFolderType])
        *properties[intFolderType] = Destination;
    note(status, SavePathSettingsFile());
    return status;
}
