#include "multimap/MultiMapSession.h"

#include "core/Progress.h"
#include "data/project/Databases.h"
#include "map/MapMeasures.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "tests/multimap/SampleWeeks.h"
#include "tests/support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <map>

namespace {

constexpr long tvRegions = 2, postcodeDistricts = 3;

/// Maps of a captured sample project, each with a week of its calls.
class MultiMapSessionTest : public testing::Test {
protected:
    static void SetUpTestSuite() { sample_ = new SampleWeeks; }
    static void TearDownTestSuite() { delete sample_; }

    MultiMapSessionTest() {
        for (MapSurface& surface : surfaces_)
            surface.setPixelSize({240, 300});
    }

    static MultiMapParameters weeks(int optPeriods) { return SampleWeeks::weeks(optPeriods); }
    void start(long boundary, const MultiMapParameters& ranges) {
        runMultiMapReport(boundary, wholeProject(), ranges);
        session_.begin(boundary, ranges);
        session_.createMaps();
    }
    MapSurface& surface(int n) { return surfaces_[static_cast<std::size_t>(n - 1)]; }
    bool labelsAreOn(int n) { return surface(n).scene().layers.back().LayerVisible; }
    std::vector<MapKey::Entry> bandsOf(int n) {
        MapKey key(surface(n));
        key.RebuildKey();
        return key.sections().at(0).entries;
    }

    inline static SampleWeeks* sample_ = nullptr;
    ScriptedPrompts prompts_;
    std::shared_ptr<GeometryCache> shapes_ = std::make_shared<GeometryCache>();
    std::array<MapSurface, 6> surfaces_{MapSurface(shapes_), MapSurface(shapes_), MapSurface(shapes_),
                                        MapSurface(shapes_), MapSurface(shapes_), MapSurface(shapes_)};
    MapKey key_{surfaces_[0]};
    MultiMapSession session_{{&surfaces_[0], &surfaces_[1], &surfaces_[2], &surfaces_[3], &surfaces_[4], &surfaces_[5]},
                             key_};
};

TEST_F(MultiMapSessionTest, TwoMapsNeverTouchTheOthers) {
    start(tvRegions, weeks(0));
    for (int n = 3; n <= 6; ++n) {
        session_.CreateMap(n);
        session_.toolBarClicked(n, static_cast<long>(MapTool::ZoomToExtent));
        session_.drawFinished(n);
        session_.viewChanged(n);
        session_.AddLabelLayer(n);
        EXPECT_TRUE(surface(n).picture().isNull()) << n;
        EXPECT_EQ(surface(n).NumberOfLayers(), 1) << n;
        EXPECT_FALSE(session_.callType(n, "Mobile").detail.has_value()) << n;
    }
    EXPECT_FALSE(surface(2).picture().isNull());
    EXPECT_EQ(session_.currentMap(), 1);
    EXPECT_TRUE(prompts_.texts.empty()) << prompts_.texts.front();
}

TEST_F(MultiMapSessionTest, MapsHaveTheirOwnPeriodsOneScaleAndOneView) {
    start(tvRegions, weeks(2));
    EXPECT_EQ(shapes_->reads(), 2) << "areas and names are read once for all";
    const auto bands = bandsOf(1);
    EXPECT_GE(bands.size(), 4U);
    EXPECT_EQ(key_.sections().at(0).entries, bands);
    for (int n = 1; n <= 6; ++n) {
        const Layer& layer = surface(n).scene().layers[0];
        EXPECT_EQ(layer.LayerSymbolExpression, "TblSelectedDataForTV.TotalCalls" + std::to_string(n + 1));
        EXPECT_EQ(bandsOf(n), bands) << n;
        EXPECT_EQ(surface(n).drawn().camera, surface(1).drawn().camera) << n;
        EXPECT_TRUE(labelsAreOn(n));
    }
    EXPECT_NE(surface(1).picture(), surface(2).picture());
}

TEST_F(MultiMapSessionTest, AMapWithoutCallsIsOfTheLowestBandAndNoMessageComes) {
    MultiMapParameters ranges = weeks(0);
    ranges.DTPicker1[4].days += 4'000;
    ranges.DTPicker1[6].days += 4'000;
    start(tvRegions, ranges);
    EXPECT_EQ(bandsOf(2), bandsOf(1));
    std::map<std::size_t, int> drawn;
    for (const DrawnShape& shape : surface(2).drawn().contents[0].shapes)
        ++drawn[shape.symbol];
    EXPECT_EQ(drawn.size(), 1U);
    EXPECT_EQ(drawn.begin()->first, 0U);
    EXPECT_TRUE(prompts_.texts.empty());

    ranges.DTPicker1[0].days += 4'000;
    ranges.DTPicker1[2].days += 4'000;
    start(tvRegions, ranges);
    EXPECT_EQ(prompts_.texts, std::vector<std::string>{"No Records Found"});
}

TEST_F(MultiMapSessionTest, AnotherMeasureDrawsAllMapsAndKeepsTheirViews) {
    start(tvRegions, weeks(1));
    surface(3).setMapScale(20'000);
    for (const ListEntry& measure : multiMapTypeEntries()) {
        session_.changeMapType(measure.code);
        for (int n = 1; n <= 4; ++n) {
            const std::string column = "." + statisticsColumn(measure.code, n + 1);
            EXPECT_TRUE(surface(n).drawn().scene.layers[0].LayerSymbolExpression.ends_with(column)) << column;
            EXPECT_EQ(surface(n).drawn().scene.layers[0].LayerName.ends_with("(£)"), measure.code >= 4);
        }
        EXPECT_DOUBLE_EQ(surface(3).drawn().camera.scale(), 20'000);
    }
    EXPECT_GT(surface(4).MapScale(), 80'000);
}

TEST_F(MultiMapSessionTest, ZoomExtentBringsAMapBackToTheViewOfTheOthers) {
    start(postcodeDistricts, weeks(0));
    const Camera whole = surface(1).camera();
    surface(2).CentreMapOn(40'000, 40'000);
    surface(2).setMapScale(5'000);
    session_.viewChanged(2);
    EXPECT_TRUE(labelsAreOn(2));
    EXPECT_FALSE(labelsAreOn(1));
    EXPECT_FALSE(session_.mapsFinished());

    session_.toolBarClicked(2, static_cast<long>(MapTool::ZoomToExtent));
    surface(2).DrawMap();
    session_.drawFinished(2);
    EXPECT_EQ(surface(2).drawn().camera, whole);
    EXPECT_FALSE(labelsAreOn(2));
    EXPECT_TRUE(session_.mapsFinished());

    surface(2).setMapScale(5'000);
    session_.toolBarClicked(2, static_cast<long>(MapTool::ZoomToExtent));
    session_.changeMapType(2);
    EXPECT_EQ(surface(2).drawn().camera, whole) << "all maps were built before its draw had ended";
    EXPECT_TRUE(session_.mapsFinished());

    surface(2).setMapScale(5'000);
    surface(2).setPixelSize({500, 300});
    session_.toolBarClicked(2, static_cast<long>(MapTool::ZoomToExtent));
    session_.drawFinished(2);
    EXPECT_TRUE(surface(2).showsWhole()) << "the window is larger than when the maps came up";
}

TEST_F(MultiMapSessionTest, MapsCanBeAlignedToTheOneTheUserHasMoved) {
    start(postcodeDistricts, weeks(1));
    surface(3).CentreMapOn(40'000, 40'000);
    surface(3).setMapScale(5'000);
    session_.viewChanged(3);
    surface(3).DrawMap();
    session_.alignMaps();
    for (int n = 1; n <= 4; ++n) {
        EXPECT_EQ(surface(n).drawn().camera, surface(3).camera()) << n;
        EXPECT_TRUE(labelsAreOn(n)) << n;
    }
    EXPECT_TRUE(surface(5).picture().isNull());
}

TEST_F(MultiMapSessionTest, NamesOfDistrictsAppearBelowTheirScale) {
    start(postcodeDistricts, weeks(0));
    surface(1).setUIMode(MapTool::Pan);
    struct Step {
        double scale;
        bool labels;
    };
    for (const Step step : {Step{10'000, false}, Step{9'999, true}, Step{10'001, false}}) {
        surface(1).setMapScale(step.scale);
        session_.clicked(1);
        EXPECT_EQ(labelsAreOn(1), step.labels) << step.scale;
    }
    surface(1).setUIMode(MapTool::Information);
    surface(1).setMapScale(9'000);
    session_.clicked(1);
    EXPECT_FALSE(labelsAreOn(1)) << "to ask for an area changes no labels";

    start(tvRegions, weeks(0));
    surface(1).setUIMode(MapTool::Pan);
    surface(1).setMapScale(150'000);
    session_.clicked(1);
    EXPECT_TRUE(labelsAreOn(1)) << "regions always have names";
}

TEST_F(MultiMapSessionTest, AnAreaTellsOfThePeriodOfItsMap) {
    start(tvRegions, weeks(2));
    const auto area = systemDatabase().openRecordset(
        "SELECT TOP 1 PGN_TV.POLYGONID, TblSelectedDataForTV.* FROM PGN_TV INNER JOIN TblSelectedDataForTV ON "
        "PGN_TV.NAME = TblSelectedDataForTV.TVRegion ORDER BY TblSelectedDataForTV.Answered2 DESC");
    const auto mobile = systemDatabase().openRecordset("SELECT * FROM TblSelectedDataForTV WHERE TVRegion = 'Mobile'");
    std::map<std::string, int> answers;
    for (int n = 1; n <= 6; ++n) {
        const std::string column = "Answered" + std::to_string(n + 1);
        const AreaAnswer answer = session_.areaAt(n, 0, area->value(0).asLong());
        ASSERT_TRUE(answer.detail.has_value()) << n;
        EXPECT_EQ(answer.detail->answered, "Answered calls = " + area->value(column).asText());
        ++answers[answer.detail->answered];
        EXPECT_EQ(session_.callType(n, "Mobile").detail->answered,
                  "Answered calls = " + mobile->value(column).asText());
    }
    EXPECT_GT(answers.size(), 1U) << "the weeks differ";
    for (const int layer : {-1, 1, 7})
        EXPECT_FALSE(session_.areaAt(1, layer, 1).detail.has_value()) << layer;
    EXPECT_EQ(session_.areaAt(1, 0, 99'999).message, "");
}

TEST_F(MultiMapSessionTest, BarsAreOfThePeriodOfTheirMapOnTheSharedScale) {
    MultiMapParameters ranges = weeks(0);
    ranges.DTPicker1[6].days = wholeProject().DTEnd.days;
    start(tvRegions, ranges);
    const auto bandOfMobile = [&](int n) { return session_.bars(n)[0].band; };
    ASSERT_TRUE(bandOfMobile(1).has_value() && bandOfMobile(2).has_value());
    EXPECT_LT(*bandOfMobile(1), *bandOfMobile(2)) << "a week beside many";
    EXPECT_LT(*bandOfMobile(2), key_.sections().at(0).entries.size());
}

TEST_F(MultiMapSessionTest, PeriodsAreToldWithTheirTimes) {
    MultiMapParameters ranges = weeks(0);
    ranges.DTPicker1[0] = Date{46'027.0}; // 5 January 2026
    ranges.DTPicker1[1] = Date{9.0 / 24};
    ranges.DTPicker1[2] = Date{46'054.25}; // 1 February 2026, whatever its hour
    session_.begin(tvRegions, ranges);
    EXPECT_EQ(session_.period(1), "From 05/01/2026 09:00:00 to 01/02/2026 23:59:59");
}

TEST_F(MultiMapSessionTest, AWorkbookWaitsForTheMapsAndAsksAboutWhatIsOutOfView) {
    EXPECT_TRUE(session_.mayOutputToExcel(true, true));
    EXPECT_TRUE(prompts_.texts.empty());
    EXPECT_FALSE(session_.mayOutputToExcel(false, false));
    EXPECT_EQ(prompts_.texts.back(), "Please wait for maps to finish drawing");
    EXPECT_EQ(prompts_.texts.size(), 1U);
    prompts_.answers = {PromptAnswer::No, PromptAnswer::Yes};
    EXPECT_FALSE(session_.mayOutputToExcel(true, false));
    EXPECT_EQ(prompts_.texts.back(),
              "Only the details currently visible will be output to Excel, are you sure you want to continue?");
    EXPECT_TRUE(session_.mayOutputToExcel(true, false));
}

TEST_F(MultiMapSessionTest, ACloseStopsTheBuildBetweenTwoMaps) {
    struct Closing : Progress {
        explicit Closing(MultiMapSession& closed) : session(closed) { setProgress(this); }
        ~Closing() override { setProgress(nullptr); }
        void yield() override { session.closeRequested = true; }
        MultiMapSession& session;
    };
    runMultiMapReport(tvRegions, wholeProject(), weeks(2));
    session_.begin(tvRegions, weeks(2));
    {
        const Closing closing(session_);
        session_.createMaps();
    }
    EXPECT_FALSE(surface(1).picture().isNull());
    EXPECT_TRUE(surface(2).picture().isNull());
    session_.end();
    EXPECT_EQ(surface(1).NumberOfLayers(), 1);
}

} // namespace
