#include "ui/PaintedIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace {

constexpr int usualSides[] = {16, 20, 22, 24, 32, 40, 48, 64, 96, 128, 256};

class PaintedIconEngine : public QIconEngine {
public:
    explicit PaintedIconEngine(PaintPicture paint) : paint_(std::move(paint)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        if (mode == QIcon::Disabled)
            painter->setOpacity(0.4);
        paint_(*painter, rect);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int side : usualSides)
            sizes.append(QSize(side, side));
        return sizes;
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        const int side = std::min(size.width(), size.height());
        return {side, side};
    }
    QIconEngine* clone() const override { return new PaintedIconEngine(*this); }

private:
    PaintPicture paint_;
};

} // namespace

QIcon paintedIcon(PaintPicture paint) {
    return QIcon(new PaintedIconEngine(std::move(paint)));
}
