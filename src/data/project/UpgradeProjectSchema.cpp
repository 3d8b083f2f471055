#include "data/project/UpgradeProjectSchema.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "data/project/FieldExists.h"
#include "data/schema/Vocabulary.h"
#include "data/types/DatabaseError.h"

namespace {

constexpr std::string_view upgradedTable = "TblProjectInfo";

/// The table's definition in the template. Throws DatabaseError where there is no template or no such table.
TableDef readTemplate() {
    const std::string path = joinPath(gPaths ? gPaths->SystemDataPath : std::string(), "CSProject.bak");
    const auto file = defaultWorkspace()->openDatabase(path, Workspace::Access::ReadOnly, ProjectConnect);
    const TableDef* found = file->tableDefs().find(upgradedTable);
    if (!found)
        throw DatabaseError(3265, "The template '" + path + "' has no table '" + std::string(upgradedTable) + "'");
    return *found;
}

void addMissingFields(const TableDef& definition, Database& project) {
    for (const Field& field : definition.fields) {
        if (FieldExists("[" + field.name + "]", definition.name, project))
            continue;
        logAndGoOn([&] {
            project.tableDefs().refresh();
            project.tableDefs().appendField(definition.name, field);
        });
    }
}

} // namespace

void UpgradeProjectSchema() {
    gsCurrentProc = "ModUtilities_UpgradeProjectSchema";
    TableDef definition;
    if (!logAndGoOn([&] { definition = readTemplate(); })) {
        showMessage("Please check that you have the latest support files.");
        return;
    }
    logAndGoOn([&] {
        Database& project = projectDatabase();
        if (!definition.isAttached() && !definition.isSystem()) {
            if (FieldExists("*", definition.name, project))
                addMissingFields(definition, project);
            else
                CopyTableDefinition(definition, project);
        }
        project.tableDefs().refresh();
    });
}
