#include "groups/shapes/LabelStatements.h"

#include "core/ModDeclarations.h"
#include "data/project/FirstValue.h"

std::string selectMembers(const std::string& shapeTable) {
    return "SELECT TblGroup_Link.GroupName, TblGroup_Link.Reference, " + shapeTable +
           ".* FROM TblGroup_Link INNER JOIN " + shapeTable + " ON TblGroup_Link.Reference = " + shapeTable +
           ".NAME where tallyaccount = " + quoted(gsAccount);
}

std::int32_t wholeUnits(const Recordset& rows, std::string_view column) {
    return Value(rows.value(column).asDouble()).asLong();
}

std::int32_t middle(std::int32_t low, std::int32_t high) {
    const double from = low;
    return Value((high - from) / 2.0 + from).asLong();
}
