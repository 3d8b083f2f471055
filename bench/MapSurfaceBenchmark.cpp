#include "core/ModDeclarations.h"
#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "data/shapes/ShapeCodec.h"
#include "map/surface/LayerSource.h"
#include "map/surface/MapSurface.h"
#include "report/OpenInstallation.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::size_t FewestVertices = 400'000;
constexpr QSize PictureSize(1400, 1000);
constexpr MapColourCode Colours[] = {0xFFFFFF, 0xDDDDFF, 0xBBBBFF, 0x9999FF, 0x7777FF, 0x5555FF, 0x3333FF, 0x0000FF};

/// Puts a point into the middle of every edge, a little to one side. Both neighbours of an edge find the same point,
/// whatever way they run along it.
ShapeRing subdivided(const ShapeRing& ring) {
    ShapeRing finer;
    for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
        const ShapePoint& a = ring[i];
        const ShapePoint& b = ring[i + 1];
        const double side = std::sin(a.x + b.x + 3.0 * (a.y + b.y)) * 0.15 * (a.x < b.x ? 1.0 : -1.0);
        finer.push_back(a);
        finer.push_back({(a.x + b.x) / 2.0 - (b.y - a.y) * side, (a.y + b.y) / 2.0 + (b.x - a.x) * side});
    }
    finer.push_back(ring.back());
    return finer;
}

std::size_t vertexCount(Database& database) {
    return static_cast<std::size_t>(
        database.openRecordset("SELECT Sum(NUMVERT) FROM PGN_POSTCODEDISTRICT")->value(0).asInteger());
}

void subdivideDistricts(Database& database) {
    WorkspaceTransaction transaction(*defaultWorkspace());
    const auto rows = database.openRecordset("SELECT * FROM PGN_POSTCODEDISTRICT");
    for (; !rows->EOF_(); rows->MoveNext()) {
        Shape shape = std::get<Shape>(decodeShape(rows->value("NUMVERT").asInteger(), rows->value("VERTICES").asBytes(),
                                                  rows->value("NUMPARTS").asInteger(), rows->value("PARTS").asBytes()));
        for (ShapeRing& ring : shape.rings)
            ring = subdivided(ring);
        const EncodedShape encoded = encodeShape(shape);
        rows->Edit();
        rows->set("NUMVERT", encoded.numVert);
        rows->set("VERTICES", encoded.vertices);
        rows->set("PARTS", encoded.parts);
        rows->Update();
    }
    transaction.commit();
}

/// The sample with finer districts and a figure for each of them; made once for the program.
struct FineSample {
    FineSample() {
        sample::SampleOptions options;
        options.folder = folder.file("sample");
        options.calls = 20'000;
        sample::makeSampleInstallation(options);
        openInstallation(options.folder);
        Database& database = *gdbSystem;
        while (vertexCount(database) < FewestVertices)
            subdivideDistricts(database);
        vertices = vertexCount(database);
        database.execute("DELETE FROM TblPostCodeDistrict");
        database.execute("INSERT INTO TblPostCodeDistrict (PostCodeDistrict, TotalCalls1) SELECT NAME, POLYGONID Mod "
                         "997 FROM PGN_POSTCODEDISTRICT");
    }
    ~FineSample() {
        resetGlobals();
        resetDefaultWorkspace();
    }

    TemporaryFolder folder;
    std::size_t vertices = 0;
};

FineSample& fineSample() {
    static int argumentCount = 1;
    static char name[] = "bench_map_surface";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(argumentCount, arguments);
    static FineSample sample;
    return sample;
}

/// The thematic layer of all districts, whole in the view.
void describe(MapSurface& surface) {
    surface.setPixelSize(PictureSize);
    Layer& layer = surface.layer();
    layer.LayerDataSource = LayerSource{gsSystemDBPath, std::string(SystemMapPassword)}.text();
    layer.LayerCoverageName = "CCL_POSTCODEDISTRICT";
    layer.LayerJoins = "PGN_POSTCODEDISTRICT LEFT JOIN TblPostCodeDistrict ON Left(PGN_POSTCODEDISTRICT.NAME, 50) = "
                       "TblPostCodeDistrict.PostCodeDistrict";
    layer.LayerFields = "PGN_POSTCODEDISTRICT.NAME, TblPostCodeDistrict.TotalCalls1";
    layer.LayerSymbolExpression = "TblPostCodeDistrict.TotalCalls1";
    double from = 0;
    for (MapColourCode colour : Colours) {
        if (from > 0)
            surface.AddSymbol();
        surface.setSymbolIndex(surface.NumberOfSymbols() - 1);
        Symbol& symbol = surface.symbol();
        symbol.SymbolNumericRangeFrom = std::to_string(from);
        symbol.SymbolNumericRangeTo = std::to_string(from + 125);
        symbol.SymbolPolygonColor = colour;
        from += 125;
    }
}

void report(benchmark::State& state, const FineSample& sample) {
    state.counters["vertices"] = static_cast<double>(sample.vertices);
}

/// A surface that has drawn the whole map once.
struct DrawnSurface {
    DrawnSurface() {
        fineSample();
        describe(surface);
        surface.ZoomToExtent();
        surface.DrawMap();
    }
    MapSurface surface;
};

/// A new surface on a file that has to be opened: rows, shapes, pixels, picture.
void firstFrame(benchmark::State& state) {
    FineSample& sample = fineSample();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        gdbSystem.reset();
        resetDefaultWorkspace();
        MapSurface surface;
        describe(surface);
        state.ResumeTiming();
        surface.ZoomToExtent();
        surface.DrawMap();
        benchmark::DoNotOptimize(surface.picture().constBits());
    }
    report(state, sample);
}

void redrawAfterZoom(benchmark::State& state) {
    DrawnSurface map;
    const double whole = map.surface.MapScale();
    const double nearer[] = {0.98, 0.5, 0.25, 0.97, 0.1, 1.0};
    std::size_t turn = 0;
    double worst = 0;
    for ([[maybe_unused]] auto _ : state) {
        map.surface.setMapScale(whole * nearer[turn++ % std::size(nearer)]);
        const auto start = std::chrono::steady_clock::now();
        map.surface.DrawMap();
        worst = std::max(worst,
                         std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    state.counters["worst_ms"] = worst;
    report(state, fineSample());
}

void redrawWholeMap(benchmark::State& state) {
    DrawnSurface map;
    const double whole = map.surface.MapScale();
    int turn = 0;
    for ([[maybe_unused]] auto _ : state) {
        map.surface.setMapScale(whole * (1.0 + (turn++ % 7) / 1000.0));
        map.surface.DrawMap();
    }
    report(state, fineSample());
}

/// Other figures for all districts; the query belongs to it.
void recolour(benchmark::State& state) {
    DrawnSurface map;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        gdbSystem->execute("UPDATE TblPostCodeDistrict SET TotalCalls1 = (TotalCalls1 + 131) Mod 997");
        state.ResumeTiming();
        map.surface.CloseLayerSource(0);
        map.surface.DrawMap();
    }
    report(state, fineSample());
}

/// One step of a drag by 12 pixels across and 8 down, there and back.
void panStep(benchmark::State& state) {
    DrawnSurface map;
    int turn = 0;
    for ([[maybe_unused]] auto _ : state) {
        const int direction = turn++ / 20 % 2 == 0 ? 1 : -1;
        map.surface.PanBy(QPoint(12, 8) * direction);
    }
    report(state, fineSample());
}

void hitTest(benchmark::State& state) {
    DrawnSurface map;
    const QRectF view = map.surface.camera().visibleMap();
    std::uint32_t seed = 1;
    const auto share = [&] { return (seed = seed * 1664525U + 1013904223U) / 4294967296.0; };
    std::int64_t hits = 0;
    for ([[maybe_unused]] auto _ : state) {
        const QPointF point(view.left() + share() * view.width(), view.top() + share() * view.height());
        hits += areaAt(map.surface.drawn(), point).has_value();
    }
    state.counters["share_hit"] = static_cast<double>(hits) / static_cast<double>(state.iterations());
    report(state, fineSample());
}

BENCHMARK(redrawWholeMap)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(redrawAfterZoom)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(recolour)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(panStep)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(hitTest)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(firstFrame)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime()->Iterations(5);

} // namespace
