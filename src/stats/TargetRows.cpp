#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/StatisticsRun.h"

bool keepsRows(const StatisticsRun& run) {
    if (run.isMain)
        return false;
    bool keep = true;
    const auto keepIfPositive = [&](const std::string& figure) {
        onSystemDatabase([&] {
            const auto value = firstValue(systemDatabase(), "SELECT " + figure + " FROM " + run.target.name());
            keep = value && !value->isNull() && value->asDouble() > 0;
        });
    };
    if (run.target.period() == 1)
        keepIfPositive("Count(" + run.target.areaColumn() + ")");
    else if (run.target.period() == 2)
        keepIfPositive("Sum(TotalCalls1)");
    return keep;
}

void zeroRows(StatisticsRun& run) {
    if (onSystemDatabase([&] { run.target.read(); }))
        run.target.zeroPeriod();
}

void rebuildRows(StatisticsRun& run) {
    onSystemDatabase([&] { systemDatabase().execute("DELETE * FROM " + run.target.name()); });
    if (!onSystemDatabase([&] { run.target.read(); }))
        return;
    const std::string area = "TblMappingGIS." + std::string(run.boundary.dataColumn);
    std::shared_ptr<Recordset> areas;
    onSystemDatabase([&] {
        areas = projectDatabase().openRecordset("SELECT DISTINCT " + area + " FROM TblMappingGIS ORDER BY " + area);
    });
    for (; areas && !areas->EOF_(); areas->MoveNext()) {
        run.display.position(static_cast<std::size_t>(areas->RecordCount()),
                             static_cast<std::size_t>(areas->AbsolutePosition()));
        onSystemDatabase([&] { run.target.addArea(areas->value(0)); });
    }
}
