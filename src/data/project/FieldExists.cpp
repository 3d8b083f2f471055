#include "data/project/FieldExists.h"

#include "core/LogAndGoOn.h"
#include "core/Prompts.h"

#include <string>

bool FieldExists(std::string_view column, std::string_view table, Database& database) {
    return ignoreErrors([&] {
        database.openRecordset("SELECT TOP 1 " + std::string(column) + " FROM [" + std::string(table) + "]")->Close();
    });
}

void CopyTableDefinition(const TableDef& definition, Database& project) {
    const bool copied = logAndGoOn([&] {
        TableDef copy = project.createTableDef(definition.name);
        copy.fields = definition.fields;
        project.tableDefs().append(copy);
    });
    if (!copied)
        showMessage("Please check that you have the latest support files.");
}
