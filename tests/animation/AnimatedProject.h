#pragma once

#include "animation/Animation.h"
#include "animation/AnimationSetup.h"
#include "report/CaptureRow.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "stats/SelectionState.h"
#include "stats/StatsProgress.h"
#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

#include <random>

/// A captured project with calls on the first ten days of January 2025 and its map of TV regions on show.
class AnimatedProject : public testing::Test {
protected:
    AnimatedProject() {
        createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "TblAnimatedPostCodeDistrict2");
        createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "TblDataCapture");
        createVocabularyTable(*gdbProject, DatabaseKind::Project, "TblDataCapture");
        createVocabularyTable(*gdbProject, DatabaseKind::Project, "TblCallSummary1");
        gdbProject->execute("INSERT INTO TblCallSummary1 (SBSStartDate, SBSEndDate) VALUES (#1/1/2025#, #1/10/2025#)");
        recordCapture();
        showMapOf(2);
        settings.startDate = parseDate("01/01/2025");
        settings.startTime = parseDate("20:00:00");
        settings.CmbDataPeriod = "1hr";
        settings.CmbFrames = "10";
        settings.CmbInterval = "2";
    }
    ~AnimatedProject() override {
        mapMaxima = {};
        currentTables.clear();
        GroupLimitExceeded = false;
        StatsProgressStep = StatsProgressMaximum = 0;
        resetAnimation();
    }

    void showMapOf(long boundary) {
        currentTables.clear();
        *currentTables.of(boundary) = boundary == 2 ? "TblTV" : "TblPostCodeDistrict";
        gsBoundaryType = boundary == 2 ? "TVRegion" : "PostcodeDistrict";
    }

    /// Calls at times of the first four days, some of them on a full hour, others with seconds behind it.
    void addScatteredCalls(int count) {
        std::mt19937 random(20250105);
        const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
        const char* codes[] = {"0113", "0113", "0114", "MOBILE", ".33"};
        const char* outcomes[] = {"0", "8", "2", "4", "7"};
        for (int i = 0; i < count; ++i) {
            char time[16];
            std::snprintf(time, sizeof time, "%02d:%02d:%02d", below(24), below(3) == 0 ? 0 : below(60), below(60));
            SmallCall call{
                .caller = std::to_string(below(40)), .code = codes[below(5)], .answerInd = outcomes[below(5)]};
            call.day = 1 + below(4);
            call.time = time;
            call.called = below(3) == 0 ? "0845" : "0800";
            call.destination = below(2) == 0 ? "D1" : "D2";
            calls.push_back(call);
        }
        project.addCalls(calls);
    }

    bool apply(const ReportParameters& parameters = {}) {
        AnimationForm form;
        return AnimationSetup(parameters, periods).CmdApply_Click(settings, form);
    }

    std::string figure(const std::string& column, const std::string& table = "TblAnimatedTV1",
                       const std::string& area = "TVRegion = 'Yorkshire'") {
        return valueOf(*gdbSystem, "SELECT " + column + " FROM " + table + " WHERE " + area);
    }

    BoundaryProject project;
    std::vector<SmallCall> calls;
    AnimationSettings settings;
    MapPeriods periods;
};
