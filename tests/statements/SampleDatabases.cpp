#include "tests/statements/SampleDatabases.h"

#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/project/CreateLinkTables.h"
#include "data/project/Databases.h"
#include "data/schema/Vocabulary.h"
#include "sample/installation/SampleInstallation.h"

#include <fstream>
#include <stdexcept>

namespace {

void runFile(Database& database, const std::string& path) {
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    WorkspaceTransaction transaction(*database.workspace());
    std::string statement;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("--"))
            continue;
        if (!line.empty()) {
            statement += (statement.empty() ? "" : "\n") + line;
            continue;
        }
        if (!statement.empty())
            database.execute(statement);
        statement.clear();
    }
    if (!statement.empty())
        database.execute(statement);
    transaction.commit();
}

} // namespace

SampleDatabases& SampleDatabases::shared() {
    static SampleDatabases databases;
    return databases;
}

SampleDatabases::SampleDatabases() {
    const sample::SampleReport report =
        sample::makeSampleInstallation({.folder = folder_.text(), .calls = 20'000, .seed = 1});
    gPaths = std::make_shared<cPathControl>(report.applicationFolder, report.applicationFolder);
    gPaths->ApplicationDataPath = report.applicationFolder;
    gPaths->SystemDataPath = report.systemFolder;
    gsSystemDBPath = report.systemMapPath;
    gsProjectPath = report.projectPath;
    gsAccount = "SAMPLE01";
    reopenSystemDatabase();
    reopenProject();
    openCustomerGroups();
    if (ModUtilities_CreateLinkTables() != 0)
        throw std::runtime_error("the sample project cannot be linked");
    databases_ = {{"project", gdbProject},
                  {"system", gdbSystem},
                  {"groups", gdbCustomerGroups},
                  {"delivered", defaultWorkspace()->openDatabase(report.deliveredMapPath, Workspace::Access::Shared,
                                                                 SystemMapConnect)}};
    runFile(*gdbSystem, std::string(CALLSCOPE_STATEMENTS) + "/fixture.sql");
}

std::string SampleDatabases::withPaths(std::string text) const {
    for (const auto& [name, database] : databases_) {
        const std::string mark = "{" + name + "}";
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
            text.replace(at, mark.size(), database->name());
    }
    return text;
}

void SampleDatabases::attach(Database& to, const std::string& link, const std::string& table,
                             const std::string& from) const {
    TableDef definition = to.createTableDef(link);
    definition.sourceTableName = table;
    definition.connect = "MS Access;DATABASE=" + database(from).name();
    if (from == "project")
        definition.connect += ";PWD=" + std::string(ProjectPassword);
    if (from == "system" || from == "delivered")
        definition.connect += ";PWD=" + std::string(SystemMapPassword);
    to.tableDefs().append(definition);
}
