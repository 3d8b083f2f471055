#include "stats/WorkingViews.h"

#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "data/sqlite/Connection.h"
#include "stats/CallQueries.h"
#include "stats/ProjectFigures.h"

#include <map>

namespace {

struct LeftCallers {
    std::string view; ///< see presentView
    std::string area;
    std::vector<CallerCount> counts;
};

std::map<CallerKind, LeftCallers> left;

/// The project and the definition of the view in it; empty where it is no view.
std::string presentView(Database& project, const std::string& name) {
    sqlite::Statement view(project.connection(), "SELECT sql FROM " + quoteIdentifier(project.schema()) +
                                                     ".sqlite_schema WHERE type = 'view' AND name = ?");
    view.bind(1, name);
    return view.step() ? project.name() + " " + std::string(view.text(0)) : std::string();
}

} // namespace

void leaveView(const std::string& name, const std::string& query) {
    projectFigures::dropWorkingTable(name);
    onSystemDatabase([&] { projectDatabase().createView(name, query); });
}

void leaveSelectedCalls(const std::string& area, const CallSelection& selection) {
    leaveView("SelectedData", selectedCallsQuery(area, selection));
}

void leaveCallers(CallerKind kind, const std::string& area, const std::string& where, std::vector<CallerCount> counts) {
    const std::string name = projectFigures::callersTable(kind);
    leaveView(name, kind == CallerKind::Answered ? callersQuery(kind, area, where) : neverAnsweredQuery(area, where));
    onSystemDatabase([&] { left[kind] = {presentView(projectDatabase(), name), area, std::move(counts)}; });
}

std::optional<std::vector<CallerCount>> leftCallers(CallerKind kind, const std::string& area) {
    std::optional<std::vector<CallerCount>> counts;
    const LeftCallers& last = left[kind];
    onSystemDatabase([&] {
        if (!last.view.empty() && last.area == area &&
            last.view == presentView(projectDatabase(), projectFigures::callersTable(kind)))
            counts = last.counts;
    });
    return counts;
}
