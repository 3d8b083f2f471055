#include "core/ModDeclarations.h"
#include "data/engine/Database.h"
#include "data/sqlite/Connection.h"
#include "report/OpenInstallation.h"
#include "sample/installation/SampleInstallation.h"
#include "stats/ModData_SelectedTVArea.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

/// A selection in the words of the dialect and in those of the storage library.
struct Selection {
    const char* table;
    const char* dialect;
    const char* direct; ///< continues a WHERE; t is the table of calls
};

const Selection selections[] = {
    {"TblTV", "", ""},
    {"TblSelectedDataForTV", " CallDate >= #1/1/2000# AND CallDate <= #12/31/2099# AND AnswerLoc Like '*e*'",
     " AND t.CallDate >= 36526 AND t.CallDate <= 73050 AND t.AnswerLoc LIKE '%e%'"},
};

/// The sample with its project open; made once for the program.
struct OpenSample {
    explicit OpenSample(std::int64_t calls) {
        sample::SampleOptions options;
        options.folder = folder.file("sample");
        options.calls = calls;
        const sample::SampleReport made = sample::makeSampleInstallation(options);
        openInstallation(options.folder);
        openProject(made.projectPath);
    }
    ~OpenSample() {
        resetGlobals();
        resetDefaultWorkspace();
    }

    TemporaryFolder folder;
};

/// What a run asks of the project, written for the storage library itself: the selected calls in the order of their
/// areas, counts, cost and revenue of them, both kinds of caller and their counts. One transaction.
class DirectStatements {
public:
    explicit DirectStatements(const Selection& selection)
        : connection_(gdbProject->connection()), schema_(gdbProject->schema() + "."), filter_(selection.direct) {}

    void run() {
        connection_.execute("BEGIN");
        make("SelectedData",
             "CalledNo TEXT COLLATE JET, AnswerInd TEXT COLLATE JET, Discounted REAL, TVArea TEXT COLLATE JET",
             "SELECT t.CalledNo, t.AnswerInd, t.Discounted, m.TVArea" + from() + filter_ +
                 " ORDER BY m.TVArea, t.AnswerInd");
        read("SELECT TVArea, COUNT(CalledNo), AnswerInd FROM " + schema_ +
             "SelectedData GROUP BY TVArea, AnswerInd ORDER BY TVArea");
        for (const char* sign : {">", "<"})
            read("SELECT TVArea, SUM(Discounted) FROM " + schema_ + "SelectedData WHERE Discounted " + sign +
                 " 0 GROUP BY TVArea, AnswerInd ORDER BY TVArea");
        makeCallers("TblAnsweredCallers", "IN");
        makeCallers("TblLostCallers", "NOT IN");
        connection_.execute("DELETE FROM " + schema_ + "TblLostCallers WHERE CallingNo IN (SELECT CallingNo FROM " +
                            schema_ + "TblTeleItem WHERE AnswerInd IN ('0', '8'))");
        for (const char* callers : {"TblLostCallers", "TblAnsweredCallers"})
            read(std::string("SELECT TVArea, COUNT(TVArea) FROM ") + schema_ + callers +
                 " GROUP BY TVArea ORDER BY TVArea");
        connection_.execute("COMMIT");
    }

private:
    std::string from() const {
        return " FROM " + schema_ + "TblTeleItem t JOIN " + schema_ +
               "TblMappingGIS m ON t.\"1141\" = m.\"1141\" WHERE 1";
    }
    void make(const std::string& table, const std::string& columns, const std::string& query) {
        connection_.execute("DROP TABLE IF EXISTS " + schema_ + table);
        connection_.execute("CREATE TABLE " + schema_ + table + " (" + columns + ")");
        sqlite::Statement(connection_, "INSERT INTO " + schema_ + table + " " + query).step();
    }
    void makeCallers(const std::string& table, const std::string& test) {
        make(table, "CallingNo TEXT COLLATE JET, TVArea TEXT COLLATE JET",
             "SELECT DISTINCT t.CallingNo, m.TVArea" + from() + " AND t.AnswerInd " + test + " ('0', '8')" + filter_);
    }
    void read(const std::string& query) {
        sqlite::Statement statement(connection_, query);
        while (statement.step())
            benchmark::DoNotOptimize(statement.integer(1));
    }

    sqlite::Connection& connection_;
    std::string schema_;
    std::string filter_;
};

double secondsOf(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The statistics of TV regions against the bare statements, turn by turn on the same files. The time shown is that of
/// the statistics; "ratio" is theirs over that of the statements.
void statisticsOfTVRegions(benchmark::State& state) {
    static const OpenSample sample(1'000'000);
    const Selection& selection = selections[state.range(0)];
    SelectionSql = selection.dialect;
    double statistics = 0;
    double direct = 0;
    for ([[maybe_unused]] auto _ : state) {
        direct += secondsOf([&] { DirectStatements(selection).run(); });
        const double run = secondsOf([&] { ModData_SelectedTVArea(selection.table, 1); });
        statistics += run;
        state.SetIterationTime(run);
    }
    state.counters["direct_s"] = direct / static_cast<double>(state.iterations());
    state.counters["ratio"] = statistics / direct;
    state.SetLabel(selection.table);
}

BENCHMARK(statisticsOfTVRegions)->DenseRange(0, 1)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
