#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/StatisticsRun.h"

#include <optional>

namespace {

std::shared_ptr<Recordset> areasOfProject(const BoundaryTraits& boundary) {
    const std::string from(boundary.areasFrom);
    const std::string area = from + "." + std::string(boundary.dataColumn);
    std::shared_ptr<Recordset> areas;
    onSystemDatabase([&] {
        areas = projectDatabase().openRecordset("SELECT DISTINCT " + area + " FROM " + from +
                                                std::string(boundary.areasWhere) + " ORDER BY " + area);
    });
    return areas;
}

std::shared_ptr<Recordset> shapesWithoutRow(const StatisticsRun& run) {
    const std::string name = std::string(run.boundary.shapeTable) + ".Name";
    const std::string area = run.target.name() + "." + run.target.areaColumn();
    std::shared_ptr<Recordset> shapes;
    onSystemDatabase([&] {
        shapes = systemDatabase().openRecordset("SELECT " + name + " FROM " + std::string(run.boundary.shapeTable) +
                                                " LEFT JOIN " + run.target.name() + " ON " + name + " = " + area +
                                                " WHERE ISNULL(" + area + ") ORDER BY " + name);
    });
    return shapes;
}

/// One row for each name of the list, which is in the order of the names: an area may have several shapes.
void addRows(StatisticsRun& run, const std::shared_ptr<Recordset>& names) {
    std::optional<Value> previous;
    for (; names && !names->EOF_(); names->MoveNext()) {
        run.display.position(static_cast<std::size_t>(names->RecordCount()),
                             static_cast<std::size_t>(names->AbsolutePosition()));
        const Value& name = names->value(0);
        if (previous && !name.isNull() && !previous->isNull() && equalText(previous->asText(), name.asText()))
            continue;
        previous = name;
        const bool renamed =
            !name.isNull() && !run.boundary.renamedArea.empty() && equalText(name.asText(), run.boundary.renamedArea);
        onSystemDatabase([&] { run.target.addArea(renamed ? Value(std::string(run.boundary.newName)) : name); });
    }
}

} // namespace

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
    run.display.task(run.boundary.texts.rows);
    if (onSystemDatabase([&] { run.target.read(); }))
        run.target.zeroPeriod();
}

void rebuildRows(StatisticsRun& run) {
    run.display.task(run.boundary.texts.rows);
    onSystemDatabase([&] { systemDatabase().execute("DELETE * FROM " + run.target.name()); });
    if (!onSystemDatabase([&] { run.target.read(); }))
        return;
    addRows(run, areasOfProject(run.boundary));
    if (!run.boundary.shapeTable.empty())
        addRows(run, shapesWithoutRow(run));
}

void keepOrRebuildRows(StatisticsRun& run) {
    if (keepsRows(run))
        zeroRows(run);
    else
        rebuildRows(run);
}
