#include "map/surface/LabelPlacement.h"

#include <gtest/gtest.h>

namespace {

const QRectF View(0, 0, 400, 300);
const QSizeF Size(60, 20);

std::optional<QRectF> centred(LabelPlacement& placement, QPointF anchor, bool dropOnCollision = true) {
    return placement.place(Size, anchor, LabelJustification::Centre, LabelBaseline::Middle, dropOnCollision);
}

} // namespace

TEST(LabelPlacement, ALabelThatTouchesAnotherMovesALittle) {
    LabelPlacement placement(View);
    EXPECT_EQ(centred(placement, {100, 100}), QRectF(70, 90, 60, 20));
    EXPECT_EQ(centred(placement, {110, 111}), QRectF(80, 113, 60, 20)) << "0.6 of its height down";
    EXPECT_EQ(centred(placement, {146, 100}), QRectF(134, 90, 60, 20)) << "0.3 of its width to the right";
    EXPECT_EQ(centred(placement, {49, 100}), QRectF(1, 90, 60, 20)) << "and to the left";
}

TEST(LabelPlacement, WhereMovingDoesNotHelpItIsDroppedAndTakesNoRoom) {
    LabelPlacement placement(View);
    EXPECT_TRUE(centred(placement, {100, 100}));
    EXPECT_FALSE(centred(placement, {105, 101}));
    EXPECT_FALSE(centred(placement, {100, 100}));
    EXPECT_TRUE(centred(placement, {163, 100}));
}

TEST(LabelPlacement, AGapIsKeptBetweenTwoLabels) {
    LabelPlacement placement(View, 5.0);
    centred(placement, {100, 100});
    const auto neighbour = centred(placement, {160, 100});
    ASSERT_TRUE(neighbour);
    EXPECT_GE(neighbour->left(), 135.0);
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
