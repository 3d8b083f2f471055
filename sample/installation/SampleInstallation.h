#pragma once

#include "sample/geography/Geography.h"
#include "sample/installation/ProjectFile.h"

#include <cstdint>
#include <string>

namespace sample {

struct SampleOptions {
    std::string folder; ///< made where it does not exist
    std::int64_t calls = 100'000;
    std::uint64_t seed = 1;
    bool overwrite = false; ///< whether an installation that is there already may be replaced
};

inline constexpr std::int64_t leastSampleCalls = 1'000;
inline constexpr std::int64_t mostSampleCalls = 10'000'000;

/// Where the parts of the installation lie (full paths), and how much there is of everything.
struct SampleReport {
    std::string applicationFolder; ///< ukmap.mdb, CustomerGroups.mdb, comgroups.mdb
    std::string systemFolder;      ///< UKMap.BAK, CSProject.bak, OstelReportLogo.jpg
    std::string projectFolder;
    std::string systemMapPath;
    std::string customerGroupsPath;
    std::string communityGroupsPath;
    std::string deliveredMapPath;
    std::string projectTemplatePath;
    std::string logoPath;
    std::string projectPath;
    std::string pathsFilePath;

    std::size_t exchangeAreas = 0; ///< the areas with the Republic Of Ireland
    std::size_t csgs = 0;
    std::size_t postcodeDistricts = 0;
    std::size_t tvRegions = 0;
    std::size_t codes = 0; ///< values of [1141]
    ProjectFacts project;
};

/// Makes an invented installation in a folder: app, system, projects and Paths.txt. The same number of calls and seed
/// give the same rows in every table (not the same files: each is encrypted with salt of its own).
///
/// Throws RuntimeError, with the path in its text: 5 for a number of calls out of bounds, 58 where an installation is
/// there and must not be replaced, 75 where the folder cannot be written; DatabaseError for the files. A failure while
/// the files are made leaves what was there before. Any thread, one run per folder at a time.
SampleReport makeSampleInstallation(const SampleOptions& options);

/// The same on a geography that is made already, by makeGeography(options.seed) if the rows shall be the same.
SampleReport makeSampleInstallation(const SampleOptions& options, const Geography& geography);

} // namespace sample
