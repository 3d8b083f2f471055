#pragma once

#include "map/calltypes/CallTypeBands.h"

#include <QWidget>

#include <array>

class QLabel;
class ucWebbyLink;

/// fraOtherCallAreas: the calls without a place on the map, each with a bar in the colour that the map would give it,
/// and on maps of customer groups the name of its group. Bar and text lead to what is known of the calls. Upright it is
/// a card that stands over the sea; level, one line without a ground of its own, for below a map.
class CallTypePanel : public QWidget {
    Q_OBJECT

public:
    explicit CallTypePanel(QWidget* parent = nullptr, Qt::Orientation orientation = Qt::Vertical);

    /// Averages are not known of calls from abroad and of others: these two rows can be left out.
    void showBars(const CallTypeBars& bars, bool withGroups, bool averages);

signals:
    /// "Mobile", "International", "VOIP" or "Other".
    void chosen(const QString& callType);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        ucWebbyLink* bar;
        ucWebbyLink* text;
        QLabel* group;
    };

    void arrange();
    ucWebbyLink* makeLink(const QString& name, const QString& caption, const QString& callType);

    Qt::Orientation orientation_;
    QLabel* lblGroup;
    std::array<Row, 4> rows_{};
};
