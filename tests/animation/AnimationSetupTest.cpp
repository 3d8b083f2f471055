#include "animation/AnimationSetup.h"

#include "tests/animation/AnimatedProject.h"

#include <functional>
#include <stdexcept>

namespace {

/// What the form was told, in its order.
class FormLog : public AnimationForm {
public:
    void DisableForm() override { told.emplace_back("disable"); }
    void EnableForm() override { told.emplace_back("enable"); }
    void showProgress(const std::string& text, int maximum) override {
        told.push_back(text + " " + std::to_string(maximum));
    }
    void setProgress(int value) override { told.push_back(std::to_string(value)); }
    void hideProgress() override { told.emplace_back("hide"); }
    Rows told;
};

class SetUpAnimation : public AnimatedProject {
protected:
    SetUpAnimation() { project.addAllCalls(); }

    bool applyShowing(FormLog& form, const ReportParameters& parameters = {}) {
        return AnimationSetup(parameters, periods).CmdApply_Click(settings, form);
    }
    /// The calls of the first are at noon, in the second frame, whose figures are marked.
    void prepareMarked() {
        settings.startTime = parseDate("10:30:00");
        settings.CmbFrames = "6";
        ASSERT_TRUE(apply());
        ASSERT_EQ(figure("TotalCalls2"), "3");
        gdbSystem->execute("UPDATE TblAnimatedTV1 SET TotalCalls2 = 777 WHERE TVRegion = 'Yorkshire'");
        mapMaxima = {};
    }
};

TEST_F(SetUpAnimation, TheSameSettingsAgainOnlyLookForTheScale) {
    prepareMarked();
    FormLog form;
    ASSERT_TRUE(applyShowing(form));
    EXPECT_EQ(figure("TotalCalls2"), "777") << "no statistics ran";
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 777);
    EXPECT_EQ(form.told, (Rows{"disable", "1", "2", "3", "4", "5", "6", "hide"})) << "and nothing is announced";
    settings.CmbInterval = "5";
    ASSERT_TRUE(apply());
    EXPECT_EQ(figure("TotalCalls2"), "777");
    EXPECT_EQ(FrameIntervalSeconds, 5);
    settings.CmbFrames = "5";
    ASSERT_TRUE(apply());
    EXPECT_EQ(figure("TotalCalls2"), "3") << "another number of frames is another animation";
}

TEST_F(SetUpAnimation, FramesAreKeptForTheMapByTheirNumbers) {
    FormLog form;
    settings.CmbFrames = "6";
    ASSERT_TRUE(applyShowing(form));
    EXPECT_EQ(FrameCount, 6);
    EXPECT_EQ(FrameIntervalSeconds, 2);
    EXPECT_EQ(periods.MapStartDate[1], parseDate("01/01/2025"));
    EXPECT_EQ(Value(periods.MapStartTime[1]).asText(), "20:00:00");
    EXPECT_EQ(periods.MapEndDate[4], parseDate("02/01/2025"));
    EXPECT_EQ(Value(periods.MapEndTime[6]).asText(), "02:00:05");
    EXPECT_EQ(periods.MapStartDate[0], Date{});
    EXPECT_EQ(periods.MapStartDate[7], Date{});
    EXPECT_EQ(form.told, (Rows{"disable", "Analysing map data for project, please wait... 6", "1", "2", "3", "4", "5",
                               "6", "hide"}));
}

TEST_F(SetUpAnimation, SettingsThatDoNotFitChangeNothing) {
    prepareMarked();
    const MapPeriods before = periods;
    showMapOf(2);
    struct Case {
        std::function<void(AnimationSettings&)> make;
        const char* text;
    };
    const Case cases[] = {
        {[](auto& s) { s.startDate = parseDate("31/12/2024"); }, "Invalid start date entered"},
        {[](auto& s) {
             s.OptPeriod = 0;
             s.endDate = parseDate("11/01/2025");
         },
         "Invalid end date entered"},
        {[](auto& s) {
             s.startDate = parseDate("10/01/2025");
             s.startTime = parseDate("18:01:00");
         },
         "Selected settings will exceed the period of the calls contained within this project, please reselect"},
        {[](auto& s) {
             s.OptPeriod = 0;
             s.endDate = s.startDate;
             s.endTime = parseDate("10:00:00");
         },
         "Error calculating intervals"},
    };
    for (const Case& c : cases) {
        const AnimationSettings kept = settings;
        c.make(settings);
        FormLog form;
        EXPECT_FALSE(applyShowing(form)) << c.text;
        EXPECT_EQ(project.prompts.texts.back(), c.text);
        EXPECT_EQ(form.told, (Rows{"disable", "hide", "enable"})) << c.text;
        settings = kept;
    }
    EXPECT_EQ(project.prompts.texts.size(), std::size(cases));
    EXPECT_EQ(currentTables.TV, "TblTV");
    EXPECT_EQ(periods.MapStartTime, before.MapStartTime);
    ASSERT_TRUE(apply());
    EXPECT_EQ(figure("TotalCalls2"), "777") << "the frames of the last animation are still known";
}

TEST_F(SetUpAnimation, ATooLargeGroupIsToldOnceAndCountsNothing) {
    prepareMarked();
    const auto groups =
        defaultWorkspace()->openDatabase(project.file("CustomerGroups.mdb"), Workspace::Access::Shared, ProjectConnect);
    WorkspaceTransaction rows(*defaultWorkspace());
    for (int number = 0; number <= 1500; ++number)
        groups->execute("INSERT INTO tblCommunityGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '" +
                        std::to_string(number) + "', 'Large')");
    rows.commit();
    ReportParameters parameters;
    parameters.OptInbound = 2;
    parameters.cmbCG = "Large";
    mapMaxima.MaxTotalCalls = 5;
    EXPECT_FALSE(apply(parameters));
    ASSERT_EQ(project.prompts.texts.size(), 2U);
    EXPECT_EQ(project.prompts.texts.back(), "Please re-select parameters");
    EXPECT_FALSE(GroupLimitExceeded);
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 5) << "the map on show keeps its scale";
    EXPECT_EQ(figure("TotalCalls2"), "777");
}

TEST_F(SetUpAnimation, OtherMapsCannotBeAnimated) {
    currentTables.clear();
    currentTables.CSG = "TblCSG";
    EXPECT_FALSE(apply());
    EXPECT_EQ(project.prompts.texts, Rows{"Only maps of TV Regions and Post Code Districts can be animated"});
    EXPECT_EQ(FrameCount, 0);
}

TEST_F(SetUpAnimation, FramesWhoseCountingWasCutShortAreNotTakenForWhole) {
    prepareMarked();
    class Unplugged : public Progress {
    public:
        Unplugged() { setProgress(this); }
        ~Unplugged() override { setProgress(nullptr); }
        void yield() override { throw std::runtime_error("the disk is gone"); }
    };
    settings.CmbFrames = "2";
    {
        const Unplugged progress;
        EXPECT_FALSE(apply());
    }
    settings.CmbFrames = "6";
    ASSERT_TRUE(apply());
    EXPECT_EQ(figure("TotalCalls2"), "3") << "the row does not speak for tables that have been written to";
}

} // namespace
