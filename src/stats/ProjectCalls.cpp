#include "stats/ProjectCalls.h"

#include "core/LogAndGoOn.h"
#include "core/LogError.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/sqlite/Connection.h"
#include "stats/calls/BuildCallColumns.h"
#include "stats/calls/CallMark.h"
#include "stats/calls/KeptCallColumns.h"

#include <sqlite3.h>

namespace {

/// What is known of the calls of an open file.
struct OwnedCalls {
    std::shared_ptr<const CallColumns> columns;
    std::string refusal;          ///< why there are none
    std::string calls;            ///< the calls for which that holds; empty: none
    bool refusalLogged = false;   ///< one line for each project is enough
    bool changesReported = false; ///< the project said so when it was last asked
};

OwnedCalls& callsOf(const Database& project) {
    if (!project.companion())
        project.companion() = std::make_shared<OwnedCalls>();
    return *std::static_pointer_cast<OwnedCalls>(project.companion());
}

bool yielding() {
    progress().yield();
    return true;
}

/// Something that is another as soon as the calls are; empty where that cannot be told.
std::string presentCalls(Database& project) {
    if (!project.isReadOnly())
        return callMark(project);
    const std::string schema = project.schema();
    unsigned version = 0; // of the file as the last statement saw it
    sqlite::Statement(project.connection(), "SELECT count(*) FROM " + quoteIdentifier(schema) + ".sqlite_schema")
        .step();
    const int code =
        sqlite3_file_control(project.connection().handle(), schema.c_str(), SQLITE_FCNTL_DATA_VERSION, &version);
    return code == SQLITE_OK ? "version " + std::to_string(version) : std::string();
}

bool reportsChanges(Database& project) {
    const TableDef* facts = project.tableDefs().find("Tbl50");
    if (!facts || !facts->findField("UpdateMapping"))
        return false;
    const auto flag = firstValue(project, "SELECT UpdateMapping FROM Tbl50");
    return flag && flag->isNumber() && flag->asDouble() == 1;
}

/// The bar on which the reading shows itself goes on every way out.
struct Reading {
    ~Reading() { progress().setReading(1); }
};

void build(Database& project, OwnedCalls& owned) {
    const Reading reading;
    constexpr double shareOfBuilding = 0.9; // writing them to the file takes the rest
    const auto done = [](double share) { progress().setReading(shareOfBuilding * share); };
    try {
        owned.columns = std::make_shared<const CallColumns>(*buildCallColumns(project, yielding, done));
    } catch (...) {
        const ErrorFacts error = currentError();
        owned.refusal = error.description;
        if (!owned.refusalLogged)
            LogError(gsCurrentProc, error.number, error.description + "; its figures come from statements");
        owned.refusalLogged = true;
    }
    if (project.isReadOnly())
        return;
    if (owned.columns)
        logAndGoOn([&] { saveCallColumns(project, *owned.columns, yielding); });
    else
        ignoreErrors([&] { makeCallMark(project); }); // not tried again before the calls change
}

} // namespace

std::shared_ptr<const CallColumns> projectCalls() {
    Database& project = projectDatabase();
    OwnedCalls& owned = callsOf(project);
    const bool reported = reportsChanges(project);
    const bool changed = reported && !owned.changesReported;
    owned.changesReported = reported;
    if (!changed && !owned.calls.empty() && owned.calls == presentCalls(project))
        return owned.columns;

    owned.columns.reset(); // before others are made: two at once would be too much
    owned.refusal.clear();
    if (!changed) {
        if (auto kept = loadCallColumns(project, yielding))
            owned.columns = std::make_shared<const CallColumns>(std::move(*kept));
    }
    if (!owned.columns)
        build(project, owned);
    owned.calls = presentCalls(project);
    return owned.columns;
}

void forgetProjectCalls() {
    Database& project = projectDatabase();
    project.companion().reset();
    if (!project.isReadOnly())
        removeKeptCallColumns(project);
}

std::string whyNoProjectCalls() {
    return callsOf(projectDatabase()).refusal;
}
