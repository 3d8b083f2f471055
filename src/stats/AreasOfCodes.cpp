#include "stats/AreasOfCodes.h"

#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "data/types/Value.h"

#include <map>
#include <unordered_map>

namespace {

/// The order of SQL: null first, then by name.
struct ByName {
    bool operator()(const AreaName& a, const AreaName& b) const {
        return a && b ? compareText(*a, *b) < 0 : !a && b.has_value();
    }
};

AreaName nameOf(const Value& value) {
    return value.isNull() ? AreaName() : AreaName(value.asText());
}

} // namespace

void expectText(Database& project, const std::string& table, const std::vector<std::string>& columns) {
    const TableDef* definition = project.tableDefs().find(table);
    for (const std::string& column : columns) {
        const Field* field = definition ? definition->findField(column) : nullptr;
        if (field && !isText(field->type))
            throw DatabaseError(3421,
                                "The column '" + column + "' of '" + table + "' is of another type than expected");
    }
}

AreasOfCodes::AreasOfCodes(Database& project, const std::string& areaColumn, const CallColumns& columns) {
    std::unordered_map<std::string, std::vector<std::uint32_t>> placesByCode;
    std::map<AreaName, std::uint32_t, ByName> areas;
    expectText(project, "TblMappingGIS", {"1141", areaColumn});
    const auto rows = project.openRecordset("SELECT [1141], [" + areaColumn + "] FROM TblMappingGIS");
    for (; !rows->EOF_(); rows->MoveNext()) {
        if (!rows->value(0).isNull())
            placesByCode[foldText(rows->value(0).asText())].push_back(static_cast<std::uint32_t>(spellings.size()));
        spellings.push_back(nameOf(rows->value(1)));
        areas.try_emplace(spellings.back(), 0);
    }
    for (auto& [name, number] : areas) {
        number = static_cast<std::uint32_t>(names.size());
        names.push_back(name);
    }
    boundary.areas = static_cast<std::uint32_t>(names.size());
    for (const Value& code : columns.valuesOf(CallField::Code)) {
        const auto found = code.isNull() ? placesByCode.end() : placesByCode.find(foldText(code.asText()));
        placesOfCode.push_back(found == placesByCode.end() ? std::vector<std::uint32_t>() : found->second);
        boundary.areasOfCode.emplace_back();
        for (const std::uint32_t place : placesOfCode.back())
            boundary.areasOfCode.back().push_back(areas.at(spellings[place]));
    }
}
