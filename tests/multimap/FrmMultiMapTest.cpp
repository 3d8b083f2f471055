#include "multimap/windows/FrmMultiMap.h"

#include "core/Progress.h"
#include "map/surface/windows/MapSurfaceWidget.h"
#include "map/surface/windows/MapToolBar.h"
#include "map/windows/FrmCallDetail.h"
#include "tests/multimap/SampleWeeks.h"
#include "tests/support/ScriptedPrompts.h"
#include "ui/InterfaceFont.h"
#include "ui/OpenDocument.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr long tvRegions = 2, postcodeDistricts = 3;

class FrmMultiMapTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        sample_ = new SampleWeeks;
        applyInterfaceFont();
    }
    static void TearDownTestSuite() { delete sample_; }

    FrmMultiMapTest() { window_.resize(1280, 760); }
    ~FrmMultiMapTest() override { setDocumentOpener({}); }

    void show(long boundary, int optPeriods) {
        runMultiMapReport(boundary, wholeProject(), SampleWeeks::weeks(optPeriods));
        window_.showReport(boundary, SampleWeeks::weeks(optPeriods));
        QCoreApplication::processEvents();
    }
    template<typename Control = QWidget>
    Control* control(const QString& name) {
        auto* found = window_.findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    template<typename Control = QWidget>
    Control* control(const char* name, int n) {
        return control<Control>(QString::fromLatin1(name) + QStringLiteral("_%1").arg(n));
    }
    MapSurface& surface(int n) { return window_.MapSurface1(n)->surface(); }
    void press(const QString& button) { control<QAbstractButton>(button)->click(); }

    inline static SampleWeeks* sample_ = nullptr;
    ScriptedPrompts prompts_;
    FrmMultiMap window_;
};

TEST_F(FrmMultiMapTest, AsManyMapsAreShownAsWereAskedForAndTheOthersAreNotBuilt) {
    for (const int optPeriods : {2, 0, 1}) {
        show(tvRegions, optPeriods);
        const int count = 2 * (optPeriods + 1);
        for (int n = 1; n <= 6; ++n) {
            for (const char* name : {"MapSurface1", "TxtDates", "fraOtherCallAreas"})
                EXPECT_EQ(control(name, n)->isVisible(), n <= count) << name << n << " of " << count;
            EXPECT_EQ(surface(n).NumberOfLayers() > 1, n <= count) << n << " of " << count;
        }
        EXPECT_TRUE(control<QLabel>("TxtDates", 1)->text().startsWith("From "));
        EXPECT_FALSE(control("scrVertical")->isVisible()) << count << " maps have room";
        EXPECT_TRUE(window_.close());
    }
    EXPECT_TRUE(prompts_.texts.empty()) << prompts_.texts.front();
}

TEST_F(FrmMultiMapTest, MapsFillTheWindowWithoutCoveringEachOther) {
    show(tvRegions, 2);
    const auto placeOf = [&](const char* name, int n) {
        const QWidget* part = control(name, n);
        return QRect(part->mapTo(&window_, QPoint()), part->size());
    };
    for (int n = 1; n <= 6; ++n) {
        EXPECT_LT(placeOf("TxtDates", n).bottom(), placeOf("MapSurface1", n).top());
        EXPECT_GT(placeOf("fraOtherCallAreas", n).top(), placeOf("MapSurface1", n).bottom());
        EXPECT_EQ(placeOf("MapSurface1", n).size(), placeOf("MapSurface1", 1).size());
        EXPECT_TRUE(window_.rect().contains(placeOf("fraOtherCallAreas", n)));
    }
    EXPECT_EQ(placeOf("MapSurface1", 3).top(), placeOf("MapSurface1", 1).top()) << "three in a row";
    EXPECT_GT(placeOf("MapSurface1", 4).top(), placeOf("fraOtherCallAreas", 1).bottom());
}

TEST_F(FrmMultiMapTest, TabGoesFromTheListThroughTheMapsToTheFoot) {
    show(tvRegions, 0);
    QStringList names;
    const QWidget* const first = control("cmbMapType");
    const QWidget* at = first;
    do {
        if (at->isVisible() && (at->focusPolicy() & Qt::TabFocus))
            names.append(at->objectName());
        at = at->nextInFocusChain();
    } while (at != first);
    qsizetype last = -1;
    for (const char* name : {"cmbMapType", "MapKey1", "ucwlMobileText_1", "ucwlOtherText_2", "CmdExcel"}) {
        const qsizetype place = names.indexOf(QLatin1String(name));
        EXPECT_GT(place, last) << name << " in " << names.join(QLatin1Char(' ')).toStdString();
        last = place;
    }
}

TEST_F(FrmMultiMapTest, NothingCanBeChosenWhileMapsAreDrawn) {
    struct Watching : Progress {
        explicit Watching(std::function<void()> look) : look_(std::move(look)) { setProgress(this); }
        ~Watching() override { setProgress(nullptr); }
        void yield() override {
            look_();
            ++yields;
        }
        std::function<void()> look_;
        int yields = 0;
    };
    show(tvRegions, 0);
    auto* list = control<QComboBox>("cmbMapType");
    {
        const Watching watching([&] {
            for (const char* name : {"cmbMapType", "CmdExcel", "CmdExit", "MapSurface1_1", "MapSurface1_2"})
                EXPECT_FALSE(control(name)->isEnabled()) << name;
        });
        list->setCurrentIndex(3);
        emit list->activated(3);
        EXPECT_GE(watching.yields, 4) << "between maps and while each is built";
    }
    for (const char* name : {"cmbMapType", "CmdExcel", "CmdExit", "MapSurface1_1", "MapSurface1_2"})
        EXPECT_TRUE(control(name)->isEnabled()) << name;
    EXPECT_EQ(window_.session().mapType(), 4);
}

TEST_F(FrmMultiMapTest, ZoomExtentOfOneMapLeavesTheOthers) {
    show(postcodeDistricts, 0);
    const double whole = surface(2).MapScale();
    for (const int n : {1, 2}) {
        surface(n).setMapScale(5'000);
        emit window_.MapSurface1(n)->viewChanged();
        surface(n).DrawMap();
    }
    QTest::mouseClick(window_.MapSurface1(2)->toolBar().button(MapTool::ZoomToExtent), Qt::LeftButton);
    QTest::qWait(100);
    EXPECT_DOUBLE_EQ(surface(2).drawn().camera.scale(), whole);
    EXPECT_DOUBLE_EQ(surface(1).drawn().camera.scale(), 5'000);
    EXPECT_TRUE(control("cmbMapType")->isEnabled());
    press("cmdAlignMaps");
    EXPECT_DOUBLE_EQ(surface(1).drawn().camera.scale(), whole) << "the second was used last";
}

TEST_F(FrmMultiMapTest, BarsGoWithTheInformationToolAndTheMapKeepsItsSize) {
    show(tvRegions, 1);
    const QSize size = window_.MapSurface1(3)->size();
    QTest::mouseClick(window_.MapSurface1(3)->toolBar().button(MapTool::Pan), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_FALSE(control("fraOtherCallAreas", 3)->isVisible());
    EXPECT_TRUE(control("fraOtherCallAreas", 2)->isVisible());
    EXPECT_EQ(window_.MapSurface1(3)->size(), size);
    QTest::mouseClick(window_.MapSurface1(3)->toolBar().button(MapTool::Information), Qt::LeftButton);
    EXPECT_TRUE(control("fraOtherCallAreas", 3)->isVisible());
}

TEST_F(FrmMultiMapTest, AreasAndBarsTellOfThePeriodOfTheirMap) {
    show(tvRegions, 0);
    QString title, answered;
    const auto readDialog = [&] {
        auto* dialog = qobject_cast<FrmCallDetail*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        title = dialog->windowTitle();
        for (const QLabel* label : dialog->findChildren<QLabel*>()) {
            if (label->text().startsWith("Answered calls = "))
                answered = label->text();
        }
        dialog->reject();
    };
    QTimer::singleShot(100, readDialog);
    press("ucwlMobileBar_2");
    EXPECT_TRUE(title.endsWith(control<QLabel>("TxtDates", 2)->text())) << title.toStdString();
    EXPECT_EQ(answered.toStdString(), window_.session().callType(2, "Mobile").detail->answered);

    QTimer::singleShot(100, readDialog);
    emit window_.MapSurface1(1)->MapEntityInfo(0, 1);
    QTest::qWait(300);
    EXPECT_TRUE(title.endsWith(control<QLabel>("TxtDates", 1)->text())) << title.toStdString();
}

TEST_F(FrmMultiMapTest, TheWorkbookIsOfFinishedMapsAndAsksWhereSomeAreOutOfView) {
    show(tvRegions, 2);
    std::vector<std::string> opened;
    setDocumentOpener([&](const std::string& path) {
        opened.push_back(path);
        return true;
    });
    surface(5).setMapScale(20'000);
    press("CmdExcel");
    EXPECT_EQ(prompts_.texts, std::vector<std::string>{"Please wait for maps to finish drawing"});
    surface(5).DrawMap();

    window_.resize(1000, 560);
    QTest::qWait(300);
    EXPECT_TRUE(control("scrVertical")->isVisible());
    press("CmdExcel");
    EXPECT_EQ(prompts_.texts.back(),
              "Only the details currently visible will be output to Excel, are you sure you want to continue?");
    EXPECT_TRUE(opened.empty());

    window_.resize(1280, 800);
    QTest::qWait(300);
    prompts_.texts.clear();
    const std::string path = sample_->pathOf("maps.xlsx");
    window_.saveWorkbook(path);
    EXPECT_GT(QFile(QString::fromStdString(path)).size(), 20'000) << "with a picture";
    press("CmdExcel");
    EXPECT_TRUE(prompts_.texts.empty()) << prompts_.texts.front();
    ASSERT_EQ(opened.size(), 1U);
    EXPECT_TRUE(QFile::remove(QString::fromStdString(opened[0])));
    EXPECT_TRUE(control("CmdExcel")->isEnabled());
}

TEST_F(FrmMultiMapTest, TheExitGivesTheMapsBack) {
    show(tvRegions, 0);
    int closed = 0;
    QObject::connect(&window_, &FrmMultiMap::closed, [&] { ++closed; });
    press("CmdExit");
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(surface(1).NumberOfLayers(), 1);
}

TEST_F(FrmMultiMapTest, ACloseDuringTheBuildClosesBehindIt) {
    struct Closing : Progress {
        explicit Closing(QWidget& closed) : window(closed) { setProgress(this); }
        ~Closing() override { setProgress(nullptr); }
        void yield() override { window.close(); }
        QWidget& window;
    };
    int closed = 0;
    QObject::connect(&window_, &FrmMultiMap::closed, [&] { ++closed; });
    {
        runMultiMapReport(tvRegions, wholeProject(), SampleWeeks::weeks(2));
        const Closing closing(window_);
        window_.showReport(tvRegions, SampleWeeks::weeks(2));
    }
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(closed, 1);
    EXPECT_TRUE(surface(6).picture().isNull());
}

} // namespace
