#include "sample/installation/SampleInstallation.h"

#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "data/engine/Database.h"
#include "data/engine/Workspace.h"
#include "data/schema/Vocabulary.h"
#include "sample/installation/CustomerGroupsFile.h"
#include "sample/installation/ReportLogo.h"
#include "sample/installation/SystemMapFile.h"

#include <array>
#include <filesystem>
#include <fstream>

namespace sample {

namespace {

namespace fs = std::filesystem;

constexpr long invalidArgument = 5;
constexpr long fileAlreadyExists = 58;
constexpr long pathFileAccessError = 75;

/// The files of an installation in the folder `root`.
SampleReport layOut(const std::string& root) {
    SampleReport report;
    report.applicationFolder = joinPath(root, "app");
    report.systemFolder = joinPath(root, "system");
    report.projectFolder = joinPath(root, "projects");
    report.systemMapPath = joinPath(report.applicationFolder, "ukmap.mdb");
    report.customerGroupsPath = joinPath(report.applicationFolder, "CustomerGroups.mdb");
    report.communityGroupsPath = joinPath(report.applicationFolder, "comgroups.mdb");
    report.deliveredMapPath = joinPath(report.systemFolder, "UKMap.BAK");
    report.projectTemplatePath = joinPath(report.systemFolder, "CSProject.bak");
    report.logoPath = joinPath(report.systemFolder, "OstelReportLogo.jpg");
    report.projectPath = joinPath(report.projectFolder, "Sample.mdb");
    report.pathsFilePath = joinPath(root, "Paths.txt");
    return report;
}

/// Every file, in an order in which they can be put in place.
std::array<std::string SampleReport::*, 8> files() {
    return {&SampleReport::customerGroupsPath, &SampleReport::communityGroupsPath, &SampleReport::projectTemplatePath,
            &SampleReport::logoPath,           &SampleReport::projectPath,         &SampleReport::systemMapPath,
            &SampleReport::deliveredMapPath,   &SampleReport::pathsFilePath};
}

/// Where the files are made before they go to their places; removed with all in it at the end, whatever happens.
class Workshop {
public:
    explicit Workshop(const fs::path& folder) : folder_(folder / "sample-in-the-making") {
        fs::remove_all(folder_);
        for (const char* part : {"app", "system", "projects"})
            fs::create_directories(folder_ / part);
    }
    ~Workshop() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    Workshop(const Workshop&) = delete;
    Workshop& operator=(const Workshop&) = delete;

    std::string folder() const { return toText(folder_); }

private:
    fs::path folder_;
};

void checkOptions(const SampleOptions& options, const SampleReport& places) {
    if (options.calls < leastSampleCalls || options.calls > mostSampleCalls)
        throw RuntimeError(invalidArgument, "A sample has " + std::to_string(leastSampleCalls) + " to " +
                                                std::to_string(mostSampleCalls) + " calls, not " +
                                                std::to_string(options.calls));
    if (options.overwrite)
        return;
    for (const auto file : files()) {
        if (fs::exists(toPath(places.*file)))
            throw RuntimeError(fileAlreadyExists, "There is an installation already: " + places.*file);
    }
}

void writePathsFile(const std::string& path, const std::string& root, const SampleReport& places) {
    std::ofstream out(toPath(path), std::ios::binary);
    out << "AppFolder=" << places.applicationFolder << '\n'
        << "ProjectFolder=" << places.projectFolder << '\n'
        << "BackupFolder=" << joinPath(root, "backup") << '\n'
        << "SystemFolder=" << root << '\n'
        << "AccountFolder=" << joinPath(root, "account") << '\n';
    out.close();
    if (!out)
        throw RuntimeError(pathFileAccessError, "Cannot write " + path);
}

void writeLogo(const std::string& path) {
    const auto bytes = reportLogo();
    std::ofstream out(toPath(path), std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out)
        throw RuntimeError(pathFileAccessError, "Cannot write " + path);
}

/// The system map as it would be delivered: without the tables' rows that are the user's own, which an update adds to
/// it.
void writeDeliveredMap(Workspace& workspace, const std::string& systemMap, const std::string& delivered) {
    fs::copy_file(toPath(systemMap), toPath(delivered));
    const auto database = workspace.openDatabase(delivered, Workspace::Access::Shared, SystemMapConnect);
    WorkspaceTransaction transaction(workspace);
    for (const char* table : {"tblTVPopulationDensity", "tblPostCodePopulationDensity", "PGN_GROUPS", "PNT_GROUPS"})
        database->execute(std::string("DELETE * FROM ") + table);
    transaction.commit();
}

/// Makes the files in the workshop, moves them, and ties them together where they lie then.
SampleReport make(const SampleOptions& options, const std::string& root, const Geography& geography) {
    SampleReport report = layOut(root);
    const Workshop workshop(toPath(root));
    const SampleReport made = layOut(workshop.folder());
    const std::vector<ReferenceCode> codes = makeReferenceCodes(geography);
    const auto workspace = Workspace::create();

    writeCustomerGroups(*workspace, made.customerGroupsPath, geography);
    writeCommunityGroups(*workspace, made.communityGroupsPath);
    writeProjectTemplate(*workspace, made.projectTemplatePath);
    writeSystemMap(*workspace, made.systemMapPath, geography, codes);
    report.project = writeProject(*workspace, made.projectPath, geography, codes, options.calls, options.seed);
    writeLogo(made.logoPath);
    writePathsFile(made.pathsFilePath, root, report);

    for (const char* folder : {"app", "system", "projects", "backup", "account"})
        fs::create_directories(toPath(joinPath(root, folder)));
    for (const auto file : files()) {
        if (file == &SampleReport::systemMapPath) {
            // A link wants its source in place.
            linkCustomerGroups(*workspace, made.systemMapPath, report.customerGroupsPath);
            writeDeliveredMap(*workspace, made.systemMapPath, made.deliveredMapPath);
        }
        fs::rename(toPath(made.*file), toPath(report.*file));
    }

    report.exchangeAreas = geography.exchangeAreas.size();
    report.csgs = geography.csgs.size();
    report.postcodeDistricts = geography.postcodeDistricts.size();
    report.tvRegions = geography.tvRegions.size();
    report.codes = codes.size();
    return report;
}

std::string fullPath(const std::string& folder) {
    fs::path path = fs::absolute(toPath(folder)).lexically_normal();
    if (!path.has_filename())
        path = path.parent_path();
    return toText(path);
}

/// Runs a step on the folder; faults of the file system become ours.
template<typename Step>
auto onFolder(const std::string& folder, Step step) {
    try {
        return step();
    } catch (const fs::filesystem_error& error) {
        throw RuntimeError(pathFileAccessError, "Cannot make the sample in " + folder + ": " + error.what());
    }
}

} // namespace

SampleReport makeSampleInstallation(const SampleOptions& options) {
    // Before the seconds that the geography takes.
    onFolder(options.folder, [&] { checkOptions(options, layOut(fullPath(options.folder))); });
    return makeSampleInstallation(options, makeGeography(options.seed));
}

SampleReport makeSampleInstallation(const SampleOptions& options, const Geography& geography) {
    return onFolder(options.folder, [&] {
        const std::string root = fullPath(options.folder);
        checkOptions(options, layOut(root));
        fs::create_directories(toPath(root));
        return make(options, root, geography);
    });
}

} // namespace sample
