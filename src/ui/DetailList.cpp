#include "ui/DetailList.h"

#include "ui/ElidedText.h"
#include "ui/Skin.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <numeric>

namespace {

constexpr int rows = 2;
constexpr int columnGap = 24;

} // namespace

DetailList::DetailList(QWidget* parent) : QWidget(parent) {
    QFont caption = font();
    caption.setPointSizeF(9);
    setFont(caption);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void DetailList::setDetails(const QStringList& details) {
    details_ = details;
    setAccessibleName(details.join(QStringLiteral(", ")));
    updateGeometry();
    update();
}

QSize DetailList::sizeHint() const {
    const QList<int> widths = columnWidths();
    return {std::accumulate(widths.begin(), widths.end(), 0), rows * fontMetrics().lineSpacing()};
}

/// As wide as their longest entries need, gap behind it included.
QList<int> DetailList::columnWidths() const {
    QList<int> widths((details_.size() + rows - 1) / rows, 0);
    for (qsizetype i = 0; i < details_.size(); ++i)
        widths[i / rows] = std::max(widths[i / rows], fontMetrics().horizontalAdvance(details_[i]) + columnGap);
    return widths;
}

QList<QRect> DetailList::cells() const {
    QList<int> widths = columnWidths();
    if (std::accumulate(widths.begin(), widths.end(), 0) - columnGap > width())
        widths.fill((width() + columnGap) / static_cast<int>(widths.size()));
    const int line = fontMetrics().lineSpacing();
    const int used = std::min<int>(rows, static_cast<int>(details_.size()));
    const int top = (height() - used * line) / 2;
    QList<QRect> places;
    int left = 0;
    for (qsizetype i = 0; i < details_.size(); ++i) {
        const int row = static_cast<int>(i % rows);
        const int room = widths[i / rows];
        places.append(QRect(left, top + row * line, std::max(room - columnGap, 0), line));
        if (row == rows - 1)
            left += room;
    }
    return places;
}

QStringList DetailList::shownTexts() const {
    const QList<QRect> places = cells();
    QStringList texts;
    for (qsizetype i = 0; i < details_.size(); ++i)
        texts.append(elidedText(fontMetrics(), details_[i], places[i].width()));
    return texts;
}

void DetailList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(toColor(skinColours().Grey(5)));
    const QList<QRect> places = cells();
    const QStringList texts = shownTexts();
    for (qsizetype i = 0; i < texts.size(); ++i)
        painter.drawText(places[i], Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, texts[i]);
}

bool DetailList::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QList<QRect> places = cells();
    const QStringList texts = shownTexts();
    for (qsizetype i = 0; i < texts.size(); ++i)
        if (places[i].contains(help->pos()) && texts[i] != details_[i])
            QToolTip::showText(help->globalPos(), details_[i], this);
    return true;
}
