#include "map/surface/MapKey.h"

#include "map/surface/LabelFace.h"
#include "map/surface/MapStyle.h"
#include "map/surface/MapSurface.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// Interface pixels.
constexpr double SwatchWidth = 24.0;
constexpr double SwatchHeight = 15.0;
constexpr double SwatchRadius = 2.5;
constexpr double SwatchGap = 10.0;  ///< between swatch and name
constexpr double RowPadding = 6.0;  ///< above and below a name, together
constexpr double TitleGap = 6.0;    ///< between a title and its first row
constexpr double SectionGap = 12.0; ///< between two sections
constexpr double TitlePoints = 1.0; ///< a title is larger than the names by this

const QColor TextColour(0x2A, 0x2A, 0x2A);
const QColor SwatchBorder(0xAA, 0xAA, 0xAA);

/// Sizes of a key at one pixel ratio.
struct KeyLayout {
    QFont name;
    QFont title;
    double ratio;

    KeyLayout(const LabelFont& font, double devicePixelRatio)
        : name(labelFont(font, devicePixelRatio)),
          title(labelFont({font.family, font.size + TitlePoints}, devicePixelRatio)), ratio(devicePixelRatio) {
        title.setBold(true);
    }

    double rowHeight() const {
        return std::ceil(std::max(QFontMetricsF(name).height(), SwatchHeight * ratio) + RowPadding * ratio);
    }
    double titleHeight() const { return std::ceil(QFontMetricsF(title).height() + TitleGap * ratio); }
    double nameLeft() const { return (SwatchWidth + SwatchGap) * ratio; }

    double widthOf(const MapKey::Section& section) const {
        double width = QFontMetricsF(title).horizontalAdvance(QString::fromStdString(section.title));
        for (const MapKey::Entry& entry : section.entries)
            width =
                std::max(width, nameLeft() + QFontMetricsF(name).horizontalAdvance(QString::fromStdString(entry.name)));
        return std::ceil(width);
    }
    double heightOf(const MapKey::Section& section) const {
        return titleHeight() + rowHeight() * static_cast<double>(section.entries.size());
    }
};

void paintEntry(QPainter& painter, const MapKey::Entry& entry, double top, const KeyLayout& layout) {
    const double height = layout.rowHeight();
    const QSizeF swatchSize(SwatchWidth * layout.ratio, SwatchHeight * layout.ratio);
    const QRectF swatch(QPointF(0.0, top + (height - swatchSize.height()) / 2.0), swatchSize);
    painter.setPen(QPen(SwatchBorder, layout.ratio));
    painter.setBrush(entry.filled ? QBrush(colourOf(entry.colour)) : QBrush(Qt::white));
    const double half = layout.ratio / 2.0; // the border lies on whole pixels
    painter.drawRoundedRect(swatch.adjusted(half, half, -half, -half), SwatchRadius * layout.ratio,
                            SwatchRadius * layout.ratio);
    painter.setPen(TextColour);
    painter.setFont(layout.name);
    const QFontMetricsF metrics(layout.name);
    const double baseline = top + (height - metrics.height()) / 2.0 + metrics.ascent();
    painter.drawText(QPointF(layout.nameLeft(), baseline), QString::fromStdString(entry.name));
}

} // namespace

MapKey::MapKey(const MapSurface& surface) : font{"Calibri", 10.5}, surface_(surface) {}

void MapKey::RebuildKey() {
    sections_.clear();
    for (const Layer& layer : surface_.scene().layers) {
        if (!layer.LayerVisible || !layer.LayerShownInKey)
            continue;
        Section section{layer.LayerName, {}};
        for (const Symbol& symbol : layer.symbols)
            section.entries.push_back({symbol.SymbolName, symbol.SymbolPolygonColor, symbol.SymbolFilled});
        sections_.push_back(std::move(section));
    }
    Refresh();
}

void MapKey::Refresh() const {
    if (Repaint)
        Repaint();
}

QSizeF MapKey::neededSize(double devicePixelRatio) const {
    const KeyLayout layout(font, devicePixelRatio);
    QSizeF size(0.0, 0.0);
    for (const Section& section : sections_) {
        const double gap = size.height() > 0.0 ? SectionGap * devicePixelRatio : 0.0;
        size.setWidth(std::max(size.width(), layout.widthOf(section)));
        size.setHeight(size.height() + gap + layout.heightOf(section));
    }
    return size;
}

void MapKey::paint(QPainter& painter, double devicePixelRatio) const {
    const KeyLayout layout(font, devicePixelRatio);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    double top = 0.0;
    for (const Section& section : sections_) {
        painter.setPen(TextColour);
        painter.setFont(layout.title);
        painter.drawText(QPointF(0.0, top + QFontMetricsF(layout.title).ascent()),
                         QString::fromStdString(section.title));
        double row = top + layout.titleHeight();
        for (const Entry& entry : section.entries) {
            paintEntry(painter, entry, row, layout);
            row += layout.rowHeight();
        }
        top = row + SectionGap * devicePixelRatio;
    }
    painter.restore();
}

QImage MapKey::picture(double devicePixelRatio) const {
    const QSizeF size = neededSize(devicePixelRatio);
    QImage image(static_cast<int>(std::ceil(size.width())) + 1, static_cast<int>(std::ceil(size.height())) + 1,
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter, devicePixelRatio);
    return image;
}
