#include "stats/GroupFigures.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/FigureEngine.h"
#include "stats/ProjectFigures.h"

using namespace projectFigures;

namespace {

/// Where a call's area stands in the geography. A kind that is not known counts as regions here …
std::string areaColumn(GroupAreas areas) {
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
    return areas == GroupAreas::Unknown ? "Postcode" : areaColumn(areas);
}

/// The calls beside the map that the user has put into a group: "'Mobile', 'VOIP'", or nothing.
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

} // namespace

void makeGroupGeography(GroupAreas areas) {
    const std::string area = "[" + areaColumn(areas) + "]";
    const std::string setArea = "UPDATE TblTempGIS SET " + area + " = ";
    dropWorkingTable("TblTempGIS");
    execute("SELECT TblMappingGIS.* INTO TblTempGIS FROM TblMappingGIS");
    execute("ALTER TABLE TblTempGIS Alter Column " + area + " Text(15)");
    execute(setArea + "'International' WHERE [1141] LIKE '.*'");
    // Mobile callers are told by their district whatever the groups are made of.
    execute(setArea + "'Mobile' WHERE [Postcode] ='MOBILE'");
    for (const char* code : {"NO CLI", "OLO", "UNTRACEAB"})
        execute(setArea + "'Other' WHERE [1141] ='" + code + "'");
}

GroupFigures::GroupFigures(std::string table, GroupAreas areas) : table_(std::move(table)), areas_(areas) {}

void GroupFigures::makeSelectedData(const CallSelection& selection) {
    noteUsedFigureEngine(FigureEngine::Statements);
    const std::string area = "TblTempGIS." + areaColumn(areas_);
    dropWorkingTable(table_);
    execute("SELECT IIF((TblGroups.GroupName = '') or (tblGroups.GroupName IS NULL), " + area +
            ", tblGroups.GroupName) AS GroupName, TblTeleItem.CalledNo, TblTeleItem.AnswerInd, TblTeleItem.Discounted "
            "INTO " +
            table_ + " FROM (TblGroups RIGHT JOIN TblTempGIS ON TblGroups.Reference = " + area +
            ") INNER JOIN TblTeleItem ON tbltempgis.[1141] = TblTeleItem.[1141]" +
            (selection.where.empty() ? "" : " WHERE " + selection.where) +
            " ORDER BY TblGroups.GroupName, TblTeleItem.AnswerInd");
    addAreasWithoutCalls();
}

void GroupFigures::addAreasWithoutCalls() {
    const std::string column = columnOfAreasWithoutCalls(areas_);
    const std::string inGroups = callAreasInGroups();
    execute("INSERT INTO " + table_ + " (GroupName)  SELECT DISTINCT " + column + " From TblTempGIS LEFT OUTER JOIN " +
            table_ + " ON TblTempGIS." + column + " = " + table_ + ".GroupName Where GroupName Is Null" +
            (inGroups.empty() ? "" : " AND " + column + " NOT IN (" + inGroups + ")"));
}

void GroupFigures::makeCallers(CallerKind kind, const std::string& where) {
    const std::string table = callersTable(kind);
    const std::string area = "TblTempGIS." + areaColumn(areas_);
    const std::string calls = " FROM TblGroups INNER JOIN (TblTempGIS INNER JOIN TblTeleItem ON TblTempGIS.[1141] = "
                              "TblTeleItem.[1141]) ON TblGroups.Reference = " +
                              area + " WHERE (((TblGroups.GroupName)";
    const std::string condition =
        ") AND ((TblTeleItem.AnswerInd) " + outcomeTest(kind) + ")) " + (where.empty() ? "" : " AND " + where);
    dropWorkingTable(table);
    execute("SELECT DISTINCT TblTeleItem.CallingNo, TblGroups.GroupName INTO " + table + calls + "<>''" + condition);
    execute("INSERT INTO " + table + " ( CallingNo, GroupName ) SELECT DISTINCT TblTeleItem.CallingNo, " + area +
            calls + "=''" + condition);
    if (kind == CallerKind::Lost)
        removeAnsweredFromLost();
}

std::string GroupFigures::fromGroupsOf(const std::string& table) const {
    return " FROM " + table + " INNER JOIN (SELECT DISTINCT GroupName FROM TblGroups) as B ON " + table +
           ".GroupName = B.GroupName";
}

std::vector<CallCount> GroupFigures::callsByArea() {
    const std::string name = table_ + ".GroupName";
    return readCallCounts("SELECT " + name + ", Count(CalledNo) AS CountOfCalledNo, AnswerInd" + fromGroupsOf(table_) +
                          " WHERE " + name + " <> '' GROUP BY " + name + ", AnswerInd ORDER BY " + name);
}

std::vector<MoneySum> GroupFigures::moneyByArea(CallMoney money) {
    const std::string name = table_ + ".GroupName";
    return readMoneySums("SELECT " + name + ", Sum(Discounted) AS SumOfDiscounted" + fromGroupsOf(table_) + " WHERE " +
                         name + " <> '' AND Discounted " + (money == CallMoney::Cost ? ">" : "<") + " 0  GROUP BY " +
                         name + ", AnswerInd ORDER BY " + name);
}

std::vector<CallerCount> GroupFigures::callersByArea(CallerKind kind) {
    const std::string table = callersTable(kind);
    const std::string name = table + ".GroupName";
    return readCallerCounts("SELECT " + name + ", Count(" + name + ") AS CountOfCallers" + fromGroupsOf(table) +
                            " GROUP BY " + name + " ORDER BY " + name);
}

SpecialRowFigures GroupFigures::specialRow(std::string_view /*test*/) {
    return {};
}
std::vector<CallerCount> GroupFigures::mobileAndVoipCallers(CallerKind /*kind*/) {
    return {};
}
