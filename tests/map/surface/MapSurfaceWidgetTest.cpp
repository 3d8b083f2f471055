#include "map/surface/windows/MapSurfaceWidget.h"

#include "data/engine/Database.h"
#include "map/surface/windows/MapToolBar.h"
#include "tests/map/SmallMap.h"
#include "tests/map/surface/CallsLayer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QNativeGestureEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

namespace {

/// The small map in a shown control of 600 x 200 pixels of map, two pixels for each unit.
class MapControl : public testing::Test {
protected:
    MapControl() {
        describeCalls(surface);
        widget.show();
        widget.resize(600, 200 + widget.toolBar().sizeHint().height());
        QApplication::processEvents();
        EXPECT_EQ(surface.camera().pixelSize(), QSize(600, 200));
        surface.CentreMapOn(150, 50);
        surface.setMapScale(300);
        surface.DrawMap();
    }

    QPoint at(double x, double y) const { return surface.camera().mapToScreen({x, y}).toPoint(); }
    QPointF seenAt(QPoint pixel) const { return surface.camera().screenToMap(pixel); }
    QWidget* canvas() { return &widget.canvas(); }
    void takeTool(MapTool tool) { QTest::mouseClick(widget.toolBar().button(tool), Qt::LeftButton); }
    void click(QPoint where) { QTest::mouseClick(canvas(), Qt::LeftButton, {}, where); }
    void drag(std::initializer_list<QPoint> way) {
        QTest::mousePress(canvas(), Qt::LeftButton, {}, *way.begin());
        for (const QPoint& point : way)
            moveTo(point, Qt::LeftButton);
        QTest::mouseRelease(canvas(), Qt::LeftButton, {}, *(way.end() - 1));
    }
    /// QTest::mouseMove carries no pressed button.
    void moveTo(QPoint where, Qt::MouseButtons buttons = Qt::NoButton) {
        QMouseEvent event(QEvent::MouseMove, QPointF(where), canvas()->mapToGlobal(QPointF(where)), Qt::NoButton,
                          buttons, Qt::NoModifier);
        QApplication::sendEvent(canvas(), &event);
    }
    void turnWheel(int delta, QPoint where) {
        QWheelEvent event(QPointF(where), canvas()->mapToGlobal(QPointF(where)), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas(), &event);
    }
    /// Lets a waiting draw happen.
    void settle() {
        QSignalSpy finished(&widget, &MapSurfaceWidget::DrawMapFinished);
        for (int turn = 0; turn < 100 && finished.isEmpty(); ++turn)
            QTest::qWait(10);
        EXPECT_EQ(finished.size(), 1);
        EXPECT_EQ(surface.drawn().camera, surface.camera());
    }

    SmallMap map;
    MapSurfaceWidget widget;
    MapSurface& surface = widget.surface();
};

} // namespace

TEST_F(MapControl, AClickTellsTheAreaAndThenThatItWasAClick) {
    QSignalSpy info(&widget, &MapSurfaceWidget::MapEntityInfo);
    QStringList order;
    QObject::connect(&widget, &MapSurfaceWidget::MapMouseDown, [&](int button, int, double x, double) {
        order << QStringLiteral("down %1 %2").arg(button).arg(x);
    });
    QObject::connect(&widget, &MapSurfaceWidget::MapEntityInfo, [&] { order << "info"; });
    QObject::connect(&widget, &MapSurfaceWidget::MapMouseUp, [&] { order << "up"; });
    QObject::connect(&widget, &MapSurfaceWidget::Click, [&] { order << "click"; });
    click(at(50, 50));
    EXPECT_EQ(order, QStringList({"down 1 100", "info", "up", "click"}));
    click(at(150, 50)); // the hole in the middle region
    click(at(250, 20));
    ASSERT_EQ(info.size(), 3);
    EXPECT_EQ(info[0], QVariantList({QVariant::fromValue<short>(0), QVariant::fromValue<long>(11)}));
    EXPECT_EQ(info[1], QVariantList({QVariant::fromValue<short>(-1), QVariant::fromValue<long>(-1)}));
    EXPECT_EQ(info[2][1].value<long>(), 13);
    order.clear();
    QTest::mouseClick(canvas(), Qt::RightButton, {}, at(50, 50));
    EXPECT_EQ(order, QStringList({"down 2 100", "up"}));
}

TEST_F(MapControl, TheAreaUnderThePointerIsToldByNameAndValue) {
    QSignalSpy hovered(&widget, &MapSurfaceWidget::hovered);
    moveTo(at(50, 50));
    moveTo(at(60, 60));
    moveTo(at(250, 50));
    moveTo(at(150, 50));
    ASSERT_EQ(hovered.size(), 3) << "once for each area";
    EXPECT_EQ(hovered[0], QVariantList({"West", "900"}));
    EXPECT_EQ(hovered[1], QVariantList({"East", "no figure"}));
    EXPECT_EQ(hovered[2], QVariantList({"", ""}));
    const QImage overSea = widget.grab().toImage();
    moveTo(at(50, 50));
    EXPECT_NE(widget.grab().toImage(), overSea);
}

TEST_F(MapControl, TheWheelZoomsAboutThePointerAndDrawsOnce) {
    const QPoint pointer(500, 40);
    const QPointF under = seenAt(pointer);
    const double before = surface.MapScale();
    QSignalSpy started(&widget, &MapSurfaceWidget::DrawMapStarted);
    QSignalSpy changed(&widget, &MapSurfaceWidget::viewChanged);
    for (int notch = 0; notch < 4; ++notch)
        turnWheel(120, pointer);
    turnWheel(15, pointer); // of a touch pad
    EXPECT_EQ(started.size(), 0) << "nothing is drawn while the wheel turns";
    EXPECT_EQ(changed.size(), 5);
    EXPECT_LT(surface.MapScale(), before / 2);
    EXPECT_NEAR(seenAt(pointer).x(), under.x(), 1e-6);
    EXPECT_NEAR(seenAt(pointer).y(), under.y(), 1e-6);
    EXPECT_EQ(widget.grab().toImage().isNull(), false); // the scaled picture
    settle();
    EXPECT_EQ(started.size(), 1);
}

TEST_F(MapControl, ZoomingEndsWhereNothingWouldBeSeen) {
    surface.ZoomToExtent();
    const double whole = surface.MapScale();
    for (int notch = 0; notch < 200; ++notch)
        turnWheel(-120, {300, 100});
    EXPECT_LE(surface.MapScale(), 2.01 * whole);
    for (int notch = 0; notch < 400; ++notch)
        turnWheel(120, {300, 100});
    EXPECT_GE(surface.MapScale(), 10);
}

TEST_F(MapControl, APinchZoomsAboutTheFingers) {
    const QPoint fingers(120, 60);
    const QPointF under = seenAt(fingers);
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, fingers, fingers,
                              canvas()->mapToGlobal(fingers), 0.25, {});
    QApplication::sendEvent(canvas(), &pinch);
    EXPECT_NEAR(surface.MapScale(), 240, 1e-6);
    EXPECT_NEAR(seenAt(fingers).x(), under.x(), 1e-6);
    settle();
}

TEST_F(MapControl, ADragTakesThePlaceUnderThePointerAlong) {
    for (const MapTool tool : {MapTool::Pan, MapTool::Information}) {
        surface.setUIMode(tool);
        QSignalSpy info(&widget, &MapSurfaceWidget::MapEntityInfo);
        const QPointF grabbed = seenAt({100, 100});
        drag({{100, 100}, {150, 110}, {220, 130}});
        EXPECT_NEAR(seenAt({220, 130}).x(), grabbed.x(), 0.6);
        EXPECT_NEAR(seenAt({220, 130}).y(), grabbed.y(), 0.6);
        EXPECT_EQ(info.size(), 0) << "a drag is no click";
        EXPECT_EQ(colourAt(surface, grabbed.x(), grabbed.y()), QColor(Qt::red)) << "shown before the draw";
        settle();
        surface.CentreMapOn(150, 50);
        surface.DrawMap();
    }
}

TEST_F(MapControl, ZoomToolsZoomByAClickAndIntoABox) {
    takeTool(MapTool::ZoomIn);
    EXPECT_EQ(canvas()->cursor().shape(), Qt::BitmapCursor);
    click(at(50, 50));
    EXPECT_EQ(surface.MapScale(), 150);
    settle();
    takeTool(MapTool::ZoomOut);
    click(at(50, 50));
    EXPECT_EQ(surface.MapScale(), 300);
    settle();
    takeTool(MapTool::ZoomIn);
    drag({at(200, 75), at(230, 50), at(275, 50)});
    EXPECT_NEAR(surface.MapCenterX(), 237.5, 1);
    EXPECT_NEAR(surface.MapScale(), 75, 2);
    settle();
}

TEST_F(MapControl, AViewThatThePressHandlerSetsIsKept) {
    takeTool(MapTool::ZoomOut);
    QObject::connect(&widget, &MapSurfaceWidget::MapMouseDown, [&] {
        surface.setUIMode(MapTool::ZoomToExtent);
        surface.ZoomToExtent();
        surface.DrawMap();
        surface.setUIMode(MapTool::ZoomOut);
    });
    click(at(50, 50));
    const double shown = surface.MapScale();
    surface.ZoomToExtent();
    EXPECT_EQ(shown, surface.MapScale()) << "the tool has not zoomed on top of it";
}

TEST_F(MapControl, LayersThatAClickShowsAreDrawn) {
    surface.AddLayer();
    surface.setLayerIndex(1);
    surface.layer().LayerVisible = false;
    surface.DrawMap();
    QObject::connect(&widget, &MapSurfaceWidget::Click, [&] { surface.layer().LayerVisible = true; });
    click(at(50, 50));
    settle();
    QSignalSpy started(&widget, &MapSurfaceWidget::DrawMapStarted);
    click(at(50, 50));
    QTest::qWait(30);
    EXPECT_EQ(started.size(), 0) << "nothing has changed";
}

TEST_F(MapControl, AnOutlineDrawnRoundAreasTellsThem) {
    takeTool(MapTool::PolygonQuery);
    QStringList order;
    std::vector<long> areas;
    QObject::connect(&widget, &MapSurfaceWidget::MapGeoQuery,
                     [&](short count, const std::vector<int>& layers, const std::vector<long>& entities) {
                         order << "query";
                         EXPECT_EQ(layers.size(), static_cast<std::size_t>(count));
                         areas = entities;
                     });
    QObject::connect(&widget, &MapSurfaceWidget::MapMouseUp, [&] { order << "up"; });
    drag({at(-5, 99), at(-5, 2), at(190, 2), at(190, 99)});
    EXPECT_EQ(areas, (std::vector<long>{11, 12}));
    EXPECT_EQ(order, QStringList({"query", "up"}));
    order.clear();
    drag({at(110, 20), at(130, 20), at(130, 35)});
    EXPECT_EQ(order, QStringList({"up"})) << "no area lies half inside";
    click(at(50, 50));

    takeTool(MapTool::CircleQuery);
    drag({at(50, 50), at(50, 70), at(50, -10)});
    EXPECT_EQ(areas, (std::vector<long>{11}));
}

TEST_F(MapControl, TheToolBarShowsWhatItsTextSays) {
    surface.setToolBarSetup(":BUTTON_VISIBLE:1,1,1,1,0,1,1,0,0,0,0,0,1,1,:TOOLTIPS:Zoom Extent,Pan,Zoom In,Zoom "
                            "Out,Measure,Select a single Region,Select Regions by drawing around them,Circle "
                            "Query,Draw Point,Draw Polyline,Draw Polygon,Draw Circle,Hide Toolbar,Go Back,");
    MapToolBar& bar = widget.toolBar();
    EXPECT_FALSE(bar.button(MapTool::Measure)->isVisible());
    EXPECT_TRUE(bar.button(MapTool::PolygonQuery)->isVisible());
    EXPECT_EQ(bar.button(MapTool::Information)->toolTip(), "Select a single Region");
    EXPECT_EQ(bar.button(MapTool::Information)->accessibleName(), "Select a single Region");
    EXPECT_TRUE(bar.button(MapTool::Information)->isChecked());

    QSignalSpy clicks(&widget, &MapSurfaceWidget::ToolBarClick);
    takeTool(MapTool::PolygonQuery);
    takeTool(MapTool::PolygonQuery);
    EXPECT_TRUE(bar.button(MapTool::PolygonQuery)->isChecked()) << "a tool stays in hand";
    EXPECT_FALSE(bar.button(MapTool::Information)->isChecked());
    EXPECT_EQ(clicks[0][0].value<long>(), 7);
    takeTool(MapTool::HideToolBar);
    EXPECT_FALSE(bar.isVisible());
    QTest::mouseClick(canvas()->findChild<QToolButton*>("ShowToolBar"), Qt::LeftButton);
    EXPECT_TRUE(bar.isVisible());
}

TEST_F(MapControl, ExtentAndGoBack) {
    surface.CentreMapOn(10, 10);
    surface.setMapScale(50);
    surface.DrawMap();
    QSignalSpy clicks(&widget, &MapSurfaceWidget::ToolBarClick);
    takeTool(MapTool::ZoomToExtent);
    settle();
    EXPECT_TRUE(surface.camera().visibleMap().contains(QRectF(0, 0, 300, 100)));
    EXPECT_EQ(surface.UIMode(), MapTool::Information) << "the tool in hand stays";
    takeTool(MapTool::GoBack);
    settle();
    EXPECT_EQ(surface.MapScale(), 50);
    EXPECT_EQ(surface.MapCenterX(), 10);
    EXPECT_EQ(clicks[0][0].value<long>(), 8);
}

TEST_F(MapControl, KeysMoveZoomAndAsk) {
    QSignalSpy info(&widget, &MapSurfaceWidget::MapEntityInfo);
    canvas()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(canvas(), Qt::Key_Left);
    EXPECT_LT(surface.MapCenterX(), 150);
    QTest::keyClick(canvas(), Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(canvas(), Qt::Key_Up);
    EXPECT_GT(surface.MapCenterY(), 50);
    QTest::keyClick(canvas(), Qt::Key_Plus);
    EXPECT_NEAR(surface.MapScale(), 200, 1e-6);
    QTest::keyClick(canvas(), Qt::Key_Return);
    ASSERT_EQ(info.size(), 1);
    EXPECT_EQ(info[0][1].value<long>(), 11) << "the area in the middle of the view";
    settle();
    QTest::keyClick(canvas(), Qt::Key_Home);
    EXPECT_GT(surface.MapScale(), 300);
    settle();
}

TEST_F(MapControl, AMapThatIsDisabledDrawsWhenItIsEnabledAgainAndKeepsTheKeys) {
    canvas()->setFocus();
    QApplication::processEvents();
    turnWheel(120, {300, 100});
    widget.setEnabled(false);
    QSignalSpy started(&widget, &MapSurfaceWidget::DrawMapStarted);
    QTest::qWait(150);
    EXPECT_EQ(started.size(), 0) << "the window is at work on the layers";
    widget.setEnabled(true);
    settle();
    EXPECT_EQ(started.size(), 1);
    EXPECT_EQ(widget.window()->focusWidget(), canvas());
}

TEST_F(MapControl, AWindowThatGrowsShowsTheWholeAgainOrMoreOfTheMap) {
    surface.ZoomToExtent();
    surface.DrawMap();
    widget.resize(300, 400);
    settle();
    EXPECT_TRUE(surface.camera().visibleMap().contains(QRectF(0, 0, 300, 100)));
    surface.setMapScale(60);
    surface.DrawMap();
    const double pixelSize = surface.camera().unitsPerPixel();
    widget.resize(600, 400);
    settle();
    EXPECT_NEAR(surface.camera().unitsPerPixel(), pixelSize, 1e-9);
}

TEST_F(MapControl, MeasuringAndDrawingLeaveTheMapAlone) {
    const double scale = surface.MapScale();
    for (const MapTool tool :
         {MapTool::Measure, MapTool::DrawPoint, MapTool::DrawPolyline, MapTool::DrawPolygon, MapTool::DrawCircle}) {
        surface.setUIMode(tool);
        const QImage before = widget.grab().toImage();
        click(at(50, 50));
        drag({at(80, 50), at(120, 70)});
        QTest::mouseDClick(canvas(), Qt::LeftButton, {}, at(120, 20));
        EXPECT_NE(widget.grab().toImage(), before) << static_cast<int>(tool);
        QTest::keyClick(canvas(), Qt::Key_Escape);
        QTest::keyClick(canvas(), Qt::Key_Escape);
    }
    EXPECT_EQ(surface.MapScale(), scale);
    EXPECT_EQ(surface.MapCenterX(), 150);
}

TEST_F(MapControl, AFileThatIsGoneIsLoggedAndTheControlLivesOn) {
    surface.layer().LayerCoverageName = "CCL_NOWHERE";
    takeTool(MapTool::ZoomToExtent);
    settle();
    EXPECT_GE(map.installation.logLinesWith("NOWHERE"), 1);
    moveTo(at(50, 50));
    click(at(50, 50));
    drag({at(50, 50), at(80, 50)});
    settle();
}

TEST_F(MapControl, AMessageThatTakesTheReleaseEndsTheDrag) {
    for (const MapTool tool : {MapTool::PolygonQuery, MapTool::Pan}) {
        surface.setUIMode(tool);
        QSignalSpy query(&widget, &MapSurfaceWidget::MapGeoQuery);
        const double centre = surface.MapCenterX();
        QTest::mousePress(canvas(), Qt::LeftButton, {}, at(10, 10));
        for (const QPoint& point : {at(10, 90), at(190, 90), at(190, 5)})
            moveTo(point); // no button is down any more
        EXPECT_EQ(surface.MapCenterX(), centre);
        click(at(20, 20));
        EXPECT_EQ(query.size(), 0);
    }
}

TEST_F(MapControl, AHandlerMayCloseTheWindow) {
    for (const bool atPress : {true, false}) {
        auto* other = new MapSurfaceWidget;
        describeCalls(other->surface());
        other->resize(300, 150);
        other->show();
        other->surface().ZoomToExtent();
        other->surface().DrawMap();
        if (atPress)
            QObject::connect(other, &MapSurfaceWidget::MapMouseDown, [other] { delete other; });
        else
            QObject::connect(other, &MapSurfaceWidget::MapEntityInfo, [other] { delete other; });
        QPointer<QWidget> shown(&other->canvas());
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            if (!shown)
                break;
            const QPointF centre = shown->rect().center();
            QMouseEvent event(type, centre, shown->mapToGlobal(centre), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
            static_cast<QObject*>(shown)->event(&event);
        }
        EXPECT_TRUE(shown.isNull());
    }
}
