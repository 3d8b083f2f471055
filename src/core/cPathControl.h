#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// The folders of the installation, read from Paths.txt beside the program file (created there with defaults where it
/// does not exist). Folder texts are UTF-8 without a closing separator. Construction throws RuntimeError on a file
/// fault.
class cPathControl {
public:
    /// `programFolder`: folder of the program file. `commonDataFolder`: the machine-wide data folder; empty lets the
    /// system decide (commonApplicationDataFolder()).
    explicit cPathControl(const std::string& programFolder, const std::string& commonDataFolder = {});

    std::string
        ApplicationDataPath;      ///< key AppFolder: ukmap.mdb, CustomerGroups.mdb, comgroups.mdb, history, error log
    std::string ProjectDataPath;  ///< key ProjectFolder: first folder of the project dialogue
    std::string BackupFolderPath; ///< key BackupFolder
    std::string ApplicationRootPath; ///< key SystemFolder: the installation; the help file
    std::string AccountDataPath;     ///< key AccountFolder
    std::string SystemDataPath;      ///< no key: delivered files (UKMap.BAK, CSProject.bak, fonts, logo)

    /// The common data folder joined with "Callscope", where that folder exists; empty otherwise.
    std::string GetDefaultDataPath() const;

private:
    void createDefaults(const std::filesystem::path& file, const std::string& programFolder) const;
    void read(const std::filesystem::path& file);

    std::string commonDataFolder_;
};

/// The machine-wide data folder: /var/lib where it is writable or already holds Callscope, else the user's data home.
std::string commonApplicationDataFolder();

/// An installation that lies whole in one folder, with its Paths.txt, keeps the delivered files in "system" beside it.
/// That folder, or empty where there is none.
std::string portableSystemFolder(std::string_view pathsFolder);

/// UTF-8 text to a path and back; both kinds of separator are understood on input.
std::filesystem::path toPath(std::string_view utf8);
std::string toText(const std::filesystem::path& path);

/// `folder` and `name` with exactly one separator of the platform between them.
std::string joinPath(std::string_view folder, std::string_view name);
