#include "map/surface/Sketch.h"
#include "map/surface/ViewHistory.h"

#include <gtest/gtest.h>

TEST(Sketch, DistancesAreToldInKilometresAndMiles) {
    EXPECT_EQ(distanceText(85), "850 m");
    EXPECT_EQ(distanceText(1240), "12.4 km (7.7 miles)");
}

TEST(Sketch, AMeasuredLineGrowsCornerByCorner) {
    SketchPad pad;
    pad.press(MapTool::Measure, {0, 0});
    pad.move({300, 0});
    EXPECT_EQ(pad.current()->length(), 300) << "up to the pointer";
    pad.press(MapTool::Measure, {300, 0});
    pad.move({300, 400});
    EXPECT_EQ(pad.current()->length(), 700);
    EXPECT_FALSE(pad.release()) << "the button coming up ends no line";
    EXPECT_TRUE(pad.takeBack());
    EXPECT_EQ(pad.current()->length(), 500) << "straight from the first corner";
    pad.press(MapTool::Measure, {300, 400});
    pad.press(MapTool::Measure, {300, 400}); // the second press of a double click
    pad.finish();
    ASSERT_EQ(pad.kept().size(), 1u);
    EXPECT_EQ(pad.kept()[0].points.size(), 2u);
    EXPECT_EQ(pad.kept()[0].length(), 500);
    pad.press(MapTool::Measure, {0, 0});
    EXPECT_TRUE(pad.kept().empty()) << "one distance at a time";
}

TEST(Sketch, FiguresNeedTheirCorners) {
    SketchPad pad;
    pad.press(MapTool::DrawPolygon, {0, 0});
    pad.press(MapTool::DrawPolygon, {10, 0});
    pad.finish();
    EXPECT_TRUE(pad.kept().empty()) << "two corners are no polygon";
    for (const QPointF& corner : {QPointF(0, 0), QPointF(10, 0), QPointF(10, 10)})
        pad.press(MapTool::DrawPolygon, corner);
    pad.finish();
    ASSERT_EQ(pad.kept().size(), 1u);
    EXPECT_EQ(pad.kept()[0].outline().size(), 4);
    pad.press(MapTool::DrawPoint, {1, 1});
    pad.press(MapTool::DrawPolyline, {0, 0});
    EXPECT_TRUE(pad.clear());
    EXPECT_EQ(pad.kept().size(), 2u) << "first the line in the making";
    EXPECT_TRUE(pad.clear());
    EXPECT_FALSE(pad.clear());
}

TEST(Sketch, StrokesEndWithTheButton) {
    SketchPad pad;
    pad.press(MapTool::CircleQuery, {0, 0});
    pad.move({0, 50});
    const auto circle = pad.release();
    ASSERT_TRUE(circle);
    EXPECT_NEAR(circle->boundingRect().width(), 100, 0.1);
    EXPECT_TRUE(pad.kept().empty()) << "a query leaves no figure";

    pad.press(MapTool::PolygonQuery, {0, 0});
    pad.move({100, 0});
    pad.move({100, 100});
    ASSERT_TRUE(pad.release());
    pad.press(MapTool::PolygonQuery, {0, 0});
    EXPECT_FALSE(pad.release()) << "a click encloses nothing";

    pad.press(MapTool::DrawCircle, {0, 0});
    pad.move({30, 40});
    EXPECT_FALSE(pad.release());
    ASSERT_EQ(pad.kept().size(), 1u);
    EXPECT_EQ(pad.kept()[0].length(), 50);
}

TEST(ViewHistory, GoesBackViewByView) {
    ViewHistory history;
    EXPECT_FALSE(history.back());
    Camera camera;
    for (const double scale : {100.0, 200.0, 200.0, 300.0}) {
        camera.setScale(scale);
        history.record(camera);
    }
    EXPECT_EQ(history.back()->scale(), 200);
    EXPECT_EQ(history.back()->scale(), 100) << "the same view counts once";
    EXPECT_FALSE(history.back()) << "the first view stays";
}
