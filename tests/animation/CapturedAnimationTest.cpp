#include "animation/CapturedAnimation.h"

#include "tests/animation/AnimatedProject.h"

#include <functional>

namespace {

class CapturedAnimations : public AnimatedProject {
protected:
    CapturedAnimations() {
        parameters.OptInbound = 2;
        parameters.cmbCG = "Sales";
        parameters.OptAnswer = 1;
        parameters.CmbAnswer = "Leeds";
    }
    std::string column(const std::string& name) {
        return valueOf(*gdbSystem, "SELECT " + name + " FROM TblDataCapture");
    }

    ReportParameters parameters;
};

TEST_F(CapturedAnimations, OnlyTheSameSettingsTakeTheFramesThatAreThere) {
    EXPECT_TRUE(CheckAnimationData(settings, parameters)) << "nothing has been counted yet";
    SaveAnimationData(settings, parameters);
    EXPECT_FALSE(CheckAnimationData(settings, parameters));

    struct Change {
        const char* name;
        std::function<void(AnimationSettings&, ReportParameters&)> make;
        bool recomputes;
    };
    const Change changes[] = {
        {"frames", [](auto& s, auto&) { s.CmbFrames = "9"; }, true},
        {"day", [](auto& s, auto&) { s.startDate.days += 1; }, true},
        {"time", [](auto& s, auto&) { s.startTime = parseDate("20:00:01"); }, true},
        {"length", [](auto& s, auto&) { s.CmbDataPeriod = "2hr"; }, true},
        {"the same length in minutes", [](auto& s, auto&) { s.CmbDataPeriod = "60min"; }, false},
        {"interval", [](auto& s, auto&) { s.CmbInterval = "5"; }, false},
        {"other group", [](auto&, auto& p) { p.cmbCG = "Service"; }, true},
        {"a number instead",
         [](auto&, auto& p) {
             p.OptInbound = 1;
             p.CmbInbound = "0800";
         },
         true},
        {"all numbers", [](auto&, auto& p) { p.OptInbound = 0; }, true},
        {"other answer point", [](auto&, auto& p) { p.CmbAnswer = "York"; }, true},
        {"answer point group", [](auto&, auto& p) { p.OptAnswer = 2; }, true},
        {"destination",
         [](auto&, auto& p) {
             p.optDestinationNo = 1;
             p.cmbDestinationNo = "D1";
         },
         false},
        {"overnight", [](auto&, auto& p) { p.ChkOverNight = true; }, false},
        {"days of the report", [](auto&, auto& p) { p.DTStart.days += 1; }, false},
    };
    for (const Change& change : changes) {
        AnimationSettings otherSettings = settings;
        ReportParameters otherParameters = parameters;
        change.make(otherSettings, otherParameters);
        EXPECT_EQ(CheckAnimationData(otherSettings, otherParameters), change.recomputes) << change.name;
    }
    gsBoundaryType = "PostcodeDistrict";
    EXPECT_TRUE(CheckAnimationData(settings, parameters)) << "boundary";
    gsBoundaryType = "TVRegion";
    gsProjectPath += "x";
    EXPECT_TRUE(CheckAnimationData(settings, parameters)) << "project";
}

TEST_F(CapturedAnimations, TheRowSaysWhatTheFramesStandFor) {
    SaveAnimationData(settings, parameters);
    EXPECT_EQ(column("ProjectAnimate"), capturedProjectName());
    EXPECT_EQ(column("BoundaryTypeAnimate"), "TVRegion");
    EXPECT_EQ(column("Animations"), "10");
    EXPECT_EQ(column("AnimateStartDate"), "01/01/2025");
    EXPECT_EQ(column("AnimateStartTime"), "20:00:00");
    EXPECT_EQ(column("AnimatePeriod"), "60");
    EXPECT_EQ(column("AnimateCommunityGroup"), "Sales");
    EXPECT_EQ(column("AnimateAnswerPt"), "Leeds");
    EXPECT_EQ(column("AnimateInboundNo"), "");
    EXPECT_EQ(column("AnimateAnswerPtGroup"), "");
    recordCapture();
    EXPECT_TRUE(CheckAnimationData(settings, parameters)) << "a capture empties the animated tables' meaning";
}

TEST_F(CapturedAnimations, TheWindowStartsWithTheLastAnimationOfTheProject) {
    ReportParameters report;
    report.DTStart = parseDate("03/01/2025");
    report.DTEnd = parseDate("05/01/2025");
    const AnimationSetup setup(report, periods);
    AnimationSettings presets = setup.presets();
    EXPECT_EQ(presets.startDate, report.DTStart);
    EXPECT_EQ(presets.endDate, report.DTEnd);
    EXPECT_EQ(presets.CmbFrames, "");
    settings.CmbDataPeriod = "1.5hr";
    SaveAnimationData(settings, report);
    presets = setup.presets();
    EXPECT_EQ(presets.startDate, settings.startDate);
    EXPECT_EQ(Value(presets.startTime).asText(), "20:00:00");
    EXPECT_EQ(presets.CmbFrames, "10");
    EXPECT_EQ(presets.CmbDataPeriod, "1.5hr");
    EXPECT_EQ(presets.endDate, report.DTEnd) << "an end is not remembered";
    settings.CmbDataPeriod = "7min";
    SaveAnimationData(settings, report);
    EXPECT_EQ(setup.presets().CmbDataPeriod, "") << "not on the list";
    gsProjectPath += "x";
    EXPECT_EQ(setup.presets().CmbFrames, "") << "another project";
}

} // namespace
