#pragma once

#include "map/surface/Scene.h"

#include <QCache>
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QImage>
#include <QSizeF>

#include <array>

/// A label's font in device pixels. A family that is not installed is replaced by one of the same widths.
QFont labelFont(const LabelFont& font, double devicePixelRatio);

/// A colour by how much of a pixel it covers, from 0 to 255; premultiplied.
using LabelShades = std::array<QRgb, 256>;

/// One way of writing labels: font, colour, and the colour of the light rim that makes them read on every colour below.
/// Keeps the labels it has drawn, as far as a set room goes. Device pixels. Main thread.
class LabelFace {
public:
    LabelFace(const LabelFont& font, const QColor& colour, const QColor& halo, double devicePixelRatio);

    /// The room that a text takes, without its rim.
    QSizeF sizeOf(const QString& text);
    /// How far the rim reaches beyond that.
    int rim() const { return rim_; }
    /// A text with its rim on nothing; its box lies rim() inside. Null for an empty text and for one of absurd size.
    QImage image(const QString& text);

private:
    double advanceOf(QChar character);
    QImage draw(const QString& text);

    QFont font_;
    QFontMetricsF metrics_;
    LabelShades ink_;
    LabelShades halo_;
    double ratio_;
    int rim_;
    QHash<QChar, double> advances_;
    QCache<QString, QImage> images_; // its costs are pixels
};
