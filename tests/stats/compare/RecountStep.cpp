#include "tests/stats/compare/RecountStep.h"

#include "tests/stats/compare/PlainSelection.h"

int periodsOf(const std::string& table) {
    if (table.find("Animated") != std::string::npos)
        return 5;
    return isOneOf(table, {"TblTV", "TblCSG", "TblSelectedDataForCSG"}) ? 1 : 7;
}

OptionalText areaOfPlace(const ProjectPlace& place, RunBoundary boundary, const std::string& groupKind) {
    switch (boundary) {
    case RunBoundary::Exchange:
        return place.exchange;
    case RunBoundary::Csg:
        return place.csg;
    case RunBoundary::TVRegion:
        return place.tvArea;
    case RunBoundary::PostcodeDistrict:
        return place.postCode;
    case RunBoundary::CustomerGroups:
        break;
    }
    return areaOfGroups(place, groupKind);
}

TableRecount::Step::Step(const RandomRun& itsRun, Table& itsTable, const std::vector<ProjectCall>& calls,
                         const std::vector<ProjectPlace>& places, const std::string& groupKind)
    : run(itsRun), table(itsTable) {
    // Maps of later periods that count everything leave out callers without a place, of regions only.
    const bool placedOnly = run.boundary == RunBoundary::TVRegion && run.period != 1 && !run.parameters &&
                            run.table.find("Animated") == std::string::npos;
    for (const ProjectCall& call : calls) {
        for (const ProjectPlace& place : places) {
            if (!call.code || !same(place.code, *call.code))
                continue;
            const PlacedCall placed{&call, areaOfPlace(place, run.boundary, groupKind)};
            all.push_back(placed);
            if (!canBeRead(run) || (run.parameters && !isSelected(call, *run.parameters)))
                continue;
            ofCallers.push_back(placed);
            if (!placedOnly || !isOneOf(place.code, {"MOBILE", "UNTRACEAB", "OLO", "NO CLI"}))
                selected.push_back(placed);
        }
    }
}

bool TableRecount::Step::isMain() const {
    return isOneOf(run.table, {"TblTV", "TblCSG", "TblExchangeArea", "TblPostCodeDistrict", "TblCustomerGroups"});
}

void TableRecount::Step::addZeroRow(const std::string& area) {
    table.try_emplace(area, Row(static_cast<std::size_t>(periodsOf(run.table)) * 10, 0));
}

void TableRecount::Step::set(const std::string& area, int period, FigureColumn column, std::int64_t value) {
    const auto row = table.find(area);
    if (row != table.end() && period <= periodsOf(run.table))
        row->second[static_cast<std::size_t>((period - 1) * 10 + column)] = value;
}

void TableRecount::Step::add(const std::string& area, FigureColumn column, const CallerCounts& counts) {
    const auto row = table.find(area);
    const auto count = counts.find(area);
    if (row == table.end() || count == counts.end() || run.period > periodsOf(run.table))
        return;
    Figure& figure = row->second[static_cast<std::size_t>((run.period - 1) * 10 + column)];
    if (figure)
        *figure += count->second;
}

void TableRecount::Step::erase(std::initializer_list<const char*> areas) {
    for (const char* area : areas)
        table.erase(area);
}

void TableRecount::Step::sumInto(const std::string& area, const std::function<bool(const std::string&)>& fits,
                                 bool nullWithoutRows) {
    Row sum(static_cast<std::size_t>(periodsOf(run.table)) * 10);
    for (std::size_t column = 0; column < 10; ++column) {
        for (const auto& [name, row] : table) {
            if (fits(name) && row[column])
                sum[column] = sum[column].value_or(0) + *row[column];
        }
        if (!nullWithoutRows && !sum[column])
            sum[column] = 0;
    }
    std::erase_if(table, [&](const auto& row) { return fits(row.first); });
    table[area] = sum;
}
