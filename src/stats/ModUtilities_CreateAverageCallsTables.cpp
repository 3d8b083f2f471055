#include "stats/ModUtilities_CreateAverageCallsTables.h"

#include "core/Progress.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "data/schema/Vocabulary.h"
#include "stats/CurrentProcedure.h"
#include "stats/LinkedCalls.h"
#include "stats/SelectionState.h"

#include <iterator>

namespace {

struct AveragedBoundary {
    std::string averages;   ///< the table in which they are collected, gone afterwards
    std::string averageKey; ///< its area
    std::string dataColumn; ///< the area in the geography
    std::string figures;    ///< the statistics table that takes them
    std::string figuresKey; ///< its area
};

void onSystem(const std::string& statement) {
    onSystemDatabase([&] { systemDatabase().execute(statement); });
}

void makeEmpty(const std::string& table) {
    onSystemDatabase([&] {
        if (!systemDatabase().tableDefs().find(table))
            createVocabularyTable(systemDatabase(), DatabaseKind::SystemMap, table);
    });
    onSystem("DELETE FROM " + table);
}

/// The averages of one boundary as its table takes them; no caller, no average.
void store(const AveragedBoundary& boundary, const std::vector<AreaCallers>& areas) {
    onSystemDatabase([&] {
        WorkspaceTransaction whole(*defaultWorkspace());
        const auto rows = systemDatabase().openRecordset(boundary.averages);
        for (const AreaCallers& area : areas) {
            rows->AddNew();
            rows->set(boundary.averageKey, area.area ? Value(*area.area) : Value());
            rows->set("Average", area.callers > 0
                                     ? Value(static_cast<double>(area.calls) / static_cast<double>(area.callers))
                                     : Value());
            rows->Update();
        }
        whole.commit();
    });
}

/// The linked calls go by the name that a selection knows them by.
void collect(const AveragedBoundary& boundary) {
    const std::string area = "TblGIS_Link." + boundary.dataColumn;
    const std::string areaAndCaller = area + ", TblTeleItem.CallingNo";
    onSystem("INSERT INTO " + boundary.averages + " select " + boundary.dataColumn + " AS " + boundary.averageKey +
             ", (SUM(CountOfCallDate) / Count(CallingNo)) AS Average  from (SELECT " + area + " AS " +
             boundary.dataColumn +
             ", TblTeleItem.CallingNo, COUNT(TblTeleItem.CallDate) AS CountOfCallDate FROM TblGIS_Link INNER JOIN "
             "TblTeleItem_Link AS TblTeleItem ON TblGIS_Link.[1141] = TblTeleItem.[1141] " +
             (SelectionSql.empty() ? "" : " WHERE " + SelectionSql) + " GROUP BY " + areaAndCaller + " ORDER BY " +
             areaAndCaller + ") GROUP BY " + boundary.dataColumn);
}

void copy(const AveragedBoundary& boundary) {
    const std::string column = boundary.figures + ".AverageCalls1";
    onSystem("UPDATE " + boundary.figures + " INNER JOIN " + boundary.averages + " ON " + boundary.figures + "." +
             boundary.figuresKey + " = " + boundary.averages + "." + boundary.averageKey + " SET " + column + " = " +
             boundary.averages + ".Average");
    onSystem("UPDATE " + boundary.figures + " SET AverageCalls1 = 0 where AverageCalls1 IS NULL");
}

} // namespace

void ModUtilities_CreateAverageCallsTables() {
    const CurrentProcedure procedure("ModUtilities_CreateAverageCallsTables");
    const AveragedBoundary boundaries[] = {
        {"tblPostCodeAverageCalls", "PostCode", "PostCode",
         FilterActive ? "TblSelectedDataForPostCodeDistrict" : "TblPostCodeDistrict", "PostCodeDistrict"},
        {"tblTVAverageCalls", "TVRegion", "TVArea", FilterActive ? "TblSelectedDataForTV" : "TblTV", "TVRegion"},
    };
    for (const AveragedBoundary& boundary : boundaries)
        makeEmpty(boundary.averages);
    std::optional<std::vector<std::vector<AreaCallers>>> scanned;
    onSystemDatabase([&] {
        scanned = linkedCallers({boundaries[0].dataColumn, boundaries[1].dataColumn}, SelectionSql);
    });
    for (std::size_t i = 0; i < std::size(boundaries); ++i) {
        if (!scanned)
            collect(boundaries[i]);
        else if (i < scanned->size())
            store(boundaries[i], (*scanned)[i]);
        progress().yield();
    }
    for (const AveragedBoundary& boundary : boundaries) {
        copy(boundary);
        progress().yield();
    }
    for (const AveragedBoundary& boundary : boundaries)
        onSystemDatabase([&] { dropTable(systemDatabase(), boundary.averages); });
}
