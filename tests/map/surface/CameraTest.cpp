#include "map/surface/Camera.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

Camera cameraOf(QPointF center, double scale, QSize pixels) {
    Camera camera;
    camera.setCenter(center);
    camera.setScale(scale);
    camera.setPixelSize(pixels);
    return camera;
}

} // namespace

TEST(Camera, NorthIsUpAndEastIsRight) {
    const Camera camera = cameraOf({1000, 2000}, 400, {200, 100}); // two units a pixel

    EXPECT_EQ(camera.mapToScreen({1000, 2000}), QPointF(100, 50));
    EXPECT_EQ(camera.mapToScreen({1020, 2000}), QPointF(110, 50));
    EXPECT_EQ(camera.mapToScreen({1000, 2020}), QPointF(100, 40));
    EXPECT_EQ(camera.visibleMap(), QRectF(800, 1900, 400, 200));
}

TEST(Camera, ConversionsUndoEachOther) {
    const Camera camera = cameraOf({33000.5, 61234}, 12345, {1399, 997});
    for (const QPointF& pixel : {QPointF(0, 0), QPointF(1398, 996), QPointF(17.5, 803.25)}) {
        const QPointF back = camera.mapToScreen(camera.screenToMap(pixel));
        EXPECT_NEAR(back.x(), pixel.x(), 1e-9);
        EXPECT_NEAR(back.y(), pixel.y(), 1e-9);
    }
}

TEST(Camera, ShowsAllOfTallAndOfWideBoxes) {
    for (const QRectF& box : {QRectF(0, 0, 100, 1000), QRectF(-500, 20, 4000, 30)}) {
        Camera camera = cameraOf({0, 0}, 5, {640, 480});
        camera.showAll(box);
        EXPECT_TRUE(camera.visibleMap().contains(box));
        EXPECT_EQ(camera.center(), box.center());
        const double filled =
            std::max(box.width() / camera.visibleMap().width(), box.height() / camera.visibleMap().height());
        EXPECT_GT(filled, 0.9) << "the box fills the view";
    }
}

TEST(Camera, ABoxWithoutExtentKeepsTheScale) {
    Camera camera = cameraOf({0, 0}, 500, {640, 480});
    camera.showAll(QRectF(70, 80, 0, 0));
    EXPECT_EQ(camera.center(), QPointF(70, 80));
    EXPECT_EQ(camera.scale(), 500);
}

TEST(Camera, ResizingKeepsCentreAndScale) {
    Camera camera = cameraOf({10, 20}, 300, {100, 100});
    camera.setPixelSize({50, 400});
    EXPECT_EQ(camera.mapToScreen({10, 20}), QPointF(25, 200));
    EXPECT_EQ(camera.unitsPerPixel(), 6.0);
}

TEST(Camera, NonsenseIsIgnoredOrLimited) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Camera camera = cameraOf({10, 20}, 300, {0, -5});
    camera.setCenter({nan, 1});
    camera.setScale(nan);
    EXPECT_EQ(camera.center(), QPointF(10, 20));
    EXPECT_EQ(camera.scale(), 300);
    EXPECT_EQ(camera.pixelSize(), QSize(1, 1));
    camera.setScale(-3);
    EXPECT_EQ(camera.scale(), Camera::SmallestScale);
    camera.setScale(1e300);
    EXPECT_EQ(camera.scale(), Camera::LargestScale);
}
