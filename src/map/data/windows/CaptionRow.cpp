#include "map/data/windows/CaptionRow.h"

#include "ui/Skin.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace {

constexpr int markMargin = 6;
constexpr QSizeF markSize(8, 5);

} // namespace

CaptionRow::CaptionRow(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setSortIndicatorShown(true);
    setHighlightSections(false);
}

void CaptionRow::initStyleOptionForIndex(QStyleOptionHeader* option, int section) const {
    QHeaderView::initStyleOptionForIndex(option, section);
    option->sortIndicator = QStyleOptionHeader::None;
}

void CaptionRow::paintSection(QPainter* painter, const QRect& rect, int section) const {
    painter->save();
    QHeaderView::paintSection(painter, rect, section);
    painter->restore();
    if (section != sortIndicatorSection() || !isSortIndicatorShown())
        return;
    const double left = section == 0 ? rect.right() - markMargin - markSize.width() : rect.left() + markMargin;
    const double top = rect.center().y() - markSize.height() / 2;
    const bool up = sortIndicatorOrder() == Qt::AscendingOrder;
    const double base = up ? top + markSize.height() : top, tip = up ? top : top + markSize.height();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(toColor(skinColours().Indigo(6)));
    painter->drawPolygon(QPolygonF{{left, base}, {left + markSize.width(), base}, {left + markSize.width() / 2, tip}});
    painter->restore();
}
