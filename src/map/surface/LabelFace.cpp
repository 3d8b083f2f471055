#include "map/surface/LabelFace.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0;
constexpr double MostPoints = 200.0;
/// Interface pixels. The rim is full up to the first and gone at the second.
constexpr double FullRim = 1.5;
constexpr double WidestRim = 2.6;
constexpr qsizetype KeptPixels = 6'000'000;
constexpr double MostPixelsOfALabel = 2'000'000.0;
/// Letters of western scripts: a text of them is as wide as its letters.
constexpr ushort LastPlainLetter = 0x24F;

/// How much of each pixel the text covers, 0 to 255.
struct Mask {
    int width, height;
    std::vector<uchar> coverage;

    Mask(int columns, int rows)
        : width(columns), height(rows), coverage(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}
    uchar* row(int y) { return coverage.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width); }
    const uchar* row(int y) const {
        return coverage.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }
};

/// Makes `to` at least `from` moved by (dx, dy).
void spread(const Mask& from, Mask& to, int dx, int dy) {
    const int left = std::max(0, dx), right = std::min(to.width, to.width + dx);
    for (int y = std::max(0, dy); y < std::min(to.height, to.height + dy); ++y) {
        const uchar* source = from.row(y - dy);
        uchar* target = to.row(y);
        for (int x = left; x < right; ++x)
            target[x] = source[x - dx] > target[x] ? source[x - dx] : target[x];
    }
}

/// What the text weighs at some distance from it, `weight` from 0 to 1. What is half covered counts as whole, or thin
/// strokes would have a faint rim.
Mask weighted(const Mask& text, double weight) {
    Mask result(text.width, text.height);
    std::transform(text.coverage.begin(), text.coverage.end(), result.coverage.begin(),
                   [share = static_cast<int>(weight * 256.0)](uchar coverage) {
                       return static_cast<uchar>(std::min(2 * coverage, 255) * share >> 8);
                   });
    return result;
}

/// What lies within reach of the text, fading outwards.
Mask rimOf(const Mask& text, int reach, double ratio) {
    std::map<double, std::vector<QPoint>> steps; // by their weight
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            const double distance = std::sqrt(dx * dx + dy * dy) / ratio;
            const double weight = std::clamp((WidestRim - distance) / (WidestRim - FullRim), 0.0, 1.0);
            if (weight > 0.0)
                steps[weight].emplace_back(dx, dy);
        }
    }
    Mask rim(text.width, text.height);
    for (const auto& [weight, offsets] : steps) {
        const Mask source = weighted(text, weight);
        for (const QPoint& offset : offsets)
            spread(source, rim, offset.x(), offset.y());
    }
    return rim;
}

LabelShades shadesOf(const QColor& colour) {
    LabelShades shades;
    for (int coverage = 0; coverage < static_cast<int>(shades.size()); ++coverage)
        shades[static_cast<std::size_t>(coverage)] =
            qPremultiply(qRgba(colour.red(), colour.green(), colour.blue(), colour.alpha() * coverage / 255));
    return shades;
}

/// One premultiplied colour over another.
QRgb over(QRgb upper, QRgb lower) {
    if (upper == 0)
        return lower;
    const int rest = 255 - qAlpha(upper);
    const auto mix = [rest](int a, int b) { return a + (b * rest + 127) / 255; };
    return qRgba(mix(qRed(upper), qRed(lower)), mix(qGreen(upper), qGreen(lower)), mix(qBlue(upper), qBlue(lower)),
                 mix(qAlpha(upper), qAlpha(lower)));
}

} // namespace

QFont labelFont(const LabelFont& font, double devicePixelRatio) {
    // The second name of a pair has the widths of the first and is what free systems have in its place.
    QStringList families{QString::fromStdString(font.family)};
    if (equalText(font.family, "Calibri"))
        families << "Carlito";
    families << "Arial"
             << "Liberation Sans"
             << "DejaVu Sans";
    QFont result;
    result.setFamilies(families);
    result.setPixelSize(
        std::max(1, qRound(std::clamp(font.size, 1.0, MostPoints) * PixelsPerPoint * devicePixelRatio)));
    return result;
}

LabelFace::LabelFace(const LabelFont& font, const QColor& colour, const QColor& halo, double devicePixelRatio)
    : font_(labelFont(font, devicePixelRatio)), metrics_(font_), ink_(shadesOf(colour)), halo_(shadesOf(halo)),
      ratio_(devicePixelRatio), rim_(static_cast<int>(std::ceil(WidestRim * devicePixelRatio))), images_(KeptPixels) {}

QSizeF LabelFace::sizeOf(const QString& text) {
    double width = 0.0;
    for (const QChar& character : text) {
        if (character.unicode() > LastPlainLetter)
            return {metrics_.horizontalAdvance(text), metrics_.height()};
        width += advanceOf(character);
    }
    return {width, metrics_.height()};
}

double LabelFace::advanceOf(QChar character) {
    const auto known = advances_.constFind(character);
    return known != advances_.constEnd() ? *known : *advances_.insert(character, metrics_.horizontalAdvance(character));
}

QImage LabelFace::image(const QString& text) {
    if (const QImage* kept = images_.object(text))
        return *kept;
    QImage drawn = draw(text);
    images_.insert(text, new QImage(drawn), std::max<qsizetype>(1, qsizetype(drawn.width()) * drawn.height()));
    return drawn;
}

QImage LabelFace::draw(const QString& text) {
    const QSizeF size = sizeOf(text);
    if (text.isEmpty() || size.width() * size.height() > MostPixelsOfALabel)
        return {};
    const QSize pixels(static_cast<int>(std::ceil(size.width())) + 2 * rim_,
                       static_cast<int>(std::ceil(size.height())) + 2 * rim_);
    QImage drawn(pixels, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font_);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(rim_, rim_ + std::round(metrics_.ascent())), text);
    painter.end();

    Mask mask(pixels.width(), pixels.height());
    for (int y = 0; y < mask.height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(drawn.constScanLine(y));
        std::transform(line, line + mask.width, mask.row(y),
                       [](QRgb pixel) { return static_cast<uchar>(qAlpha(pixel)); });
    }
    const Mask rim = rimOf(mask, rim_, ratio_);
    for (int y = 0; y < mask.height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(drawn.scanLine(y));
        for (int x = 0; x < mask.width; ++x)
            line[x] = over(ink_[mask.row(y)[x]], halo_[rim.row(y)[x]]);
    }
    return drawn;
}
