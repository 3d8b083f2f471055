#pragma once

#include "tests/stats/compare/AreaRecount.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

/// The statistics tables as a reader of their description would fill them by hand: straight loops over the calls, no
/// statement and none of the program's own steps. It goes through the same runs one after the other, as later periods
/// depend on what earlier ones left.
class TableRecount {
public:
    explicit TableRecount(const ProjectContent& content) : content_(content), calls_(content.calls) {}

    /// `places` is the geography before the run.
    void perform(const RandomRun& run, const std::vector<ProjectPlace>& places);

    /// The rows of the run's table as "AREA|figures of all periods", in the order of their folded areas.
    std::vector<std::string> rows(const RandomRun& run) const;

private:
    using Figure = std::optional<std::int64_t>;
    using Row = std::vector<Figure>;          ///< ten a period
    using Table = std::map<std::string, Row>; ///< by folded area
    struct Step;

    void makeRows(Step& step, const std::vector<std::string>& areas) const;
    void writeCounts(Step& step, const std::map<std::string, Figures>& counts) const;
    void countCallers(Step& step);
    static void writeCallers(Step& step, int period, FigureColumn column, const CallerCounts& counts);
    static void fold(Step& step);
    void updateSidePanels(Step& step) const;
    void finish(Step& step);
    void performGroups(Step& step, const std::vector<ProjectPlace>& places);
    void countGroupCallers(Step& step);
    std::vector<PlacedCall> callsInGroups(const std::vector<PlacedCall>& calls, bool membersOnly, bool named) const;
    std::vector<std::string> groupNames() const;

    const ProjectContent& content_;
    std::vector<ProjectCall> calls_;
    std::map<std::string, Table> tables_;
    /// The callers that were found last, and by whose areas.
    RunBoundary callersOf_ = RunBoundary::CustomerGroups;
    CallerCounts lastAnswered_, lastLost_;
};

/// The statistics table of a run as it stands in the system map database, in the same form.
std::vector<std::string> storedRows(const RandomRun& run);
