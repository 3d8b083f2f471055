#include "data/project/Databases.h"

#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/schema/Vocabulary.h"
#include "data/types/DatabaseError.h"

namespace {

std::string applicationFile(std::string_view name) {
    return joinPath(gPaths ? gPaths->ApplicationDataPath : std::string(), name);
}

Database& openHandle(const std::shared_ptr<Database>& handle) {
    if (!handle || !handle->isOpen())
        throw DatabaseError(3420, "Object invalid or no longer set");
    return *handle;
}

} // namespace

void reopenSystemDatabase() {
    gdbSystem = defaultWorkspace()->openDatabase(gsSystemDBPath, Workspace::Access::Shared, SystemMapConnect);
}

void reopenProject() {
    gdbProject = defaultWorkspace()->openDatabase(gsProjectPath, Workspace::Access::Shared, ProjectConnect);
}

std::string customerGroupsPath() {
    return applicationFile("CustomerGroups.mdb");
}

std::string customerGroupsConnect() {
    return "MS Access;DATABASE=" + customerGroupsPath();
}

void openCustomerGroups() {
    gdbCustomerGroups =
        defaultWorkspace()->openDatabase(customerGroupsPath(), Workspace::Access::Shared, ProjectConnect);
}

void openCommunityGroups() {
    gdbCommunityGroups =
        defaultWorkspace()->openDatabase(applicationFile("comgroups.mdb"), Workspace::Access::Shared, ProjectConnect);
}

Database& systemDatabase() {
    return openHandle(gdbSystem);
}
Database& projectDatabase() {
    return openHandle(gdbProject);
}

Database& customerGroupsDatabase() {
    if (!gdbCustomerGroups || !gdbCustomerGroups->isOpen())
        openCustomerGroups();
    return *gdbCustomerGroups;
}

void attachTable(Database& database, std::string_view link, std::string_view source, std::string connect) {
    TableDef definition = database.createTableDef(std::string(link));
    definition.sourceTableName = source;
    definition.connect = std::move(connect);
    database.tableDefs().append(definition);
}

void dropTable(Database& database, std::string_view table) {
    database.tableDefs().refresh();
    if (database.tableDefs().find(table))
        database.tableDefs().remove(table);
}

std::string projectLinkConnect(const Database& database) {
    return "MS Access;DATABASE=" + database.name() + ";PWD=" + std::string(ProjectPassword);
}
