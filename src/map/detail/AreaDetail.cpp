#include "map/detail/AreaDetail.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "map/detail/AreaFigures.h"
#include "map/detail/ExchangeLists.h"
#include "stats/CorrectExchangeName.h"

#include <string_view>

CampaignCosts campaignCosts;

namespace {

/// How an area of a boundary is found and called.
struct AreaKind {
    std::string_view boundaryType;
    std::string_view nameQuery; ///< the entity identifier follows
    std::string_view nameField;
    std::string_view rowTest; ///< left side of the test of the statistics row
    std::string_view keyColumn;
    std::string_view title;
    std::string_view callTypeTitle;
};

constexpr AreaKind areaKinds[] = {
    {"TVRegion", "SELECT * FROM PGN_TV WHERE POLYGONID = ", "Name", "Trim(TVRegion)", "TVRegion",
     "TV Region = ", "TV Region = "},
    {"CSG", "SELECT * FROM PGN_CSG WHERE POLYGONID = ", "Name", "Trim(CSG)", "CSG", "CSG = ", "CSG = "},
    {"Exchange", "SELECT * FROM PGN_ExchangeArea WHERE POLYGONID = ", "Name", "Trim(left(Exchange, 20))", "Exchange",
     "Exchange = ", "Exchange = "},
    {"PostcodeDistrict", "SELECT * FROM PGN_PostCodeDistrict WHERE POLYGONID = ", "Name",
     "Left(Trim(PostCodeDistrict), 20)", "PostCodeDistrict", "Post Code = ", "Postcode District = "},
    {"CustomerGroups", "SELECT * FROM PGN_Groups WHERE POLYGONID = ", "GroupName", "Trim(GroupName)", "GroupName",
     "Customer Group = ", "Customer Group = "},
};

const AreaKind* kindOf(std::string_view boundaryType) {
    for (const AreaKind& kind : areaKinds) {
        if (kind.boundaryType == boundaryType)
            return &kind;
    }
    return nullptr;
}

bool isGroups(const AreaKind& kind) {
    return kind.boundaryType == "CustomerGroups";
}
bool isExchange(const AreaKind& kind) {
    return kind.boundaryType == "Exchange";
}

constexpr const char* inNoGroup = "This area is not included in a Group";
constexpr std::size_t exchangeWidth = 20; ///< characters by which an exchange is found

/// Of the polygon; nothing where there is none.
std::optional<std::string> nameOf(const AreaKind& kind, long entity) {
    const auto rows = systemDatabase().openRecordset(std::string(kind.nameQuery) + std::to_string(entity));
    if (rows->EOF_())
        return std::nullopt;
    return trimmedText(rows->value(kind.nameField).asText());
}

/// Television regions are told apart by one spelling alone.
bool isIreland(const AreaKind& kind, const std::string& name) {
    return kind.boundaryType == "TVRegion" ? name == "Republic of Ireland" : upperText(name) == "REPUBLIC OF IRELAND";
}

std::shared_ptr<Recordset> statisticsRow(const AreaKind& kind, const AreaQuestion& question, const std::string& name) {
    const std::string key = isExchange(kind) ? firstCharacters(name, exchangeWidth) : name;
    return systemDatabase().openRecordset("SELECT * FROM " + question.table + " WHERE " + std::string(kind.rowTest) +
                                          " = " + quoted(key));
}

void describePopulation(const AreaKind& kind, const std::string& name, AreaDetail& detail) {
    const bool region = kind.boundaryType == "TVRegion" && gbTVPopulation;
    const bool district = kind.boundaryType == "PostcodeDistrict" && gbPostCodePopulation;
    if (!region && !district)
        return;
    const auto rows = systemDatabase().openRecordset(
        std::string("SELECT * FROM ") + (region ? "tblTVPopulationDensity" : "tblPostCodePopulationDensity") +
        " WHERE Reference = " + quoted(name));
    if (!rows->EOF_())
        detail.population = "Population: " + rows->value("Population").asText();
}

/// Everything of the detail but its title and its list.
AreaAnswer describe(const AreaKind& kind, const AreaQuestion& question, const std::string& name, const Recordset& row,
                    AreaDetail detail) {
    if (row.EOF_())
        return {.detail = {}, .message = "Details not found"};
    describeFigures(row, question, detail);
    const std::string key = upperText(row.value(kind.keyColumn).asText());
    if (isExchange(kind) && (key == "INTERNATIONAL" || key == "OTHER"))
        detail.lostCallers = detail.answeredCallers = std::nullopt;
    describePopulation(kind, name, detail);
    if (question.campaign)
        detail.campaign = describeCampaign(row, question.dataSet, *question.campaign);
    return {.detail = std::move(detail), .message = {}};
}

} // namespace

AreaAnswer detailOfPolygon(const AreaQuestion& question, long entity) {
    const AreaKind* kind = kindOf(question.boundaryType);
    if (!kind)
        return {};
    std::optional<std::string> name = nameOf(*kind, entity);
    if (isGroups(*kind) && (!name || name->empty()))
        return {.detail = {}, .message = inNoGroup};
    if (!name || isIreland(*kind, *name))
        return {};
    if (isExchange(*kind))
        name = CorrectExchangeName(*name);
    const auto row = statisticsRow(*kind, question, *name);
    AreaDetail detail;
    detail.title = std::string(kind->title) + *name;
    if (isGroups(*kind))
        listExchangesOfGroup(*name, question.groupBaseGeography, GroupMembersListed::Areas, detail);
    else if (row->EOF_() || !isCallType(row->value(kind->keyColumn).asText()))
        listExchangesOfArea(question.boundaryType, *name, detail);
    return describe(*kind, question, *name, *row, std::move(detail));
}

AreaAnswer detailOfCallType(const AreaQuestion& question, const std::string& callType) {
    const AreaKind* kind = kindOf(question.boundaryType);
    if (!kind)
        return {};
    std::string name = callType;
    AreaDetail detail;
    if (isGroups(*kind)) {
        const auto groups = systemDatabase().openRecordset(
            "SELECT * FROM TblGroup_Link WHERE Reference = " + quoted(callType) +
            " AND TallyAccount = " + quoted(gsAccount) + " AND (GroupName <> '' AND GroupName IS NOT NULL)");
        if (groups->EOF_())
            return {.detail = {}, .message = inNoGroup};
        name = trimmedText(groups->value("GroupName").asText());
        listExchangesOfGroup(name, question.groupBaseGeography, GroupMembersListed::AreasAndCallTypes, detail);
    }
    detail.title = std::string(kind->callTypeTitle) + name;
    const auto row = statisticsRow(*kind, question, name);
    return describe(*kind, question, name, *row, std::move(detail));
}
