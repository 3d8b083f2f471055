#pragma once

#include <QHeaderView>

/// The captions of a grid. The mark of sorting stands opposite to where a caption is aligned, so that captions and
/// figures end at the same place.
class CaptionRow : public QHeaderView {
    Q_OBJECT

public:
    explicit CaptionRow(QWidget* parent);

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};
