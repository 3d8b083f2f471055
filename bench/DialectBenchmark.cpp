#include "data/engine/Database.h"
#include "data/sqlite/Connection.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

/// A selection as the parameter window makes it: dates, times of day and a number of inbound numbers.
std::string selection(int numbers) {
    std::string text = " TblTeleItem.CallDate >= #1/15/2026# AND TblTeleItem.CallDate <= #2/28/2026# AND "
                       "CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2)) >= #08:00:00# AND "
                       "CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2)) <= #18:00:00# AND (";
    for (int i = 0; i < numbers; ++i)
        text += (i == 0 ? "TblTeleItem.CalledNo = '0800100" : " OR TblTeleItem.CalledNo = '0800100") +
                std::to_string(100 + i) + "'";
    return text + ")";
}

/// The longest statement of the customer group statistics: callers of areas that belong to no group.
std::string longestStatement(int numbers) {
    return "INSERT INTO tblAnsweredCallers ( CallingNo, GroupName ) SELECT DISTINCT TblTeleItem.CallingNo, "
           "TblTempGIS.PostCode FROM TblGroups INNER JOIN (TblTempGIS INNER JOIN TblTeleItem ON TblTempGIS.[1141] = "
           "TblTeleItem.[1141]) ON TblGroups.Reference = TblTempGIS.PostCode WHERE (((TblGroups.GroupName)='') AND "
           "((TblTeleItem.AnswerInd) In ('0','8'))) AND " +
           selection(numbers);
}

/// A project of the shape that the statistics read, with its groups in the file itself or behind a link.
struct Project {
    explicit Project(bool linked) {
        database->execute("CREATE TABLE TblTeleItem (CallDate DateTime, CallTime Text(8), CalledNo Text(20), CallingNo "
                          "Text(20), AnswerLoc Text(50), NetAddress Text(50), AnswerInd Text(1), Discounted Currency, "
                          "[1141] Text(20), Legs Short)");
        database->execute("CREATE TABLE TblTempGIS ([1141] Text(20), Exchange Text(50), CSG Text(20), DMSU Text(50), "
                          "PostCode Text(15), TVArea Text(20))");
        database->execute("CREATE TABLE tblAnsweredCallers (CallingNo Text(20), GroupName Text(50))");
        const auto groups = linked ? workspace->createDatabase(folder.file("CustomerGroups.mdb")) : database;
        groups->execute("CREATE TABLE TblGroups (TallyAccount Text(50), Reference Text(50), GroupName Text(50))");
        if (!linked)
            return;
        TableDef link = database->createTableDef("TblGroups");
        link.connect = "MS Access;DATABASE=" + folder.file("CustomerGroups.mdb");
        link.sourceTableName = "TblGroups";
        database->tableDefs().append(link);
    }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database = workspace->createDatabase(folder.file("project.mdb"), "MS Access;PWD=p");
};

/// Parse, bind and emit. Arguments: inbound numbers in the selection, whether a table lies behind a link.
void translateLongestStatement(benchmark::State& state) {
    const Project project(state.range(1) != 0);
    const std::string statement = longestStatement(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(project.database->translate(statement));
    state.counters["characters"] = static_cast<double>(statement.size());
}
BENCHMARK(translateLongestStatement)
    ->ArgNames({"numbers", "link"})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Args({50, 0})
    ->Args({1500, 0})
    ->Unit(benchmark::kMicrosecond);

/// A million rows of calls, made once.
struct Calls : Project {
    Calls() : Project(false) {
        sqlite::Connection& connection = database->connection();
        connection.execute("INSERT INTO " + database->schema() +
                           ".TblTeleItem WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n LIMIT 1000000) "
                           "SELECT 46000 + i % 90, printf('%02d:%02d:00', i % 24, i % 60), '0800' || (i % 50), "
                           "'0' || (i * 7919 % 400000), 'Branch ' || (i % 12), '', CAST(i % 10 AS TEXT), "
                           "(i % 300) / 100.0, '01' || (i % 3000), 1 FROM n");
    }
};

double secondsOf(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// SELECT … INTO of all rows against the same two statements written for the storage library, turn by turn.
void selectInto(benchmark::State& state) {
    static const Calls calls;
    sqlite::Connection& connection = calls.database->connection();
    const std::string schema = calls.database->schema() + ".";
    const bool filtered = state.range(0) != 0;
    const std::string where = filtered ? " WHERE CallDate >= #12/20/2025# AND AnswerInd In ('0','8')" : "";
    const std::string plainWhere = filtered ? " WHERE CallDate >= 46011 AND AnswerInd IN ('0', '8')" : "";
    const auto dialect = [&] {
        calls.database->execute(
            "SELECT CallDate, CallTime, CalledNo, CallingNo, AnswerInd, Discounted, [1141] INTO Copy1 "
            "FROM TblTeleItem" +
            where);
    };
    const auto plain = [&] {
        connection.execute("SAVEPOINT s; CREATE TABLE " + schema +
                           "Copy2 (CallDate DATETIME, CallTime TEXT COLLATE JET, CalledNo TEXT COLLATE JET, CallingNo "
                           "TEXT COLLATE JET, AnswerInd TEXT COLLATE JET, Discounted CURRENCY, \"1141\" TEXT COLLATE "
                           "JET)");
        connection.execute(
            "INSERT INTO " + schema +
            "Copy2 SELECT CallDate, CallTime, CalledNo, CallingNo, AnswerInd, Discounted, \"1141\" FROM " + schema +
            "TblTeleItem" + plainWhere + "; RELEASE s");
    };
    double ours = 0;
    double library = 0;
    for (std::int64_t turn = 0; state.KeepRunning(); ++turn) {
        // Who goes second finds the free pages of who went first: the turns alternate, and each drops its own.
        for (const bool ourTurn : {turn % 2 == 0, turn % 2 != 0}) {
            if (ourTurn) {
                const double run = secondsOf(dialect);
                ours += run;
                state.SetIterationTime(run);
                calls.database->execute("DROP TABLE Copy1");
            } else {
                library += secondsOf(plain);
                calls.database->execute("DROP TABLE Copy2");
            }
        }
    }
    state.counters["library_s"] = library / static_cast<double>(state.iterations());
    state.counters["ratio"] = ours / library;
}
BENCHMARK(selectInto)
    ->ArgName("filtered")
    ->DenseRange(0, 1)
    ->Iterations(6)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
