#include "stats/FigureEngine.h"
#include "tests/stats/compare/LeftBehind.h"
#include "tests/stats/compare/TableRecount.h"

#include <gtest/gtest.h>

namespace {

struct EngineGuard {
    ~EngineGuard() { setFigureEngine(FigureEngine::Automatic); }
};

/// What every run leaves behind, by one engine; the project is afterwards as it was.
struct Sequence {
    std::vector<std::vector<TableRows>> left;
    std::vector<std::vector<std::string>> rows;    ///< of the statistics table of each run
    std::vector<std::vector<ProjectPlace>> places; ///< before each run
    std::vector<std::string> texts;                ///< of the runs
    std::vector<std::string> log, prompts;
};

Sequence performAll(RandomInstallation& installation, const std::vector<RandomRun>& runs, FigureEngine engine) {
    const WorkspaceTransaction undone(*defaultWorkspace());
    Sequence sequence;
    const std::size_t logged = installation.logLines().size();
    installation.prompts.texts.clear();
    for (const RandomRun& run : runs) {
        // What no statement can be made of is nothing to a scan either; the statements log it in their words.
        setFigureEngine(engine == FigureEngine::Scan && !canBeRead(run) ? FigureEngine::Automatic : engine);
        if (run.callBefore)
            storeCall(*run.callBefore);
        sequence.places.push_back(storedPlaces());
        perform(run);
        sequence.rows.push_back(storedRows(run));
        sequence.left.push_back(leftBehind(run));
        sequence.texts.push_back(run.text());
    }
    sequence.log = installation.logLines();
    sequence.log.erase(sequence.log.begin(), sequence.log.begin() + static_cast<std::ptrdiff_t>(logged));
    sequence.prompts = installation.prompts.texts;
    return sequence;
}

TEST(FigureSources, FillTheSameTablesAsEachOtherAndAsARecountByHand) {
    const EngineGuard guard;
    for (const unsigned seed : seeds(14)) {
        Random random(seed);
        const ProjectContent content = makeProjectContent(random);
        const std::vector<RandomRun> runs = makeRuns(random);
        RandomInstallation installation(content);
        const WorkspaceTransaction neverWritten(*defaultWorkspace()); // nothing of it needs the disk
        const Sequence stated = performAll(installation, runs, FigureEngine::Statements);
        const Sequence scanned = performAll(installation, runs, FigureEngine::Scan);
        TableRecount recount(content);
        for (std::size_t i = 0; i < runs.size(); ++i) {
            const std::string run =
                "seed " + std::to_string(seed) + ", run " + std::to_string(i) + ": " + stated.texts[i];
            ASSERT_EQ(firstDifference(scanned.left[i], stated.left[i]), "") << run;
            recount.perform(runs[i], stated.places[i]);
            ASSERT_EQ(firstDifference(stated.rows[i], recount.rows(runs[i])), "") << run;
        }
        EXPECT_EQ(scanned.log, stated.log) << "seed " << seed;
        EXPECT_EQ(scanned.prompts, stated.prompts) << "seed " << seed;
    }
}

} // namespace
