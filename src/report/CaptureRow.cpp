#include "report/CaptureRow.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "data/project/BoundaryDate.h"
#include "data/project/Databases.h"
#include "data/project/OpenProjectDatabase.h"
#include "data/project/UpdateMappingGISTable.h"
#include "data/schema/Vocabulary.h"
#include "stats/ModData_CreateDataCaptureTable.h"

#include <string_view>

namespace {

constexpr std::string_view everything = "SELECT * FROM TblDataCapture";

bool has(Database& database) {
    database.tableDefs().refresh();
    return database.tableDefs().find("TblDataCapture") != nullptr;
}

void stampSystem() {
    if (!has(systemDatabase()))
        ModData_CreateDataCaptureTable();
    const auto row = systemDatabase().openRecordset(everything);
    if (row->EOF_())
        row->AddNew();
    else
        row->Edit();
    row->set("ProjectName", capturedProjectName());
    row->set("Captured", presentTime());
    for (const char* remembered : {"BoundaryType1", "ProjectMultiMap", "ProjectAnimate"})
        row->set(remembered, Value());
    row->Update();
}

void CreateDataCaptureTable() {
    createVocabularyTable(projectDatabase(), DatabaseKind::Project, "TblDataCapture");
    projectDatabase().close();
    if (!OpenProjectDatabase(gsProjectPath)) {
        showMessage("Unable to open Project Database");
        return;
    }
    if (ModUtilities_UpdateMappingGISTable(projectDatabase()) != 0)
        showMessage("An error occurred updating the Exchange GIS data");
}

bool isSet(const Value& captured) {
    return !captured.isNull() && captured.asDouble() != 0;
}

} // namespace

std::string capturedProjectName() {
    constexpr std::size_t width = 250; // of the column
    return trimmedText(lastCharacters(gsProjectPath, width));
}

void onCaptureRow(const std::function<void(Recordset& row)>& use) {
    logAndGoOn([&] {
        const auto row = systemDatabase().openRecordset(everything);
        if (!row->EOF_())
            use(*row);
    });
}

bool isCaptured() {
    if (!has(projectDatabase()) || !has(systemDatabase()))
        return false;
    const auto project = projectDatabase().openRecordset(everything);
    const auto system = systemDatabase().openRecordset(everything);
    if (project->EOF_() || system->EOF_() || system->value("ProjectName").asText() != capturedProjectName())
        return false;
    const Value& captured = system->value("Captured");
    return isSet(captured) && isSet(project->value("Captured")) &&
           project->value("Captured").asDouble() == captured.asDouble();
}

void recordCapture() {
    stampSystem();
    reopenProject();
    if (!has(projectDatabase()))
        CreateDataCaptureTable();
    projectDatabase().execute("DELETE * FROM TblDataCapture");
    projectDatabase().execute("INSERT INTO [" + gsProjectPath +
                              "].[TblDataCapture] (ProjectName, Captured) SELECT ProjectName, Captured FROM [" +
                              gsSystemDBPath + "].[TblDataCapture]");
}

void forgetCapture() {
    onCaptureRow([](Recordset& row) {
        row.Edit();
        row.set("Captured", Value());
        row.Update();
    });
}

std::optional<MultiMapSettings> capturedMultiMapSettings() {
    std::optional<MultiMapSettings> settings;
    onCaptureRow([&](Recordset& row) {
        if (row.value("ProjectMultiMap").isNull() || row.value("ProjectMultiMap").asText() != capturedProjectName())
            return;
        MultiMapSettings stored;
        stored.boundaryType = row.value("BoundaryType2").asText();
        const Value& maps = row.value("MultiMaps");
        const long count = maps.isNull() ? 0 : maps.asLong();
        stored.ranges.OptPeriods = count == 6 ? 2 : count == 4 ? 1 : 0;
        constexpr const char* columns[] = {"StartDate", "StartTime", "EndDate", "EndTime"};
        for (std::size_t picker = 0; picker < stored.ranges.DTPicker1.size(); ++picker) {
            const std::string slot = std::to_string(picker / 4 + 2);
            if (const Value& value = row.value(columns[picker % 4] + slot); !value.isNull())
                stored.ranges.DTPicker1[picker] = value.asDate();
        }
        settings = stored;
    });
    return settings;
}
