#include "map/calltypes/PiePicture.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

CallTypeSplit someSplit() {
    CallTypeSplit split;
    split.title = "Total Calls";
    split.total = 800;
    split.series = {{{"UK Line", 400, 0x996CD5},
                     {"Payphone", 0, 0xFF80FF},
                     {"International", 100, 0xFF5A4B},
                     {"Mobile", 200, 0x1EC8E6},
                     {"VOIP", 0, 0xD4BFEC},
                     {"Other", 100, 0xFFB7FE}}};
    return split;
}

const QRectF area(0, 0, 320, 190);

QImage drawn(const PiePicture& picture) {
    QImage image(area.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    picture.paint(painter);
    return image;
}

TEST(PiePicture, WhatIsUnderThePointerIsWhatIsDrawnThere) {
    const PiePicture picture(someSplit(), area, "Sans");
    const QImage image = drawn(picture);
    int inside = 0, agreeing = 0;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width() / 2; x += 3) {
            const auto series = picture.seriesAt(QPointF(x + 0.5, y + 0.5));
            if (!series)
                continue;
            ++inside;
            agreeing += (image.pixel(x, y) & 0xFFFFFFU) == someSplit().series[*series].colour;
        }
    }
    EXPECT_GT(inside, 500);
    EXPECT_GT(agreeing, inside * 9 / 10) << "all but the white edges";
}

TEST(PiePicture, TellsSharesInWords) {
    const PiePicture picture(someSplit(), area, "Sans");
    EXPECT_EQ(picture.seriesText(3).toStdString(), "Mobile: 200 (25.0 %)");
    EXPECT_EQ(picture.text().toStdString(),
              "Total Calls. UK Line: 400 (50.0 %), Payphone: 0 (0.0 %), International: 100 (12.5 %), Mobile: 200 (25.0 "
              "%), VOIP: 0 (0.0 %), Other: 100 (12.5 %)");
    CallTypeSplit money = someSplit();
    money.title = "Cost";
    EXPECT_EQ(PiePicture(money, area, "Sans").seriesText(0).toStdString(), "UK Line: £400.00 (50.0 %)");
}

TEST(PiePicture, OneSeriesIsAWholeCircleAndNegativeSumsAreNotDrawn) {
    CallTypeSplit split = someSplit();
    for (auto& series : split.series)
        series.value = 0;
    split.series[3].value = 5;
    split.series[0].value = -2;
    const PiePicture picture(split, area, "Sans");
    const QImage image = drawn(picture);
    int coloured = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width() / 2; ++x)
            coloured += (image.pixel(x, y) & 0xFFFFFFU) == split.series[3].colour;
    }
    EXPECT_GT(coloured, 5000);
    EXPECT_EQ(picture.seriesText(3).toStdString(), "Mobile: 5 (100.0 %)");
}

} // namespace
