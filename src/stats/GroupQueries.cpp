#include "stats/GroupQueries.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/ProjectFigures.h"

/// Where a call's area stands in the geography. A kind that is not known counts as regions here …
std::string groupAreaColumn(GroupAreas areas) {
    switch (areas) {
    case GroupAreas::PostcodeDistrict:
        return "Postcode";
    case GroupAreas::Csg:
        return "CSG";
    default:
        return "TVArea";
    }
}

/// … and as districts where the areas without calls are added.
std::string columnOfAreasWithoutCalls(GroupAreas areas) {
    return areas == GroupAreas::Unknown ? "Postcode" : groupAreaColumn(areas);
}

std::string callAreasInGroups() {
    std::string list;
    onSystemDatabase([&] {
        const auto rows = systemDatabase().openRecordset(
            "SELECT Reference FROM TblTempGroups WHERE Reference IN ('International', 'Mobile', 'VOIP', 'Other') AND "
            "TallyAccount = " +
            quoted(gsAccount) + " AND (NOT(GroupName IS NULL OR GroupName = ''))");
        for (; !rows->EOF_(); rows->MoveNext())
            list += (list.empty() ? "" : ", ") + quoted(rows->value(0).asText());
    });
    return list;
}

std::string groupedCallsQuery(GroupAreas areas, const std::string& where, std::string_view into) {
    const std::string area = "TblTempGIS." + groupAreaColumn(areas);
    return "SELECT IIF((TblGroups.GroupName = '') or (tblGroups.GroupName IS NULL), " + area +
           ", tblGroups.GroupName) AS GroupName, TblTeleItem.CalledNo, TblTeleItem.AnswerInd, TblTeleItem.Discounted" +
           std::string(into) + " FROM (TblGroups RIGHT JOIN TblTempGIS ON TblGroups.Reference = " + area +
           ") INNER JOIN TblTeleItem ON tbltempgis.[1141] = TblTeleItem.[1141]" +
           (where.empty() ? "" : " WHERE " + where);
}

std::string groupCallersQuery(GroupAreas areas, CallerKind kind, bool named, const std::string& where,
                              std::string_view into) {
    const std::string area = "TblTempGIS." + groupAreaColumn(areas);
    return "SELECT DISTINCT TblTeleItem.CallingNo, " + (named ? std::string("TblGroups.GroupName") : area) +
           std::string(into) +
           " FROM TblGroups INNER JOIN (TblTempGIS INNER JOIN TblTeleItem ON TblTempGIS.[1141] = TblTeleItem.[1141]) "
           "ON TblGroups.Reference = " +
           area + " WHERE (((TblGroups.GroupName)" + (named ? "<>''" : "=''") + ") AND ((TblTeleItem.AnswerInd) " +
           projectFigures::outcomeTest(kind) + ")) " + (where.empty() ? "" : " AND " + where);
}
