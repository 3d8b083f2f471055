#include "tests/animation/playback/AnimatedMap.h"

namespace {

using Builds = std::vector<std::string>;

class PlaybackTest : public AnimatedMap {};

TEST_F(PlaybackTest, SetUpFramesComeUpAtTheFirst) {
    setUp(4);
    EXPECT_EQ(playback.state(), Playback::State::Paused);
    EXPECT_EQ(shown(), "100");
    EXPECT_EQ(form.LblStatusValue[0], "02/01/2025");
    EXPECT_EQ(form.LblStatusValue[3], "01:00:00");
    EXPECT_EQ(playback.frameText(), "1 of 4: 02/01/2025 00:00 to 01:00");
    EXPECT_TRUE(form.AnimationActive);
}

TEST_F(PlaybackTest, TheFirstThreeTicksDrawNothing) {
    setUp(4);
    playback.animate();
    EXPECT_EQ(ticks(3), Builds{});
    EXPECT_EQ(ticks(2), (Builds{"TblAnimatedTV1/1/100", "TblAnimatedTV1/2/200"}));
}

TEST_F(PlaybackTest, TwoFramesAlternate) {
    play(2);
    EXPECT_EQ(ticks(5), (Builds{"TblAnimatedTV1/1/100", "TblAnimatedTV1/2/200", "TblAnimatedTV1/1/100",
                                "TblAnimatedTV1/2/200", "TblAnimatedTV1/1/100"}));
}

TEST_F(PlaybackTest, TenFramesGoThroughBothTablesAndRound) {
    play(10);
    const Builds round = ticks(11);
    EXPECT_EQ(round[4], "TblAnimatedTV1/5/500");
    EXPECT_EQ(round[5], "TblAnimatedTV2/1/600");
    EXPECT_EQ(round[9], "TblAnimatedTV2/5/1000");
    EXPECT_EQ(round[10], "TblAnimatedTV1/1/100");
}

TEST_F(PlaybackTest, PlaysOnForHoursWithoutAPause) {
    play(3);
    const Builds many = ticks(400);
    ASSERT_EQ(many.size(), 400U) << "no tick settles again";
    EXPECT_EQ(many[399], "TblAnimatedTV1/1/100");
}

TEST_F(PlaybackTest, AllFramesAreOnOneScaleAndOnlyTheColoursChange) {
    play(10);
    surface.setMapScale(surface.MapScale() / 2);
    const double scale = surface.MapScale(), x = surface.MapCenterX();
    ticks(1);
    const QColor weak = colourAt(surface, 110, 50), first = colourAt(surface, 90, 50);
    ticks(9);
    EXPECT_EQ(shown(), "1000");
    EXPECT_NE(colourAt(surface, 90, 50), first) << "West has ten times the calls";
    EXPECT_EQ(colourAt(surface, 110, 50), weak);
    EXPECT_DOUBLE_EQ(surface.MapScale(), scale);
    EXPECT_DOUBLE_EQ(surface.MapCenterX(), x);
}

TEST_F(PlaybackTest, APauseStaysAtTheFrameOnShow) {
    play(4);
    ticks(2);
    EXPECT_EQ(form.CurrentFrame, 3) << "a tick goes on to the next";
    playback.pause();
    EXPECT_EQ(playback.shownFrame(), 2);
    EXPECT_EQ(form.CurrentFrame, 2);
    EXPECT_EQ(ticks(3), Builds{});
    measure = 2;
    playback.rebuild();
    EXPECT_EQ(form.LblStatusValue[2], "01:00:00") << "another measure of the same frame";
    measure = 1;
    playback.animate();
    EXPECT_EQ(ticks(2), (Builds{"TblAnimatedTV1/2/200", "TblAnimatedTV1/3/300"}));
}

TEST_F(PlaybackTest, APauseAfterTheLastFrameStaysThere) {
    play(3);
    ticks(3);
    EXPECT_EQ(form.CurrentFrame, 1);
    playback.pause();
    EXPECT_EQ(playback.shownFrame(), 3);
    EXPECT_EQ(shown(), "300");
    EXPECT_EQ(form.LblStatusValue[2], "02:00:00");
}

TEST_F(PlaybackTest, APauseBeforeAnythingWasPlayedStaysAtTheFirst) {
    setUp(3);
    playback.animate();
    playback.tick();
    playback.pause();
    EXPECT_EQ(playback.shownFrame(), 1);
}

TEST_F(PlaybackTest, FramesAreSteppedThroughByHand) {
    setUp(7);
    playback.showFrame(6);
    EXPECT_EQ(builds, (Builds{"TblAnimatedTV2/1/600"}));
    EXPECT_EQ(playback.dataSet(), 1);
    EXPECT_EQ(form.LblStatusValue[2], "05:00:00");
    builds.clear();
    for (const int beyond : {8, 0, -1, 11})
        playback.showFrame(beyond);
    EXPECT_EQ(builds, Builds{});
    EXPECT_EQ(form.CurrentFrame, 6);
}

TEST_F(PlaybackTest, AFrameChosenDuringPlayIsGoneOnFrom) {
    play(5);
    playback.showFrame(4);
    EXPECT_EQ(ticks(3), (Builds{"TblAnimatedTV1/4/400", "TblAnimatedTV1/5/500", "TblAnimatedTV1/1/100"}));
}

TEST_F(PlaybackTest, NothingPlaysBeforeFramesAreSetUp) {
    playback.framesReady(); // FrameCount is 0
    playback.animate();
    playback.tick();
    playback.pause();
    playback.showFrame(1);
    playback.stop();
    EXPECT_FALSE(playback.rebuild());
    EXPECT_EQ(playback.state(), Playback::State::Static);
    EXPECT_EQ(builds, Builds{});
    EXPECT_EQ(playback.frameText(), "");
}

TEST_F(PlaybackTest, TheIntervalIsAtLeastASecond) {
    for (const auto& [wanted, interval] : std::vector<std::pair<int, int>>{{1, 1}, {0, 1}, {-5, 1}, {30, 30}}) {
        playback.setInterval(wanted);
        EXPECT_EQ(FrameIntervalSeconds, interval);
    }
    setUp(3);
    playback.animate();
    playback.tick();
    playback.tick();
    playback.setInterval(1);
    EXPECT_EQ(ticks(2), Builds{}) << "the map settles anew";
    EXPECT_EQ(ticks(1).size(), 1U);
}

TEST_F(PlaybackTest, AStopBringsTheReportBack) {
    const MapMaxima before = mapMaxima;
    const auto readOuts = form.LblStatusValue;
    for (const bool paused : {false, true}) {
        play(10);
        EXPECT_NE(mapMaxima.MaxTotalCalls, before.MaxTotalCalls);
        ticks(7);
        if (paused)
            playback.pause();
        playback.stop();
        EXPECT_EQ(playback.state(), Playback::State::Static);
        EXPECT_EQ(builds.back(), "TblTV/1/900");
        EXPECT_EQ(mapMaxima.MaxTotalCalls, before.MaxTotalCalls) << "the scale of the report";
        EXPECT_EQ(form.LblStatusValue, readOuts);
        EXPECT_FALSE(form.AnimationActive);
        EXPECT_EQ(ticks(3), Builds{});
    }
}

TEST_F(PlaybackTest, AStopOfAFilteredReportGoesBackToItsTable) {
    addFigure(*gdbSystem, "TblSelectedDataForTV", "TVRegion", "West", "TotalCalls1", 40);
    FilterActive = true;
    play(3);
    playback.stop();
    EXPECT_EQ(builds.back(), "TblSelectedDataForTV/1/40");
    EXPECT_EQ(currentTables.TV, "TblSelectedDataForTV");
}

TEST_F(PlaybackTest, AFrameWithoutCallsIsNoNews) {
    gdbSystem->execute("UPDATE TblAnimatedTV1 SET TotalCalls1 = 0, TotalCalls2 = 0");
    play(2);
    ticks(4);
    EXPECT_TRUE(prompts.texts.empty()) << prompts.texts.front();
}

TEST_F(PlaybackTest, WhatIsAskedInTheMidstOfABuildIsDoneBehindIt) {
    play(10);
    const auto during = [&](const std::function<void()>& action) {
        yields.next = [&] { yields.next = action; }; // a tick yields before its build, and the build again
        return ticks(1);
    };
    EXPECT_EQ(during([&] { playback.tick(); }), (Builds{"TblAnimatedTV1/1/100"})) << "a beat is dropped";
    EXPECT_EQ(during([&] {
                  playback.showFrame(7);
                  playback.showFrame(9);
              }),
              (Builds{"TblAnimatedTV1/2/200", "TblAnimatedTV2/4/900"}))
        << "the last wish counts";
    EXPECT_EQ(during([&] { playback.rebuild(); }), (Builds{"TblAnimatedTV2/4/900", "TblAnimatedTV2/4/900"}));
    EXPECT_EQ(during([&] { playback.pause(); }), (Builds{"TblAnimatedTV2/5/1000"}));
    EXPECT_EQ(form.CurrentFrame, 10);
    playback.animate();
    EXPECT_EQ(during([&] {
                  playback.showFrame(3);
                  playback.stop();
              }),
              (Builds{"TblAnimatedTV2/5/1000", "TblTV/1/900"}));
    EXPECT_EQ(playback.state(), Playback::State::Static);
}

TEST_F(PlaybackTest, APauseOrAStopBeforeTheBuildOfATickComesFirst) {
    play(4);
    yields.next = [&] { playback.pause(); };
    EXPECT_EQ(ticks(1), Builds{});
    playback.animate();
    yields.next = [&] { playback.stop(); };
    EXPECT_EQ(ticks(1), (Builds{"TblTV/1/900"}));
}

TEST_F(PlaybackTest, AWindowThatClosesLeavesTheFramesBehind) {
    play(4);
    yields.next = [&] { yields.next = [&] { playback.abandon(); }; };
    ticks(1);
    EXPECT_EQ(playback.state(), Playback::State::Static);
    EXPECT_EQ(form.CurrentFrame, 0);
    EXPECT_EQ(ticks(3), Builds{});
    EXPECT_EQ(smallMap.installation.logLines(), std::vector<std::string>{});
}

TEST_F(PlaybackTest, AFrameWhoseTableIsGoneIsLoggedAndTheNextOneFollows) {
    play(10);
    ticks(4);
    gdbSystem->execute("DROP TABLE TblAnimatedTV2");
    ticks(7);
    EXPECT_EQ(shown(), "100") << "round again";
    EXPECT_GT(smallMap.installation.logLinesWith("TblAnimatedTV2"), 0);
    EXPECT_EQ(playback.state(), Playback::State::Playing);
}

/// Only notes what is built.
class PostCodePlaybackTest : public AnimatedMap {
protected:
    void build(long, int dataSet) override {
        builds.push_back(currentTables.TV + currentTables.PostCodeDistrict + "/" + std::to_string(dataSet));
    }
};

TEST_F(PostCodePlaybackTest, DistrictsHaveTablesOfTheirOwn) {
    createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "TblPostCodeDistrict");
    for (const bool filtered : {false, true}) {
        FilterActive = filtered;
        currentTables.clear();
        currentTables.PostCodeDistrict = "TblAnimatedPostCodeDistrict1";
        FrameCount = 6;
        builds.clear();
        playback.framesReady();
        playback.showFrame(5);
        playback.showFrame(6);
        playback.stop();
        EXPECT_EQ(builds, (Builds{"TblAnimatedPostCodeDistrict1/1", "TblAnimatedPostCodeDistrict1/5",
                                  "TblAnimatedPostCodeDistrict2/1",
                                  filtered ? "TblSelectedDataForPostCodeDistrict/1" : "TblPostCodeDistrict/1"}));
    }
    EXPECT_EQ(smallMap.installation.logLines(), std::vector<std::string>{});
}

} // namespace
