#include "groups/shapes/LabelStatements.h"

#include "core/ModDeclarations.h"
#include "data/project/FirstValue.h"

std::string joinMembers(const std::string& members, const std::string& shapeTable) {
    std::string columns = members + ".GroupName, " + members + ".Reference";
    // The vertices stay in the table: they are most of it, and would go through every sort.
    for (const char* column : {"BOUNDLOWX", "BOUNDLOWY", "BOUNDUPPX", "BOUNDUPPY", "CENTERY"})
        columns += ", " + shapeTable + "." + column;
    return "SELECT " + columns + " FROM " + members + " INNER JOIN " + shapeTable + " ON " + members +
           ".Reference = " + shapeTable + ".NAME";
}

std::string selectMembers(const std::string& shapeTable) {
    return joinMembers("TblGroup_Link", shapeTable) + " where tallyaccount = " + quoted(gsAccount);
}

std::int32_t wholeUnits(const Recordset& rows, std::string_view column) {
    return Value(rows.value(column).asDouble()).asLong();
}

std::int32_t middle(std::int32_t low, std::int32_t high) {
    const double from = low;
    return Value((high - from) / 2.0 + from).asLong();
}
