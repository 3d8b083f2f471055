#include "stats/GroupFigures.h"

#include "stats/FigureEngine.h"
#include "stats/GroupQueries.h"
#include "stats/ProjectFigures.h"

using namespace projectFigures;

void makeGroupGeography(GroupAreas areas) {
    const std::string area = "[" + groupAreaColumn(areas) + "]";
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
    dropWorkingTable(table_);
    execute(groupedCallsQuery(areas_, selection.where, " INTO " + table_) +
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
    dropWorkingTable(table);
    execute(groupCallersQuery(areas_, kind, true, where, " INTO " + table));
    execute("INSERT INTO " + table + " ( CallingNo, GroupName ) " + groupCallersQuery(areas_, kind, false, where));
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
