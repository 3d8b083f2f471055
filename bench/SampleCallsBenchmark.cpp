#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "sample/installation/CallGenerator.h"
#include "sample/installation/ProjectFile.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

namespace {

using namespace sample;

const Geography& geography() {
    static const Geography made = makeGeography(1);
    return made;
}

/// Making the calls of a sample without writing them.
void generateCalls(benchmark::State& state) {
    const std::vector<ReferenceCode> codes = makeReferenceCodes(geography());
    for ([[maybe_unused]] auto _ : state) {
        const CallCalendar calendar(geography().tvRegions.size() - 1, 1);
        const CallerPool callers(codes, geography(), static_cast<std::size_t>(state.range(0) / 4), 2);
        CallGenerator generator(calendar, callers, state.range(0), 3);
        for (Call call; generator.next(call);)
            benchmark::DoNotOptimize(call);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// Making them and writing them into the encrypted project, up to the end of the transaction.
void writeCallsToProject(benchmark::State& state) {
    const std::vector<ReferenceCode> codes = makeReferenceCodes(geography());
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        {
            const TemporaryFolder folder;
            const auto project = Workspace::create()->createDatabase(folder.file("Project.mdb"), ProjectConnect);
            createVocabularyTable(*project, DatabaseKind::Project, "TblTeleItem");
            state.ResumeTiming();
            writeCalls(*project, geography(), codes, state.range(0), 1);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(generateCalls)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(writeCallsToProject)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
