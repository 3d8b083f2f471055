#pragma once

#include <QStringList>
#include <QWidget>

/// Short entries in two lines, column after column. Columns are as wide as their entries while there is room, then they
/// share it; an entry too long for its room ends in "..." and shows itself whole as a tool tip.
class DetailList : public QWidget {
    Q_OBJECT

public:
    explicit DetailList(QWidget* parent = nullptr);

    const QStringList& details() const { return details_; }
    void setDetails(const QStringList& details);
    /// The entries as they are drawn at the present size.
    QStringList shownTexts() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QList<int> columnWidths() const;
    QList<QRect> cells() const;

    QStringList details_;
};
