#include "map/windows/FrmMap.h"

#include "animation/Animation.h"
#include "animation/windows/FrmAnimate.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "groups/windows/frmGroups.h"
#include "map/surface/windows/MapSurfaceWidget.h"
#include "map/surface/windows/MapToolBar.h"
#include "map/windows/CallTypePie.h"
#include "map/windows/FrmCallDetail.h"
#include "report/ReportRun.h"
#include "stats/CurrentTables.h"
#include "tests/support/CapturedSample.h"
#include "tests/support/ScriptedPrompts.h"
#include "ui/OpenDocument.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <filesystem>
#include <set>

namespace {

/// The map of a captured sample project, shown at a size that a small screen has.
class FrmMapTest : public testing::Test {
protected:
    static void SetUpTestSuite() { sample_ = new CapturedSample(5'000, 2); }
    static void TearDownTestSuite() { delete sample_; }

    FrmMapTest() { window_.resize(1280, 760); }

    void show(long boundary) {
        runReport(boundary, wholeProject());
        window_.showReport(boundary, wholeProject());
        QCoreApplication::processEvents();
    }
    void choose(const char* list, const QString& text) {
        auto* box = window_.findChild<QComboBox*>(list);
        const int row = box->findText(text);
        ASSERT_GE(row, 0) << text.toStdString();
        box->setCurrentIndex(row);
        emit box->activated(row);
        QCoreApplication::processEvents();
    }
    QString readOut(int index) {
        return window_.findChild<QLabel*>(QStringLiteral("LblStatusValue_%1").arg(index))->text();
    }
    MapSession& session() { return window_.session(); }
    MapSurface& surface() { return window_.MapSurface1()->surface(); }
    bool labelsAreOn() { return surface().scene().layers.back().LayerVisible; }

    inline static CapturedSample* sample_ = nullptr;
    ScriptedPrompts prompts_;
    FrmMap window_;
};

TEST_F(FrmMapTest, ComesUpWithTheMapItsKeyAndItsReadOuts) {
    show(2);
    EXPECT_TRUE(window_.isVisible());
    EXPECT_EQ(window_.findChild<QComboBox*>("CmbBoundary")->currentText(), "TV Regions");
    EXPECT_EQ(window_.findChild<QComboBox*>("cmbMapType")->currentText(), "Total Calls");
    EXPECT_EQ(readOut(4).toStdString(), window_.session().form.extremes[2].MapMaxName);
    EXPECT_FALSE(readOut(5).isEmpty());
    EXPECT_EQ(readOut(2), "00:00:00");
    EXPECT_TRUE(window_.findChild<QLabel*>("LblStatusValue_6")->isVisible());
    EXPECT_TRUE(window_.findChild<CallTypePie*>("fraPie")->isVisible());
    EXPECT_FALSE(surface().picture().isNull());
    EXPECT_TRUE(prompts_.texts.empty()) << prompts_.texts.front();
}

TEST_F(FrmMapTest, EveryBoundaryAndMeasureIsReachedThroughTheLists) {
    show(2);
    for (const char* boundary : {"Exchange Locations", "CSG's", "Post Code Districts", "TV Regions"}) {
        choose("CmbBoundary", boundary);
        EXPECT_EQ(window_.findChild<QComboBox*>("CmbBoundary")->currentText(), boundary);
        auto* types = window_.findChild<QComboBox*>("cmbMapType");
        EXPECT_EQ(types->findText("Average Calls Per Caller") >= 0,
                  gsBoundaryType == "TVRegion" || gsBoundaryType == "PostcodeDistrict");
        for (int row = 0; row < types->count(); ++row) {
            choose("cmbMapType", types->itemText(row));
            EXPECT_EQ(types->currentIndex(), row);
            EXPECT_TRUE(window_.session().form.mapReady);
        }
        choose("cmbMapType", "Total Calls");
    }
    EXPECT_TRUE(prompts_.texts.empty()) << prompts_.texts.front();
}

TEST_F(FrmMapTest, ASmallWindowShowsTheCountryRatherThanThePie) {
    show(2);
    auto* pie = window_.findChild<CallTypePie*>("fraPie");
    window_.resize(800, 560);
    QCoreApplication::processEvents();
    EXPECT_FALSE(pie->isVisible());
    window_.resize(1280, 800);
    QCoreApplication::processEvents();
    EXPECT_TRUE(pie->isVisible());
}

TEST_F(FrmMapTest, AveragesRevertWhereTheyDoNotExist) {
    show(2);
    choose("cmbMapType", "Average Calls Per Caller");
    choose("CmbBoundary", "CSG's");
    ASSERT_EQ(prompts_.texts.size(), 1U);
    EXPECT_EQ(prompts_.texts[0],
              "Average Calls Per Caller Report only applicable to TV Regions and Postcode Districts. "
              "Reverting to Total Calls");
    EXPECT_EQ(window_.findChild<QComboBox*>("cmbMapType")->currentText(), "Total Calls");
    EXPECT_FALSE(window_.findChild<QLabel*>("LblStatusValue_6")->isVisible()) << "CSGs have no minimum";
}

TEST_F(FrmMapTest, ChangingTheMeasureKeepsTheViewAndTheBoundaryDoesNot) {
    show(3);
    const double whole = surface().MapScale();
    surface().setMapScale(whole / 20);
    choose("cmbMapType", "Cost");
    EXPECT_DOUBLE_EQ(surface().MapScale(), whole / 20);
    choose("CmbBoundary", "TV Regions");
    EXPECT_NEAR(surface().MapScale(), whole, whole / 100);
}

TEST_F(FrmMapTest, RatesComeFromTheirOwnTableAndAveragesHaveNone) {
    show(2);
    auto* rates = window_.findChild<QCheckBox*>("chkDensities");
    ASSERT_TRUE(rates->isEnabled()) << "the sample has population figures";
    const QString most = readOut(5);
    QTest::mouseClick(rates, Qt::LeftButton, {}, QPoint(8, rates->height() / 2));
    EXPECT_EQ(currentTables.TV, "tblTVByPopulation");
    EXPECT_NE(readOut(5), most);
    choose("cmbMapType", "Average Calls Per Caller");
    EXPECT_EQ(currentTables.TV, "TblTV");
    EXPECT_FALSE(rates->isEnabled() || rates->isChecked());
    const auto row = [&](const char* name) { return window_.findChild<QWidget*>(name); };
    EXPECT_TRUE(row("ucwlOtherText")->isHidden() && row("ucwlInternationalBar")->isHidden());
    EXPECT_FALSE(row("ucwlMobileText")->isHidden() || row("ucwlVOIPBar")->isHidden());
    choose("cmbMapType", "Total Calls");
    EXPECT_TRUE(rates->isEnabled());
    EXPECT_FALSE(row("ucwlOtherText")->isHidden());
    EXPECT_EQ(readOut(5), most);
}

TEST_F(FrmMapTest, LabelsOfDistrictsAppearBelowTheirScaleAndGoAtFullExtent) {
    show(3);
    EXPECT_FALSE(labelsAreOn());
    surface().setMapScale(9'000);
    emit window_.MapSurface1()->Click();
    EXPECT_TRUE(labelsAreOn());
    surface().setMapScale(10'000);
    emit window_.MapSurface1()->Click();
    EXPECT_FALSE(labelsAreOn());
    surface().setMapScale(9'000);
    emit window_.MapSurface1()->Click();
    QTest::mouseClick(window_.MapSurface1()->toolBar().button(MapTool::ZoomToExtent), Qt::LeftButton);
    QTest::qWait(50);
    EXPECT_FALSE(labelsAreOn());
    EXPECT_GT(surface().MapScale(), 80'000);
}

TEST_F(FrmMapTest, ZoomingOutPastTheMapBringsTheWholeMapBack) {
    show(2);
    const double whole = surface().MapScale();
    QTest::mouseClick(window_.MapSurface1()->toolBar().button(MapTool::ZoomOut), Qt::LeftButton);
    surface().setMapScale(16'000);
    surface().CentreMapOn(0, 0);
    QTest::mouseClick(&window_.MapSurface1()->canvas(), Qt::LeftButton, {}, QPoint(300, 300));
    QTest::qWait(50);
    EXPECT_NEAR(surface().MapScale(), whole, whole / 100);
    EXPECT_EQ(surface().UIMode(), MapTool::ZoomOut);
}

TEST_F(FrmMapTest, AClickOnAnAreaTellsWhatIsKnownOfIt) {
    show(2);
    QTest::mouseClick(window_.MapSurface1()->toolBar().button(MapTool::Information), Qt::LeftButton);
    EXPECT_TRUE(window_.findChild<QWidget*>("fraOtherCallAreas")->isVisible());
    QString title;
    QTimer::singleShot(100, [&] {
        if (auto* dialog = qobject_cast<FrmCallDetail*>(QApplication::activeModalWidget())) {
            title = dialog->findChild<QLabel*>("lblTitle", Qt::FindChildrenRecursively)->text();
            for (QLabel* label : dialog->findChildren<QLabel*>()) {
                if (label->text().startsWith("TV Region = "))
                    title = label->text();
            }
            dialog->reject();
        }
    });
    EXPECT_FALSE(window_.session().callType("Mobile").detail->campaign.has_value());
    gcCampaignSpend = 100;
    campaignCosts = {.perAnsweredCall = 0.5, .perAnsweredCaller = 2};
    EXPECT_TRUE(window_.session().callType("Mobile").detail->campaign.has_value());
    gcCampaignSpend = 0;
    emit window_.MapSurface1()->MapEntityInfo(0, 1);
    QTest::qWait(300);
    EXPECT_TRUE(title.startsWith("TV Region = ")) << title.toStdString();
    emit window_.MapSurface1()->MapEntityInfo(-1, -1);
    QTest::qWait(20);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FrmMapTest, EveryBoundaryTellsOfItsAreasInItsOwnWords) {
    struct Words {
        long boundary;
        const char* shapes;
        const char* title;
        const char* mobileTitle;
        std::optional<std::string> heading;
    };
    const Words cases[] = {
        {0, "PGN_EXCHANGEAREA", "Exchange = ", "Exchange = Mobile", std::nullopt},
        {1, "PGN_CSG", "CSG = ", "CSG = Mobile", "Exchanges included in this CSG"},
        {2, "PGN_TV", "TV Region = ", "TV Region = Mobile", "Exchanges included in this TV Area"},
        {3, "PGN_POSTCODEDISTRICT", "Post Code = ", "Postcode District = Mobile",
         "Exchanges included in this Post Code"},
    };
    for (const Words& words : cases) {
        show(words.boundary);
        const auto area = gdbSystem->openRecordset("SELECT TOP 1 POLYGONID, NAME FROM " + std::string(words.shapes) +
                                                   " WHERE NAME <> 'Republic Of Ireland' ORDER BY NAME");
        const AreaAnswer answer = window_.session().areaAt(0, area->value(0).asLong());
        ASSERT_TRUE(answer.detail.has_value()) << words.shapes << answer.message;
        EXPECT_EQ(answer.detail->title, words.title + area->value(1).asText());
        EXPECT_EQ(answer.detail->listHeading, words.heading);
        if (words.heading) {
            ASSERT_FALSE(answer.detail->exchanges.empty());
            EXPECT_TRUE(std::ranges::is_sorted(answer.detail->exchanges)) << words.shapes;
            EXPECT_FALSE(answer.detail->exchanges[0].starts_with("No Exchanges")) << words.shapes;
        }
        const AreaAnswer mobile = window_.session().callType("Mobile");
        ASSERT_TRUE(mobile.detail.has_value()) << words.shapes << mobile.message;
        EXPECT_EQ(mobile.detail->title, words.mobileTitle);
        EXPECT_EQ(mobile.detail->population.has_value(), false);
        window_.close();
    }
}

/// The window that opens next is filled in and left by its button; "" is left by Escape.
class AnimationForm {
public:
    explicit AnimationForm(QString apply, QString frames = "3", QString period = "24hr") {
        timer_.setInterval(20);
        QObject::connect(&timer_, &QTimer::timeout, [=, this] {
            auto* window = qobject_cast<FrmAnimate*>(QApplication::activeModalWidget());
            if (!window)
                return;
            timer_.stop();
            if (apply.isEmpty()) {
                window->reject();
                return;
            }
            window->findChild<QComboBox*>("CmbDataPeriod")->setCurrentText(period);
            window->findChild<QComboBox*>("CmbFrames")->setCurrentText(frames);
            window->findChild<QComboBox*>("CmbInterval")->setCurrentText("1");
            QTest::mouseClick(window->findChild<QPushButton*>(apply), Qt::LeftButton);
        });
        timer_.start();
    }

private:
    QTimer timer_;
};

TEST_F(FrmMapTest, AnAnimationIsSetUpSteppedThroughAndStopped) {
    show(2);
    const QString wholePeriod = readOut(1), wholeMaximum = readOut(5);
    auto* setUp = window_.findChild<QPushButton*>("CmdSetUp");
    auto* bar = window_.findChild<QSlider*>("HScroll1");
    {
        const AnimationForm cancelled("");
        setUp->click();
        EXPECT_FALSE(session().playback.active());
        EXPECT_EQ(readOut(1), wholePeriod);
    }
    const AnimationForm form("CmdApply");
    setUp->click();
    ASSERT_TRUE(session().playback.active());
    EXPECT_EQ(FrameCount, 3);
    EXPECT_EQ(readOut(0), "01/03/2025");
    EXPECT_EQ(readOut(1), "01/03/2025");
    EXPECT_NE(readOut(5), wholeMaximum);
    EXPECT_EQ(session().dataView().table, "TblAnimatedTV1");
    EXPECT_FALSE(session().dataView().hasCostColumns);
    bar->setValue(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(readOut(0), "03/03/2025");
    EXPECT_EQ(session().dataView().dataSet, 3);
    EXPECT_FALSE(window_.findChild<QAbstractButton*>("lblGroupTools")->isEnabled());
    EXPECT_FALSE(window_.findChild<QAbstractButton*>("cmdCampaignSpend")->isEnabled());

    choose("cmbMapType", "Answered Calls"); // of the frame on show
    EXPECT_EQ(readOut(0), "03/03/2025");
    EXPECT_EQ(session().playback.shownFrame(), 3);
    choose("cmbMapType", "Total Calls");
    window_.findChild<QPushButton*>("cmdStopAnimate")->click();
    EXPECT_FALSE(session().playback.active());
    EXPECT_EQ(readOut(1), wholePeriod);
    EXPECT_EQ(readOut(5), wholeMaximum);
    EXPECT_EQ(currentTables.TV, "TblTV");
    EXPECT_TRUE(SelectionSql.empty()) << "frames are not the selection of the report";
}

TEST_F(FrmMapTest, FramesHaveNoAveragesAndNoOtherBoundaryPlays) {
    show(3);
    const AnimationForm form("CmdApply");
    window_.findChild<QPushButton*>("CmdSetUp")->click();
    ASSERT_TRUE(session().playback.active());
    choose("cmbMapType", "Average Calls Per Caller");
    EXPECT_FALSE(session().playback.active());
    EXPECT_EQ(currentTables.PostCodeDistrict, "TblPostCodeDistrict");
    EXPECT_FALSE(window_.findChild<QPushButton*>("CmdSetUp")->isEnabled());
    choose("cmbMapType", "Total Calls");
    const AnimationForm again("CmdApply");
    window_.findChild<QPushButton*>("CmdSetUp")->click();
    ASSERT_TRUE(session().playback.active());
    choose("CmbBoundary", "CSG's");
    EXPECT_FALSE(session().playback.active());
    EXPECT_FALSE(window_.findChild<QPushButton*>("CmdSetUp")->isEnabled());
    EXPECT_TRUE(currentTables.PostCodeDistrict.empty());
}

TEST_F(FrmMapTest, ACloseWhileFramesPlayEndsThem) {
    show(2);
    const AnimationForm form("CmdApply");
    window_.findChild<QPushButton*>("CmdSetUp")->click();
    window_.findChild<QPushButton*>("CmdPause")->click();
    EXPECT_EQ(session().playback.state(), Playback::State::Playing);
    EXPECT_FALSE(window_.findChild<QComboBox*>("CmbBoundary")->isEnabled());
    EXPECT_FALSE(window_.findChild<QAbstractButton*>("lblViewMap")->isEnabled());
    window_.close();
    QTest::qWait(20);
    EXPECT_FALSE(window_.isVisible());
    EXPECT_FALSE(session().playback.active());
}

TEST_F(FrmMapTest, ThePictureForAWorkbookHasNoButtonsAndTheWindowKeepsThem) {
    show(2);
    std::string opened;
    setDocumentOpener([&](const std::string& path) {
        opened = path;
        return true;
    });
    const QRect mapBefore = window_.MapSurface1()->geometry();
    window_.findChild<QAbstractButton*>("lblExcel")->click();
    setDocumentOpener({});
    ASSERT_FALSE(opened.empty());
    QProcess unzip;
    unzip.start("unzip", {"-p", QString::fromStdString(opened), "xl/media/image1.png"});
    ASSERT_TRUE(unzip.waitForFinished());
    const QImage picture = QImage::fromData(unzip.readAllStandardOutput());
    std::filesystem::remove(opened);
    EXPECT_EQ(picture.size(), window_.size() * window_.devicePixelRatio());
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); y += 3)
        for (int x = 0; x < picture.width(); x += 3)
            colours.insert(picture.pixel(x, y));
    EXPECT_GT(colours.size(), 100U); // bands, texts and their soft edges
    EXPECT_TRUE(window_.findChild<QPushButton*>("CmdSetUp")->isVisible());
    EXPECT_TRUE(window_.findChild<QAbstractButton*>("lblExcel")->isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(window_.MapSurface1()->geometry(), mapBefore);
}

TEST_F(FrmMapTest, ACampaignSpendReachesTheAreasOfEveryBoundary) {
    show(2);
    prompts_.entries = {"1000"};
    window_.findChild<QAbstractButton*>("cmdCampaignSpend")->click();
    EXPECT_EQ(gcCampaignSpend, 1000);
    for (const auto& [text, table] : {std::pair{"CSG's", "TblCSG"}, std::pair{"TV Regions", "TblTV"}}) {
        choose("CmbBoundary", text);
        const auto row =
            systemDatabase().openRecordset(std::string("SELECT Sum(AreaCostPerAnsweredCall) FROM ") + table);
        EXPECT_GT(row->value(0).asDouble(), 500) << table;
    }
    prompts_.entries = {"0"};
    window_.findChild<QAbstractButton*>("cmdCampaignSpend")->click();
    EXPECT_EQ(gcCampaignSpend, 0);
    EXPECT_TRUE(prompts_.texts.empty());
}

TEST_F(FrmMapTest, TheGroupToolsOpenOverTheMapWhichComesBackAfterThem) {
    show(3);
    bool toolsSeen = false;
    QTimer leaving;
    leaving.setInterval(20);
    QObject::connect(&leaving, &QTimer::timeout, [&] {
        auto* tools = qobject_cast<frmGroups*>(QApplication::activeModalWidget());
        if (!tools)
            return;
        leaving.stop();
        toolsSeen = true;
        EXPECT_FALSE(tools->editor().groups().empty());
        EXPECT_EQ(surface().NumberOfLayers(), 1) << "the map is away meanwhile";
        tools->close();
    });
    leaving.start();
    prompts_.answers = {PromptAnswer::Yes, PromptAnswer::Yes}; // what Callscope has changed is applied
    window_.findChild<QAbstractButton*>("lblGroupTools")->click();
    EXPECT_TRUE(toolsSeen);
    EXPECT_EQ(window_.findChild<QComboBox*>("CmbBoundary")->currentText(), "Post Code Districts");
    EXPECT_GT(surface().NumberOfLayers(), 1);
    EXPECT_EQ(session().boundary(), 3);
    choose("CmbBoundary", "CSG's");
    EXPECT_FALSE(window_.findChild<QAbstractButton*>("lblGroupTools")->isEnabled());
}

TEST_F(FrmMapTest, MoreGroupsThanTheMapCanShowLeadToRegions) {
    show(3);
    for (int group = 0; group < 129; ++group)
        customerGroupsDatabase().execute("INSERT INTO TblName (TallyAccount, Name) VALUES ('" + gsAccount +
                                         "', 'SURPLUS " + std::to_string(group) + "')");
    choose("CmbBoundary", "Customer Groups");
    customerGroupsDatabase().execute("DELETE FROM TblName WHERE Name LIKE 'SURPLUS *'");
    ASSERT_EQ(prompts_.texts.size(), 1U);
    EXPECT_TRUE(prompts_.texts[0].starts_with("Callscope Mapping can display a maximum of 128 Customer Groups."));
    EXPECT_EQ(window_.findChild<QComboBox*>("CmbBoundary")->currentText(), "TV Regions");
    EXPECT_EQ(session().boundary(), 2);
}

TEST_F(FrmMapTest, WithoutGroupsTheirBoundaryLeavesTheList) {
    show(2);
    auto* boundaries = window_.findChild<QComboBox*>("CmbBoundary");
    EXPECT_GE(boundaries->findText("Customer Groups"), 0);
    const std::string account = std::exchange(gsAccount, "NOBODY");
    choose("cmbMapType", "Cost");
    EXPECT_LT(boundaries->findText("Customer Groups"), 0);
    gsAccount = account;
}

TEST_F(FrmMapTest, ACloseDuringABuildStopsItAndTheNextOneCloses) {
    /// Closes the window at the first yield of the work.
    struct ClosingProgress : Progress {
        explicit ClosingProgress(QWidget& closed) : window(closed) { setProgress(this); }
        ~ClosingProgress() override { setProgress(nullptr); }
        void yield() override {
            if (!std::exchange(asked, true))
                refused = !window.close();
        }
        QWidget& window;
        bool asked = false, refused = false;
    };
    show(2);
    ReportParameters filter = wholeProject();
    filter.DTStart.days += 3;
    runReport(2, filter);
    window_.showReport(2, filter);
    {
        const ClosingProgress closing(window_);
        choose("CmbBoundary", "CSG's");
        EXPECT_TRUE(closing.refused);
    }
    EXPECT_TRUE(window_.isVisible());
    EXPECT_FALSE(window_.session().form.mapReady) << "the build has stopped";
    EXPECT_TRUE(window_.close());
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(FrmMapTest, TheExitClosesItAndASecondReportOpensItAgain) {
    show(2);
    int closed = 0;
    QObject::connect(&window_, &FrmMap::closed, [&] { ++closed; });
    QTest::mouseClick(window_.findChild<QPushButton*>("CmdExit"), Qt::LeftButton);
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(closed, 1);
    show(1);
    EXPECT_TRUE(window_.isVisible());
    EXPECT_EQ(window_.findChild<QComboBox*>("CmbBoundary")->currentText(), "CSG's");
    if (qEnvironmentVariableIsSet("CALLSCOPE_PICTURE"))
        window_.grab().save(qEnvironmentVariable("CALLSCOPE_PICTURE"));
}

} // namespace
