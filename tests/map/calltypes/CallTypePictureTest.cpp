#include "map/calltypes/CallTypePicture.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

CallTypePicture somePicture() {
    CallTypePicture picture;
    picture.bars = {{{"Mobile", 1, "North"}, {"International", 0, "(None)"}, {"VOIP", {}, {}}, {"Other", 9, {}}}};
    picture.bandColours = {QColor(0xFFECEE), QColor(0xE43828)};
    picture.split.emplace();
    picture.split->title = "Total Calls";
    picture.split->total = 10;
    picture.split->series[0] = {"UK Line", 10, 0x996CD5};
    picture.fontFamily = "Sans";
    return picture;
}

QImage painted(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::cyan);
    QPainter painter(&image);
    paintCallTypes(painter, QRectF(image.rect()), somePicture());
    return image;
}

int pixelsOf(const QImage& image, QRect where, QRgb colour) {
    int count = 0;
    for (int y = where.top(); y <= where.bottom(); ++y) {
        for (int x = where.left(); x <= where.right(); ++x)
            count += (image.pixel(x, y) & 0xFFFFFFU) == (colour & 0xFFFFFFU);
    }
    return count;
}

TEST(CallTypePicture, BarsStandAtTheLowLeftInTheirBandAndThePieAtTheTopRight) {
    const QImage image = painted({900, 600});
    EXPECT_GT(pixelsOf(image, {0, 450, 200, 150}, 0xE43828), 300) << "the bar of Mobile";
    EXPECT_GT(pixelsOf(image, {580, 0, 320, 200}, 0x996CD5), 3000);
    EXPECT_EQ(pixelsOf(image, {200, 200, 380, 250}, 0x00FFFF), 380 * 250) << "the map is left free";
}

TEST(CallTypePicture, WhatHasNoRoomIsLeftOut) {
    const QImage narrow = painted({200, 600});
    EXPECT_EQ(pixelsOf(narrow, narrow.rect(), 0x996CD5), 0);
    const QImage low = painted({900, 60});
    EXPECT_EQ(pixelsOf(low, low.rect(), 0x00FFFF), 900 * 60);
}

} // namespace
