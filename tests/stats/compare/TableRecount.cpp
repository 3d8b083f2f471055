#include "tests/stats/compare/TableRecount.h"

#include "tests/stats/compare/PlainSelection.h"
#include "tests/stats/compare/RecountStep.h"

#include <algorithm>

namespace {

const std::vector<std::string> unplacedAreas{"NO CLI", "OLO", "UNTRACEAB"};

bool isNumber(const std::string& area) {
    return !area.empty() && area.find_first_not_of("-.0123456789") == std::string::npos;
}

/// What a search can be made for.
bool canBeFound(const std::string& area) {
    return !area.empty() && area.find('\'') == std::string::npos;
}

} // namespace

void TableRecount::perform(const RandomRun& run, const std::vector<ProjectPlace>& places) {
    if (run.callBefore)
        calls_.push_back(*run.callBefore);
    Step step(run, tables_[run.table], calls_, places, content_.groupKind);
    if (run.boundary == RunBoundary::CustomerGroups)
        return performGroups(step, places);
    std::vector<std::string> areas;
    for (const ProjectPlace& place : places)
        areas.push_back(plainFold(areaOfPlace(place, run.boundary, {}).value_or("")));
    makeRows(step, areas);
    writeCounts(step, countByArea(step.selected,
                                  run.boundary == RunBoundary::Csg ? unplacedAreas : std::vector<std::string>()));
    countCallers(step);
    finish(step);
}

/// Keeps the rows or makes them anew.
void TableRecount::makeRows(Step& step, const std::vector<std::string>& areas) const {
    const RunBoundary boundary = step.run.boundary;
    bool keeps = !step.isMain() && boundary != RunBoundary::Csg && boundary != RunBoundary::Exchange;
    std::int64_t totals = 0;
    for (const auto& [area, row] : step.table)
        totals += row[Total].value_or(0);
    keeps = keeps && (step.run.period != 1 || !step.table.empty()) && (step.run.period != 2 || totals > 0);
    if (keeps) {
        for (auto& [area, row] : step.table)
            std::fill_n(row.begin() + (step.run.period - 1) * 10, 10, 0);
        return;
    }
    step.table.clear();
    for (const std::string& area : areas) {
        if (!area.empty())
            step.addZeroRow(boundary == RunBoundary::Exchange && area == "NORTHERN" ? "BIRMINGHAM NORTHERN" : area);
    }
    const std::vector<std::string> none;
    for (const std::string& shape : boundary == RunBoundary::Csg                ? content_.csgShapes
                                    : boundary == RunBoundary::PostcodeDistrict ? content_.districtShapes
                                                                                : none)
        step.addZeroRow(plainFold(shape));
}

void TableRecount::writeCounts(Step& step, const std::map<std::string, Figures>& counts) const {
    const bool ofCsgs = step.run.boundary == RunBoundary::Csg;
    const std::vector<std::string> countedCsgs{"MOBILE", "NO CLI", "UNTRACEAB", "VOIP"};
    for (const auto& [area, figures] : counts) {
        if (!canBeFound(area) || (ofCsgs && !isNumber(area) && !isOneOf(area, countedCsgs)))
            continue;
        if (!step.table.contains(area))
            step.addZeroRow(area);
        for (const FigureColumn column : {Total, Answered, Ineffective, Engaged, Rtnr, Other})
            step.set(area, step.run.period, column, figures[column]);
    }
    for (const auto& [area, figures] : counts) {
        if (!canBeFound(area) || (ofCsgs && !isNumber(area) && !isOneOf(area, countedCsgs) && area != "OLO"))
            continue;
        for (const FigureColumn column : {Cost, Revenue}) {
            if (figures[column] > 0)
                step.set(area, step.run.period, column, figures[column]);
        }
    }
}

void TableRecount::countCallers(Step& step) {
    if (!countsCallers(step.run))
        return;
    callersOf_ = step.run.boundary;
    lastAnswered_ = answeredByArea(step.ofCallers);
    lastLost_ = lostByArea(step.ofCallers, calls_);
    const int period = step.run.boundary == RunBoundary::TVRegion ? step.run.period : 1;
    if (step.run.boundary != RunBoundary::Csg) {
        for (auto& [area, row] : step.table) {
            step.set(area, period, LostCallers, 0);
            step.set(area, period, AnsweredCallers, 0);
        }
    }
    writeCallers(step, period, LostCallers, lastLost_);
    writeCallers(step, period, AnsweredCallers, lastAnswered_);
}

void TableRecount::writeCallers(Step& step, int period, FigureColumn column, const CallerCounts& counts) {
    for (const auto& [area, count] : counts) {
        if (canBeFound(area))
            step.set(area, period, column, count);
    }
}

/// The areas that are no places become side panels.
void TableRecount::fold(Step& step) {
    const RunBoundary boundary = step.run.boundary;
    const bool nullWithoutRows = boundary == RunBoundary::Csg || boundary == RunBoundary::PostcodeDistrict;
    const auto isOverseas = [&](const std::string& area) {
        return boundary == RunBoundary::Csg ? area == "0" : area.starts_with('.');
    };
    step.table.erase("OTHER");
    step.table.erase("INTERNATIONAL");
    step.sumInto(
        "OTHER", [](const std::string& area) { return isOneOf(area, unplacedAreas); }, nullWithoutRows);
    step.sumInto("INTERNATIONAL", isOverseas, false);
    if (boundary != RunBoundary::Csg && !step.table.contains("MOBILE"))
        step.sumInto(
            "MOBILE", [](const std::string&) { return false; }, false);
}

void TableRecount::updateSidePanels(Step& step) const {
    const int period = step.run.period;
    const bool ofCsgs = step.run.boundary == RunBoundary::Csg;
    const bool isSelectedTable = step.run.table.find("SelectedData") != std::string::npos;
    if (period == 1 || (period == 2 && isSelectedTable)) {
        for (const char* name : {"OTHER", "INTERNATIONAL", "VOIP", "MOBILE"}) {
            step.table.erase(name);
            step.addZeroRow(name);
        }
    }
    const auto write = [&](const std::string& name, const std::function<bool(const std::string&)>& fits) {
        const Figures figures = sidePanel(step.selected, fits);
        for (int column = Total; column <= Other; ++column)
            step.set(name, period, static_cast<FigureColumn>(column), figures[static_cast<std::size_t>(column)]);
    };
    write("VOIP", [](const std::string& area) { return area == "VOIP"; });
    write("MOBILE", [](const std::string& area) { return area == "MOBILE"; });
    write("OTHER", [](const std::string& area) { return isOneOf(area, unplacedAreas); });
    write("INTERNATIONAL", [&](const std::string& area) { return ofCsgs ? area == "0" : area.starts_with('.'); });
    if (!isSelectedTable || callersOf_ != step.run.boundary)
        return;
    for (const char* name : {"MOBILE", "VOIP"}) {
        step.add(name, AnsweredCallers, lastAnswered_);
        step.add(name, LostCallers, lastLost_);
    }
}

void TableRecount::finish(Step& step) {
    const RunBoundary boundary = step.run.boundary;
    const bool isFirst = step.run.period == 1;
    const bool hasSidePanelTable = !step.isMain() && boundary != RunBoundary::Exchange;
    if (isFirst)
        fold(step);
    else if (boundary == RunBoundary::Csg || boundary == RunBoundary::Exchange)
        step.erase({"MOBILE", "OTHER"});
    if (!isFirst && boundary == RunBoundary::Exchange)
        step.erase({"INTERNATIONAL"});
    if (boundary == RunBoundary::Csg || boundary == RunBoundary::Exchange ||
        (boundary == RunBoundary::PostcodeDistrict && isFirst))
        step.addZeroRow("VOIP");
    if (hasSidePanelTable && (boundary != RunBoundary::PostcodeDistrict || !isFirst))
        updateSidePanels(step);
    step.addZeroRow("REPUBLIC OF IRELAND");
}

std::vector<std::string> TableRecount::rows(const RandomRun& run) const {
    std::vector<std::string> lines;
    for (const auto& [area, row] : tables_.at(run.table)) {
        lines.push_back(area);
        for (const Figure& figure : row)
            lines.back() += "|" + (figure ? Value(Money{*figure}).asText() : "null");
    }
    return lines;
}

std::vector<std::string> storedRows(const RandomRun& run) {
    std::multimap<std::string, std::string> byArea;
    const auto rows = systemDatabase().openRecordset("SELECT * FROM " + run.table);
    for (; !rows->EOF_(); rows->MoveNext()) {
        std::string figures;
        for (int column = 1; column <= 10 * periodsOf(run.table); ++column)
            figures += "|" + (rows->value(column).isNull() ? "null" : Value(rows->value(column).asMoney()).asText());
        byArea.emplace(plainFold(rows->value(0).asText()), figures);
    }
    std::vector<std::string> lines;
    for (const auto& [area, figures] : byArea)
        lines.push_back(area + figures);
    return lines;
}
