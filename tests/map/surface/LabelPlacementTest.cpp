#include "map/surface/LabelPlacement.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

const QSizeF Size(60, 20);

std::optional<QRectF> centred(LabelPlacement& placement, QPointF anchor, bool dropOnCollision = true) {
    return placement.place(Size, anchor, LabelJustification::Centre, LabelBaseline::Middle, dropOnCollision);
}

} // namespace

TEST(LabelPlacement, ALabelThatTouchesAnotherMovesALittle) {
    LabelPlacement placement;
    EXPECT_EQ(centred(placement, {100, 100}), QRectF(70, 90, 60, 20));
    EXPECT_EQ(centred(placement, {110, 111}), QRectF(80, 113, 60, 20)) << "0.6 of its height down";
    EXPECT_EQ(centred(placement, {146, 100}), QRectF(134, 90, 60, 20)) << "0.3 of its width to the right";
    EXPECT_EQ(centred(placement, {49, 100}), QRectF(1, 90, 60, 20)) << "and to the left";
}

TEST(LabelPlacement, WhereMovingDoesNotHelpItIsDroppedAndTakesNoRoom) {
    LabelPlacement placement;
    EXPECT_TRUE(centred(placement, {100, 100}));
    EXPECT_FALSE(centred(placement, {105, 101}));
    EXPECT_FALSE(centred(placement, {100, 100}));
    EXPECT_TRUE(centred(placement, {163, 100}));
}

TEST(LabelPlacement, AGapIsKeptBetweenTwoLabels) {
    LabelPlacement placement(5.0);
    centred(placement, {100, 100});
    const auto neighbour = centred(placement, {160, 100});
    ASSERT_TRUE(neighbour);
    EXPECT_GE(neighbour->left(), 135.0);
}

TEST(LabelPlacement, WithoutTheCheckEveryLabelStands) {
    LabelPlacement placement;
    EXPECT_TRUE(centred(placement, {100, 100}, false));
    EXPECT_TRUE(centred(placement, {101, 100}, false));
    EXPECT_FALSE(centred(placement, {102, 100}, true)) << "but others avoid them";
}

TEST(LabelPlacement, JustificationAndBaselineMoveTheBox) {
    LabelPlacement placement;
    EXPECT_EQ(placement.place(Size, {200, 100}, LabelJustification::Left, LabelBaseline::Bottom, false),
              QRectF(200, 80, 60, 20));
    EXPECT_EQ(placement.place(Size, {200, 200}, LabelJustification::Right, LabelBaseline::Top, false),
              QRectF(140, 200, 60, 20));
}

TEST(LabelPlacement, LabelsOfAnySizeAndPlaceAvoidEachOther) {
    for (const QSizeF& size : {QSizeF(3, 3), QSizeF(60, 20), QSizeF(500, 150), QSizeF(127.5, 32.0)}) {
        for (const QPointF& origin : {QPointF(0, 0), QPointF(-4000.25, -99999.5), QPointF(3e8, -7e8)}) {
            LabelPlacement placement(2.0);
            std::vector<QRectF> boxes;
            std::mt19937 random(7);
            std::uniform_real_distribution<double> spread(-1000.0, 1000.0);
            for (int i = 0; i < 400; ++i) {
                const QPointF anchor = origin + QPointF(spread(random), spread(random));
                const auto box = placement.place(size, anchor, LabelJustification::Centre, LabelBaseline::Middle, true);
                if (box)
                    boxes.push_back(*box);
            }
            ASSERT_GT(boxes.size(), 5u);
            for (std::size_t i = 0; i < boxes.size(); ++i) {
                for (std::size_t j = 0; j < i; ++j)
                    ASSERT_FALSE(boxes[i].adjusted(-1.9, -1.9, 1.9, 1.9).intersects(boxes[j]))
                        << size.width() << " x " << size.height() << " at " << origin.x();
            }
        }
    }
}

TEST(LabelPlacement, AnAbsurdlyLargeLabelTakesItsPlace) {
    LabelPlacement placement;
    EXPECT_TRUE(placement.place(QSizeF(1e7, 1e6), {0, 0}, LabelJustification::Left, LabelBaseline::Top, true));
    EXPECT_FALSE(centred(placement, {3000, 900}));
}
