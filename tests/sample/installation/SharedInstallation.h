#pragma once

#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/sample/geography/SharedGeography.h"
#include "tests/support/TemporaryFolder.h"

#include <memory>
#include <string>

namespace sample {

/// One installation of 20,000 calls for all tests of the program, made at the first call.
struct SharedInstallation {
    TemporaryFolder folder;
    SampleReport report =
        makeSampleInstallation({.folder = folder.path().string(), .calls = 20'000, .seed = 1}, sharedGeography());
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> project =
        workspace->openDatabase(report.projectPath, Workspace::Access::Shared, ProjectConnect);
    std::shared_ptr<Database> map =
        workspace->openDatabase(report.systemMapPath, Workspace::Access::Shared, SystemMapConnect);
    std::shared_ptr<Database> groups = workspace->openDatabase(report.customerGroupsPath);
};

inline SharedInstallation& sharedInstallation() {
    static SharedInstallation installation;
    return installation;
}

/// The first value that the statement gives.
inline Value ask(const std::shared_ptr<Database>& database, const std::string& statement) {
    return database->openRecordset(statement)->value(0);
}

inline std::int64_t askCount(const std::shared_ptr<Database>& database, const std::string& statement) {
    return ask(database, statement).asInteger();
}

} // namespace sample
