#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "data/schema/Vocabulary.h"
#include "groups/shapes/ModData_Merge.h"
#include "tests/support/ShapeRows.h"
#include "tests/support/SmallInstallation.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

namespace {

constexpr int columns = 25;
constexpr int rows = 20;
constexpr int stepsOfASide = 38; ///< makes 152 vertices for each district
constexpr double side = 1000;    ///< map units

/// Districts side by side whose borders wander. `disagreement`: how far the two outlines of a border lie apart at most.
class Districts {
public:
    explicit Districts(double disagreement) : offBy_(-disagreement, disagreement) {}

    Shape shape(int x, int y) {
        ShapeRing ring;
        const int corners[][2]{{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}, {x, y}};
        for (int i = 0; i < 4; ++i) {
            for (int step = 0; step < stepsOfASide; ++step)
                ring.push_back(onSide(corners[i], corners[i + 1], step));
        }
        ring.push_back(ring.front());
        return {{ring}};
    }

private:
    /// The same point from either end of the side.
    ShapePoint onSide(const int* from, const int* to, int step) {
        const double x = from[0] * stepsOfASide + (to[0] - from[0]) * step;
        const double y = from[1] * stepsOfASide + (to[1] - from[1]) * step;
        const double scale = side / stepsOfASide;
        return {scale * (x + 1.2 * std::sin(0.31 * x + 1.7 * std::cos(0.23 * y))) + offBy_(random_),
                scale * (y + 1.2 * std::sin(0.27 * y + 1.3 * std::cos(0.37 * x))) + offBy_(random_)};
    }

    std::mt19937 random_{1};
    std::uniform_real_distribution<double> offBy_;
};

/// A group of 500 districts, from the rows of PGN_TEMP to the stored shape and label.
void mergeOfDistricts(benchmark::State& state) {
    const SmallInstallation installation;
    for (const char* table : {"PGN_TEMP", "PNT_GROUPS"})
        createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, table);
    Districts districts(state.range(0) == 0 ? 0.0 : 0.3);
    WorkspaceTransaction filling(*defaultWorkspace());
    for (int i = 0; i < columns * rows; ++i)
        addPolygon(*gdbSystem, "PGN_TEMP", i, "", districts.shape(i % columns, i / columns));
    gdbSystem->execute("SELECT * INTO Members FROM PGN_TEMP");
    filling.commit();

    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        gdbSystem->execute("DELETE FROM PGN_TEMP");
        gdbSystem->execute("INSERT INTO PGN_TEMP SELECT * FROM Members");
        MergeGroupName = "All";
        MergeStep = 0;
        state.ResumeTiming();
        ModData_Merge({});
    }
    state.SetLabel(state.range(0) == 0 ? "borders agree" : "borders differ");
    state.counters["parts"] = std::stod(valueOf(*gdbSystem, "SELECT NUMPARTS FROM PGN_GROUPS"));
    state.counters["vertices"] = std::stod(valueOf(*gdbSystem, "SELECT NUMVERT FROM PGN_GROUPS"));
}

BENCHMARK(mergeOfDistricts)->DenseRange(0, 1)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
