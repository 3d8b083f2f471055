#include "data/engine/Database.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <array>

namespace {

constexpr int areas = 3000;

/// A statistics table of the size that exchange areas have, its rows in no order of their names.
struct Statistics {
    Statistics() {
        WorkspaceTransaction transaction(*workspace);
        database->execute("CREATE TABLE TblExchangeArea (Exchange Text(50), TotalCalls1 Long, Cost1 Currency)");
        for (int i = 0; i < areas; ++i)
            database->execute("INSERT INTO TblExchangeArea VALUES ('" + nameOf(i * 1009 % areas) + "', " +
                              std::to_string(i) + ", 0.5)");
        transaction.commit();
    }
    static std::string nameOf(int area) { return "Exchange Area " + std::to_string(area); }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database = workspace->createDatabase(folder.file("ukmap.mdb"), "MS Access;PWD=s");
};

Statistics& statistics() {
    static Statistics table;
    return table;
}

struct Form {
    const char* before;
    const char* after;
};
constexpr std::array<Form, 4> forms{{{"Exchange = '", "'"},
                                     {"UCASE(Exchange) = '", "'"},
                                     {"Exchange = '", "' And TotalCalls1 >= 0"},
                                     {"Exchange Like '", "*'"}}};

/// One search after the other for another name each time. Argument: which form the expression has.
void findFirst(benchmark::State& state) {
    const auto rows = statistics().database->openRecordset("SELECT * FROM TblExchangeArea");
    const Form& form = forms[static_cast<std::size_t>(state.range(0))];
    std::vector<std::string> expressions;
    for (int i = 0; i < areas; ++i)
        expressions.push_back(form.before + Statistics::nameOf(i * 71 % areas) + form.after);
    rows->FindFirst(expressions.front());
    std::size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        rows->FindFirst(expressions[next]);
        next = next + 1 == expressions.size() ? 0 : next + 1;
        benchmark::DoNotOptimize(rows->NoMatch());
    }
    state.SetLabel(std::string(form.before) + "..." + form.after);
}
BENCHMARK(findFirst)->DenseRange(0, 3);

/// The first search of a recordset, which looks at every row.
void firstFind(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const auto rows = statistics().database->openRecordset("SELECT * FROM TblExchangeArea");
        state.ResumeTiming();
        rows->FindFirst("Exchange = 'Exchange Area 7'");
    }
}
BENCHMARK(firstFind)->Unit(benchmark::kMicrosecond);

/// Argument: the number of rows.
void openAndRead(benchmark::State& state) {
    const Statistics& table = statistics();
    const long count = state.range(0);
    if (!table.database->tableDefs().find("TblMany"))
        table.database->execute("SELECT a.* INTO TblMany FROM TblExchangeArea AS a, TblExchangeArea AS b "
                                "WHERE b.TotalCalls1 < 34");
    const std::string query = "SELECT TOP " + std::to_string(count) + " * FROM TblMany";
    for ([[maybe_unused]] auto _ : state) {
        const auto rows = table.database->openRecordset(query);
        for (; !rows->EOF_(); rows->MoveNext())
            benchmark::DoNotOptimize(rows->value("TotalCalls1"));
    }
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(openAndRead)->Arg(3000)->Arg(100000)->Unit(benchmark::kMicrosecond);

/// Every row found by its name and changed, in one transaction, as a walk over counted areas does.
void findAndEdit(benchmark::State& state) {
    Statistics& table = statistics();
    for ([[maybe_unused]] auto _ : state) {
        WorkspaceTransaction transaction(*table.workspace);
        const auto rows = table.database->openRecordset("SELECT * FROM TblExchangeArea");
        for (int i = 0; i < areas; ++i) {
            rows->FindFirst("Exchange = '" + Statistics::nameOf(i) + "'");
            rows->Edit();
            rows->set("TotalCalls1", i);
            rows->Update();
        }
        transaction.commit();
    }
    state.SetItemsProcessed(state.iterations() * areas);
}
BENCHMARK(findAndEdit)->Unit(benchmark::kMillisecond);

/// The same change by a statement for each area.
void updateEach(benchmark::State& state) {
    Statistics& table = statistics();
    for ([[maybe_unused]] auto _ : state) {
        WorkspaceTransaction transaction(*table.workspace);
        for (int i = 0; i < areas; ++i)
            table.database->execute("UPDATE TblExchangeArea SET TotalCalls1 = " + std::to_string(i) +
                                    " WHERE Exchange = '" + Statistics::nameOf(i) + "'");
        transaction.commit();
    }
    state.SetItemsProcessed(state.iterations() * areas);
}
BENCHMARK(updateEach)->Unit(benchmark::kMillisecond);

/// A like change of all areas by one statement.
void updateAll(benchmark::State& state) {
    Statistics& table = statistics();
    for ([[maybe_unused]] auto _ : state)
        table.database->execute("UPDATE TblExchangeArea SET TotalCalls1 = TotalCalls1 + 1");
    state.SetItemsProcessed(state.iterations() * areas);
}
BENCHMARK(updateAll)->Unit(benchmark::kMillisecond);

} // namespace
