#pragma once

#include "animation/Animation.h"
#include "animation/playback/Playback.h"
#include "animation/playback/PlaybackMap.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "data/schema/Vocabulary.h"
#include "map/ThematicMap.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "stats/ModData_MaxValues.h"
#include "stats/SelectionState.h"
#include "tests/map/SmallMap.h"
#include "tests/support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// Does something at the next yield, once: what a person may click while a build lets events run.
class YieldOnce : public Progress {
public:
    YieldOnce() { setProgress(this); }
    ~YieldOnce() override { setProgress(nullptr); }
    YieldOnce(const YieldOnce&) = delete;
    YieldOnce& operator=(const YieldOnce&) = delete;

    std::function<void()> next;
    void yield() override {
        if (const auto action = std::exchange(next, nullptr))
            action();
    }
};

/// The small map of TV regions with a report on show, and ten frames for it: in frame n West has 100 n calls, the
/// others have none; its hour is the n-th of 2 January. The report is of the first ten days, West with 900 calls.
class AnimatedMap : public testing::Test, protected PlaybackMap {
protected:
    AnimatedMap() {
        for (const char* table : {"TblAnimatedTV1", "TblAnimatedTV2"})
            makeFrames(table, table[13] == '1' ? 0 : framesOfTable);
        for (std::size_t frame = 1; frame <= maximumFrames; ++frame) {
            frames.MapStartDate[frame] = frames.MapEndDate[frame] = parseDate("02/01/2025");
            frames.MapStartTime[frame] = Date{(static_cast<double>(frame) - 1) / 24};
            frames.MapEndTime[frame] = Date{static_cast<double>(frame) / 24};
        }
        report.DTStart = parseDate("01/01/2025");
        report.DTEnd = parseDate("10/01/2025");
        form.periods.MapStartDate[1] = report.DTStart;
        form.periods.MapEndDate[1] = report.DTEnd;
        form.periods.MapStartTime[1] = report.DTStartTime[0];
        form.periods.MapEndTime[1] = report.DTStartTime[1];
        gsBoundaryType = "TVRegion";
        currentTables.TV = "TblTV";
        mapMaxima = {};
        ModData_MaxValues("TblTV", 1);
        surface.setPixelSize(QSize(300, 100));
        build(1, 1);
        builds.clear();
    }
    ~AnimatedMap() override {
        mapMaxima = {};
        currentTables.clear();
        FilterActive = false;
        resetAnimation();
    }

    void makeFrames(const std::string& table, int before) {
        if (!gdbSystem->tableDefs().find(table))
            createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, table);
        addFigure(*gdbSystem, table, "TVRegion", "West", "TotalCalls1", 100.0 * (before + 1));
        for (int period = 2; period <= framesOfTable; ++period)
            gdbSystem->execute("UPDATE " + table + " SET TotalCalls" + std::to_string(period) + " = " +
                               std::to_string(100 * (before + period)));
    }

    /// As the window that sets an animation up leaves things.
    void setUp(int count) {
        mapMaxima.resetForRun();
        for (int frame = 1; frame <= count; ++frame)
            ModData_MaxValues(animatedTable(animatedTVRegions, frame), animatedPeriod(frame));
        form.periods = frames;
        FrameCount = static_cast<std::int16_t>(count);
        FrameIntervalSeconds = 3;
        currentTables.TV = "TblAnimatedTV1";
        playback.framesReady();
        builds.clear();
    }
    void play(int count) {
        setUp(count);
        playback.animate();
        for (int tick = 0; tick < 3; ++tick)
            playback.tick(); // the map settles
    }

    long mapType() const override { return measure; }
    const ReportParameters& parameters() const override { return report; }
    void build(long type, int dataSet) override {
        EXPECT_FALSE(std::exchange(building, true)) << "a build starts in the midst of another";
        map.CreateMap(animatedTVRegions, type, dataSet);
        builds.push_back(currentTables.TV + "/" + std::to_string(dataSet) + "/" + form.LblStatusValue[5]);
        building = false;
    }
    std::vector<std::string> ticks(int count) {
        builds.clear();
        for (int tick = 0; tick < count; ++tick)
            playback.tick();
        return builds;
    }
    /// The figure of West on show; 100 times the frame.
    std::string shown() const { return form.LblStatusValue[5]; }

    SmallMap smallMap;
    ScriptedPrompts prompts;
    YieldOnce yields;
    MapSurface surface;
    MapKey key{surface};
    MapFormState form;
    ThematicMap map{surface, key, form, currentTables, mapMaxima};
    MapPeriods frames;
    ReportParameters report;
    long measure = 1;
    bool building = false;
    std::vector<std::string> builds; ///< table/period/largest figure
    Playback playback{*this, form};
};
