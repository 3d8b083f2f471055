#include "map/surface/windows/MapKeyView.h"

#include "map/surface/MapKey.h"

#include <QPainter>
#include <QPalette>
#include <QScrollBar>

#include <array>
#include <cmath>

namespace {

constexpr int Padding = 8;
constexpr QSize EmptySize(180, 132);
constexpr int SmallestHeight = 96;

const QColor MutedText(0x5A, 0x5A, 0x5A);
constexpr std::array EmptySwatches{0xEFEFEF, 0xE3E3E3, 0xD6D6D6};
constexpr QSize SwatchSize(24, 15);
constexpr int SwatchStep = 23;

QString wordsFor(const MapKey& key) {
    if (key.sections().empty())
        return MapKeyView::tr("No map has been drawn yet");
    QStringList words;
    for (const MapKey::Section& section : key.sections()) {
        words << QString::fromStdString(section.title);
        for (const MapKey::Entry& entry : section.entries)
            words << QString::fromStdString(entry.name).simplified();
    }
    return words.join(", ");
}

void paintEmpty(QPainter& painter, const QRect& area) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    int top = Padding;
    for (int shade : EmptySwatches) {
        painter.setBrush(QColor::fromRgb(static_cast<QRgb>(shade)));
        painter.drawRoundedRect(QRect(QPoint(Padding, top), SwatchSize), 3, 3);
        top += SwatchStep;
    }
    painter.setPen(MutedText);
    painter.drawText(area.adjusted(Padding, top, -Padding, 0), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     MapKeyView::tr("The colours of the map will be listed here."));
}

} // namespace

/// The whole key, which the view scrolls.
class MapKeyView::Sheet : public QWidget {
public:
    explicit Sheet(const MapKey& key) : key_(key) {}

    QSize sizeHint() const override {
        if (key_.sections().empty())
            return EmptySize;
        const QSizeF needed = key_.neededSize();
        return {static_cast<int>(std::ceil(needed.width())) + 2 * Padding,
                static_cast<int>(std::ceil(needed.height())) + 2 * Padding};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (key_.sections().empty()) {
            paintEmpty(painter, rect());
            return;
        }
        painter.translate(Padding, Padding);
        key_.paint(painter);
    }

private:
    const MapKey& key_;
};

MapKeyView::MapKeyView(MapKey& key, QWidget* parent) : QScrollArea(parent), key_(key), sheet_(new Sheet(key)) {
    QPalette white = palette();
    white.setColor(QPalette::Window, Qt::white);
    sheet_->setPalette(white);
    sheet_->setAutoFillBackground(true);
    setPalette(white);
    setWidget(sheet_);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setFocusPolicy(Qt::StrongFocus); // the keys scroll it
    setAccessibleName(tr("Map Colour Key"));
    key_.Repaint = [this] { showKey(); };
    showKey();
}

MapKeyView::~MapKeyView() {
    key_.Repaint = {};
}

QSize MapKeyView::sizeHint() const {
    return sheet_->sizeHint();
}

QSize MapKeyView::minimumSizeHint() const {
    const QSize whole = sizeHint();
    return {whole.width() + verticalScrollBar()->sizeHint().width(), std::min(whole.height(), SmallestHeight)};
}

void MapKeyView::showKey() {
    setAccessibleDescription(wordsFor(key_));
    sheet_->setMinimumSize(sheet_->sizeHint());
    sheet_->update();
    updateGeometry();
}
