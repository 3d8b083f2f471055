#include "map/detail/ExchangeLists.h"

#include "data/project/Databases.h"
#include "data/project/FirstValue.h"

namespace {

struct ListKind {
    std::string_view boundaryType;
    std::string_view heading;
    std::string_view column; ///< of TblMappingGIS
    std::string_view nothing;
};

constexpr ListKind listKinds[] = {
    {"TVRegion", "Exchanges included in this TV Area", "TVArea", "No Exchanges found for this TV Region"},
    {"CSG", "Exchanges included in this CSG", "CSG", "No Exchanges found for this CSG"},
    {"PostcodeDistrict", "Exchanges included in this Post Code", "PostCode", "No Exchanges found for this post code"},
};

constexpr const char* noneInGroup = "No Exchanges found for this post code"; ///< of groups of every kind

std::vector<std::string> firstColumn(const std::string& query) {
    std::vector<std::string> texts;
    const auto rows = projectDatabase().openRecordset(query);
    for (; !rows->EOF_(); rows->MoveNext())
        texts.push_back(rows->value(0).asText());
    return texts;
}

std::string_view columnOf(long baseGeography) {
    return baseGeography == 3 ? "PostCode" : baseGeography == 1 ? "CSG" : "TVArea";
}

} // namespace

bool isCallType(std::string_view name) {
    const std::string upper = upperText(name);
    return upper == "MOBILE" || upper == "INTERNATIONAL" || upper == "VOIP" || upper == "OTHER";
}

void listExchangesOfArea(std::string_view boundaryType, const std::string& name, AreaDetail& detail) {
    for (const ListKind& kind : listKinds) {
        if (kind.boundaryType != boundaryType)
            continue;
        detail.listHeading = kind.heading;
        detail.exchanges = firstColumn("SELECT Exchange FROM TblMappingGIS WHERE " + std::string(kind.column) + " = " +
                                       quoted(name) + " ORDER BY Exchange");
        if (detail.exchanges.empty())
            detail.exchanges.emplace_back(kind.nothing);
    }
}

void listExchangesOfGroup(const std::string& group, long baseGeography, GroupMembersListed members,
                          AreaDetail& detail) {
    if (isCallType(group))
        return;
    // The blank before the last quote is of no account: comparisons ignore it.
    std::string query = "SELECT TblMappingGIS.Exchange FROM TblMappingGIS INNER JOIN TblGroups ON TblMappingGIS." +
                        std::string(columnOf(baseGeography)) +
                        " = TblGroups.Reference WHERE (((TblGroups.GroupName)='" + group + " '))";
    if (members == GroupMembersListed::AreasAndCallTypes)
        query += " Union SELECT UCASE(Reference) FROM TblGroups WHERE (((TblGroups.GroupName)=" + quoted(group) +
                 ")) AND UCASE(Reference) IN ('MOBILE', 'INTERNATIONAL', 'OTHER', 'VOIP')";
    detail.listHeading = "Exchanges included in this Group";
    detail.exchanges = firstColumn(query);
    if (detail.exchanges.empty())
        detail.exchanges.emplace_back(noneInGroup);
}
