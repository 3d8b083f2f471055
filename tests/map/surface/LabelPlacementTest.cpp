#include "map/surface/LabelPlacement.h"

#include <gtest/gtest.h>

namespace {

const QRectF View(0, 0, 400, 300);
const QSizeF Size(60, 20);

std::optional<QRectF> centred(LabelPlacement& placement, QPointF anchor, bool dropOnCollision = true) {
    return placement.place(Size, anchor, LabelJustification::Centre, LabelBaseline::Middle, dropOnCollision);
}

} // namespace

TEST(LabelPlacement, ALabelThatTouchesAnotherIsDropped) {
    LabelPlacement placement(View);
    EXPECT_EQ(centred(placement, {100, 100}), QRectF(70, 90, 60, 20));
    EXPECT_FALSE(centred(placement, {140, 110}));
    EXPECT_FALSE(centred(placement, {161, 100})) << "a gap is kept between two labels";
    EXPECT_TRUE(centred(placement, {163, 100}));
    EXPECT_TRUE(centred(placement, {100, 123}));
}

TEST(LabelPlacement, ADroppedLabelTakesNoRoom) {
    LabelPlacement placement(View);
    EXPECT_TRUE(centred(placement, {100, 100}));
    EXPECT_FALSE(centred(placement, {150, 100}));
    EXPECT_TRUE(centred(placement, {180, 100}));
}

TEST(LabelPlacement, WithoutTheCheckEveryLabelStands) {
    LabelPlacement placement(View);
    EXPECT_TRUE(centred(placement, {100, 100}, false));
    EXPECT_TRUE(centred(placement, {101, 100}, false));
    EXPECT_FALSE(centred(placement, {102, 100}, true)) << "but others avoid them";
}

TEST(LabelPlacement, JustificationAndBaselineMoveTheBox) {
    LabelPlacement placement(View);
    EXPECT_EQ(placement.place(Size, {200, 100}, LabelJustification::Left, LabelBaseline::Bottom, false),
              QRectF(200, 80, 60, 20));
    EXPECT_EQ(placement.place(Size, {200, 200}, LabelJustification::Right, LabelBaseline::Top, false),
              QRectF(140, 200, 60, 20));
}

TEST(LabelPlacement, LabelsAtTheEdgeMoveInsideAndThoseBeyondAreLeftOut) {
    LabelPlacement placement(View);
    EXPECT_EQ(centred(placement, {2, 298}), QRectF(0, 280, 60, 20));
    EXPECT_FALSE(centred(placement, {-1, 100}));
    EXPECT_FALSE(centred(placement, {200, 301}));
}
