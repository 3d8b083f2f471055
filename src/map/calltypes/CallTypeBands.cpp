#include "map/calltypes/CallTypeBands.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"

#include <utility>

namespace {

constexpr std::pair<std::string_view, std::string_view> keyColumns[] = {
    {"TblSelectedDataForTV", "TVRegion"},
    {"TblTV", "TVRegion"},
    {"tblTVByPopulation", "TVRegion"},
    {"TblAnimatedTV1", "TVRegion"},
    {"TblAnimatedTV2", "TVRegion"},
    {"TblSelectedDataForCSG", "CSG"},
    {"TblCSG", "CSG"},
    {"TblSelectedDataForExchangeArea", "Exchange"},
    {"TblExchangeArea", "Exchange"},
    {"TblSelectedDataForPostCodeDistrict", "PostCodeDistrict"},
    {"TblPostCodeDistrict", "PostCodeDistrict"},
    {"TblAnimatedPostCodeDistrict1", "PostCodeDistrict"},
    {"TblAnimatedPostCodeDistrict2", "PostCodeDistrict"},
    {"TblCustomerGroups", "GroupName"},
};

constexpr std::string_view groupsTable = "TblCustomerGroups";

CallTypeBars whiteBars() {
    return {{{"Mobile", {}, {}}, {"International", {}, {}}, {"VOIP", {}, {}}, {"Other", {}, {}}}};
}

std::optional<std::size_t> bandOfFigure(const Value& value, const std::vector<std::string>& breaks) {
    return value.isNull() ? std::nullopt : bandOf(static_cast<long>(value.asLong()), breaks);
}

/// Of at most twenty characters; a longer one ends in "...".
std::string shortened(const std::string& groupName) {
    constexpr std::size_t width = 20;
    const std::string start = firstCharacters(groupName, width);
    return start == groupName ? groupName : start + "...";
}

void describeGroup(CallTypeBar& bar, const std::string& column, const std::vector<std::string>& breaks) {
    const auto group =
        firstValue(systemDatabase(), "SELECT GroupName FROM TblGroup_Link WHERE UCASE(Reference) = " +
                                         quoted(upperText(bar.name)) + " AND TallyAccount = " + quoted(gsAccount));
    const std::string name = group ? group->asText() : std::string();
    bar.groupLabel = name.empty() ? "(None)" : shortened(name);
    if (name.empty())
        return;
    const auto value = firstValue(systemDatabase(), "SELECT " + column + " FROM " + std::string(groupsTable) +
                                                        " WHERE GroupName = " + quoted(name));
    if (value)
        bar.band = bandOfFigure(*value, breaks);
}

} // namespace

std::optional<std::size_t> bandOf(long value, const std::vector<std::string>& breaks) {
    if (breaks.empty())
        return std::nullopt;
    const auto number = static_cast<double>(value);
    const std::size_t last = breaks.size();
    if (number >= Value(breaks.back()).asDouble())
        return last;
    if (number <= Value(breaks.front()).asDouble())
        return 0;
    for (std::size_t at = 0; at + 1 < last; ++at) {
        if (number >= Value(breaks[at]).asDouble() && number < Value(breaks[at + 1]).asDouble())
            return at + 1;
    }
    return std::nullopt;
}

std::string_view keyColumnOf(std::string_view statisticsTable) {
    for (const auto& [table, column] : keyColumns) {
        if (equalText(table, statisticsTable))
            return column;
    }
    return {};
}

CallTypeBars callTypeBars(const std::string& statisticsTable, const std::string& column,
                          const std::vector<std::string>& breaks) {
    CallTypeBars bars = whiteBars();
    const std::string key(keyColumnOf(statisticsTable));
    if (key.empty())
        return bars;
    const auto rows =
        systemDatabase().openRecordset("SELECT " + key + ", " + column + " FROM " + statisticsTable + " WHERE " + key +
                                       " IN ('Mobile', 'International', 'VOIP', 'Other')");
    for (; !rows->EOF_(); rows->MoveNext()) {
        for (CallTypeBar& bar : bars) {
            if (equalText(bar.name, rows->value(0).asText()))
                bar.band = bandOfFigure(rows->value(1), breaks);
        }
    }
    return bars;
}

CallTypeBars callTypeBarsOfGroups(const std::string& column, const std::vector<std::string>& breaks) {
    CallTypeBars bars = whiteBars();
    for (CallTypeBar& bar : bars)
        describeGroup(bar, column, breaks);
    return bars;
}
