#include "bench/BenchSupport.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "multimap/MultiMapSession.h"
#include "tests/multimap/SampleWeeks.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <memory>

namespace {

constexpr long postcodeDistricts = 3;
constexpr int sixMaps = 2;
constexpr QSize mapSize(330, 240); ///< on a screen of 1280 x 800

/// Six weeks of postcode districts, counted.
void countWeeks() {
    static SampleWeeks sample;
    runMultiMapReport(postcodeDistricts, wholeProject(), SampleWeeks::weeks(sixMaps));
}

/// The surfaces of a window that has just been opened.
class Maps {
public:
    explicit Maps(bool share) {
        const auto shared = std::make_shared<GeometryCache>();
        MultiMapSession::Surfaces list{};
        for (std::size_t i = 0; i < surfaces_.size(); ++i) {
            surfaces_[i] = std::make_unique<MapSurface>(share ? shared : std::make_shared<GeometryCache>());
            surfaces_[i]->setPixelSize(mapSize);
            list[i] = surfaces_[i].get();
        }
        key_ = std::make_unique<MapKey>(*surfaces_[0]);
        session = std::make_unique<MultiMapSession>(list, *key_);
        session->begin(postcodeDistricts, SampleWeeks::weeks(sixMaps));
    }

    std::unique_ptr<MultiMapSession> session;

private:
    std::array<std::unique_ptr<MapSurface>, MultiMapSession::mostMaps> surfaces_;
    std::unique_ptr<MapKey> key_;
};

/// From the counted figures to six drawn maps.
void sixMapsAppear(benchmark::State& state) {
    offscreenApplication<QGuiApplication>();
    countWeeks();
    const bool share = state.range(0) != 0;
    for ([[maybe_unused]] auto _ : state)
        Maps(share).session->createMaps();
    state.SetLabel(share ? "shapes read once" : "shapes read by each map");
}
BENCHMARK(sixMapsAppear)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond)->UseRealTime();

void anotherMeasure(benchmark::State& state) {
    offscreenApplication<QGuiApplication>();
    countWeeks();
    const Maps maps(true);
    maps.session->createMaps();
    long mapType = 1;
    for ([[maybe_unused]] auto _ : state) {
        mapType = mapType % 5 + 1;
        maps.session->changeMapType(mapType);
    }
}
BENCHMARK(anotherMeasure)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
