#pragma once

#include "data/project/Databases.h"
#include "tests/stats/compare/TableRecount.h"

#include <functional>
#include <initializer_list>

/// How many periods of ten figures a statistics table has.
int periodsOf(const std::string& table);

/// The area of a row of the geography; that of customer groups as groups made of a kind of areas know it.
OptionalText areaOfPlace(const ProjectPlace& place, RunBoundary boundary, const std::string& groupKind);
OptionalText areaOfGroups(const ProjectPlace& place, const std::string& kind);

/// One run of a recount: the calls that it counts and the table that it fills.
struct TableRecount::Step {
    Step(const RandomRun& itsRun, Table& itsTable, const std::vector<ProjectCall>& calls,
         const std::vector<ProjectPlace>& places, const std::string& groupKind);

    bool isMain() const;
    void addZeroRow(const std::string& area); ///< where there is none
    /// Where the area has a row and the table the period.
    void set(const std::string& area, int period, FigureColumn column, std::int64_t value);
    /// Adds the area's count in the run's period; null stays null.
    void add(const std::string& area, FigureColumn column, const CallerCounts& counts);
    void erase(std::initializer_list<const char*> areas);
    /// A row with the sums of period 1 over the rows that fit, which it replaces. It has no other period.
    void sumInto(const std::string& area, const std::function<bool(const std::string&)>& fits, bool nullWithoutRows);

    const RandomRun& run;
    Table& table;
    std::vector<PlacedCall> selected;  ///< whose calls and money count
    std::vector<PlacedCall> ofCallers; ///< among which callers are found
    std::vector<PlacedCall> all;       ///< whatever the selection
};
