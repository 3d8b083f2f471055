#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

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

    // File helpers. None of them throws; a status is 0 where all went well.

    /// Whether a file can be made in the folder. What lies there stays untouched.
    bool CanWriteToOstelSuiteAppPath(const std::string& strAppPath) const;
    /// One half of moving a data folder: copies what belongs to the move, or, once that is done, deletes it at its old
    /// place. Then points the folder's property to `Destination` and saves the settings. Folder types: 0 application
    /// data, 1 projects, 2 backups, 3 the installation, which keeps its property, 4 accounts; any other type saves the
    /// settings only. Deletes nothing where both folders are the same. Status of the first step that failed.
    int CopyFilesAndFolders(const std::string& Source, const std::string& Destination, int intFolderType,
                            bool blnDeleteOperation);
    /// Writes Paths.txt of ApplicationRootPath anew. Status.
    int SavePathSettingsFile() const;
    /// The text behind the last "."; empty where there is none.
    std::string GetFileExtension(const std::string& strFilename) const;
    /// Copies a file to a file or into a folder, over one of the same name. Status.
    int CopyFile(const std::string& Source, const std::string& Destination) const;
    /// Copies a folder with all that it holds: into `Destination` where that exists, else under its name. Status.
    int CopyFolder(const std::string& Source, const std::string& Destination) const;
    /// Deletes a folder with all that it holds; one that is not there is a failure. Status.
    int DeleteFolder(const std::string& strPath) const;
    /// The names of the folder's plain files in the order of the alphabet, behind one empty element at index 0.
    std::vector<std::string> ListAllFilesInDirectory(const std::string& strPath) const;

private:
    int moveApplicationData(const std::string& source, const std::string& destination, bool deleting) const;
    int moveDatabases(const std::string& source, const std::string& destination, bool deleting) const;
    std::string settingsText() const;
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
