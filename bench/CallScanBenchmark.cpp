#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "data/sqlite/Connection.h"
#include "stats/AreasOfCodes.h"
#include "stats/StatementFigures.h"
#include "stats/calls/BuildCallColumns.h"
#include "stats/calls/KeptCallColumns.h"
#include "stats/calls/ScanCalls.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>

namespace {

const CallProgress goOn = [] { return true; };

/// CALLSCOPE_BENCH_CALLS, or ten million.
std::int64_t wantedCalls() {
    const char* text = std::getenv("CALLSCOPE_BENCH_CALLS");
    const std::int64_t wanted = text ? std::atoll(text) : 0;
    return wanted > 0 ? wanted : 10'000'000;
}

/// A project of invented calls: 5,000 codes in 2,900 districts, 200 inbound numbers, 90 days, three calls a caller.
struct CallProject {
    explicit CallProject(std::int64_t calls) {
        for (const char* table : {"TblTeleItem", "TblMappingGIS"})
            createVocabularyTable(*database, DatabaseKind::Project, table);
        const std::string schema = database->schema() + ".";
        sqlite::Connection& connection = database->connection();
        connection.execute("SAVEPOINT fill");
        connection.execute("INSERT INTO " + schema +
                           "TblMappingGIS(\"1141\", PostCode, TVArea, CSG, Exchange) WITH RECURSIVE n(i) AS (SELECT 0 "
                           "UNION ALL SELECT i + 1 FROM n LIMIT 5000) SELECT '01' || (10000 + i), 'D' || (i % 2900), "
                           "'TV' || (i % 14), i % 613, 'E' || (i % 1200) FROM n");
        connection.execute(
            "INSERT INTO " + schema +
            "TblTeleItem(CallDate, CallTime, CalledNo, CallingNo, AnswerLoc, NetAddress, AnswerInd, "
            "Discounted, \"1141\") WITH RECURSIVE n(i, c) AS (SELECT 0, 0 UNION ALL SELECT i + 1, (i + 1) "
            "* 2654435761 % " +
            std::to_string(calls / 3 + 1) + " FROM n LIMIT " + std::to_string(calls) +
            ") SELECT 46000 + i * 7919 % 90, substr('0' || (i * 31 % 24), -2) || ':' || substr('0' || (i "
            "* 17 % 60), -2) || ':00', '0800' || (1000 + i * 101 % 200), '01' || (100000000 + c), 'Branch "
            "' || (i % 12), 'D' || (i % 30), substr('0000008249', 1 + i * 13 % 10, 1), (i * 37 % 500 - "
            "100) / 100.0, '01' || (10000 + c % 5000) FROM n");
        connection.execute("RELEASE fill");
    }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database =
        workspace->createDatabase(folder.file("project.mdb"), std::string(ProjectConnect));
};

/// The project of the wanted size, its columns built once.
struct Calls : CallProject {
    Calls() : CallProject(wantedCalls()) {}
    CallColumns columns = *buildCallColumns(*database, goOn);
};
Calls& calls() {
    static Calls made;
    return made;
}

void showSize(benchmark::State& state) {
    state.counters["calls"] = static_cast<double>(calls().columns.size());
}

void build(benchmark::State& state) {
    showSize(state);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(buildCallColumns(*calls().database, goOn));
    state.counters["bytes_a_call"] =
        static_cast<double>(calls().columns.bytes()) / static_cast<double>(calls().columns.size());
}
BENCHMARK(build)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

void save(benchmark::State& state) {
    showSize(state);
    for ([[maybe_unused]] auto _ : state)
        saveCallColumns(*calls().database, calls().columns, goOn);
}
BENCHMARK(save)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

void load(benchmark::State& state) {
    showSize(state);
    for ([[maybe_unused]] auto _ : state) {
        if (!loadCallColumns(*calls().database, goOn))
            state.SkipWithError("the kept columns do not fit");
    }
}
BENCHMARK(load)->Iterations(3)->UseRealTime()->Unit(benchmark::kMillisecond);

std::string filter() {
    const std::string time = "CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2))";
    std::string text = " CallDate >= #01/15/2026# AND CallDate <= #02/13/2026# AND " + time + " >= #08:00:00# AND " +
                       time + " <= #18:00:00# AND CalledNo In (";
    for (int i = 0; i < 50; ++i)
        text += (i == 0 ? "'0800" : "','0800") + std::to_string(1000 + 3 * i);
    return text + "')";
}

/// Arguments: boundaries at once, whether filtered. With the time for reading the geography and compiling the filter
/// apart, as "prepare_ms".
void scan(benchmark::State& state) {
    showSize(state);
    const auto start = std::chrono::steady_clock::now();
    const CallColumns& columns = calls().columns;
    std::vector<AreasOfCodes> areas;
    std::vector<const ScanBoundary*> boundaries;
    for (const char* column : {"PostCode", "TVArea", "CSG", "Exchange"})
        areas.emplace_back(*calls().database, column, columns);
    for (std::int64_t i = 0; i < state.range(0); ++i)
        boundaries.push_back(&areas[static_cast<std::size_t>(i)].boundary);
    std::optional<CallPredicate> predicate;
    if (state.range(1) != 0)
        predicate = CallPredicate::compile(filter(), callTablesOf(*calls().database), columns);
    state.counters["prepare_ms"] =
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(scanCalls(columns, predicate ? &*predicate : nullptr, boundaries));
}
BENCHMARK(scan)
    ->ArgNames({"boundaries", "filtered"})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Args({4, 0})
    ->Args({4, 1})
    ->Iterations(10)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

double secondsOf(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// All calls of a smaller project by districts: the time of the statements, and how many scans go into it.
void statementsAgainstScan(benchmark::State& state) {
    const CallProject small(std::min<std::int64_t>(wantedCalls(), 300'000));
    const CallColumns columns = *buildCallColumns(*small.database, goOn);
    const AreasOfCodes areas(*small.database, "PostCode", columns);
    const ScanBoundary* boundary = &areas.boundary;
    gdbProject = small.database;
    for ([[maybe_unused]] auto _ : state) {
        const double scanned = secondsOf([&] {
            benchmark::DoNotOptimize(scanCalls(columns, nullptr, {&boundary, 1}));
        });
        const double statements = secondsOf([&] {
            StatementFigures figures(postcodeDistricts);
            figures.makeSelectedData({});
            for (const CallerKind kind : {CallerKind::Answered, CallerKind::Lost}) {
                figures.makeCallers(kind, {});
                benchmark::DoNotOptimize(figures.callersByArea(kind));
            }
            benchmark::DoNotOptimize(figures.callsByArea());
            benchmark::DoNotOptimize(figures.moneyByArea(CallMoney::Cost));
            benchmark::DoNotOptimize(figures.moneyByArea(CallMoney::Revenue));
        });
        state.SetIterationTime(statements);
        state.counters["ratio"] = statements / scanned;
    }
    state.counters["calls"] = static_cast<double>(columns.size());
    gdbProject.reset();
}
BENCHMARK(statementsAgainstScan)->Iterations(2)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
