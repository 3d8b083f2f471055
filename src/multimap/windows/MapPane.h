#pragma once

#include "map/calltypes/CallTypeBands.h"
#include "multimap/MultiMapPicture.h"

#include <QWidget>

#include <memory>

class CallTypePanel;
class ElidedLabel;
class GeometryCache;
class MapSurfaceWidget;

/// One of several maps: its period above it, the calls without a place on it in a line below, so that they hide no
/// land. The names of its controls end in "_n", n being its number from 1 on.
class MapPane : public QWidget {
    Q_OBJECT

public:
    MapPane(int mapIndex, std::shared_ptr<GeometryCache> geometry, QWidget* parent = nullptr);

    MapSurfaceWidget* MapSurface1() const { return mapSurface1_; }
    CallTypePanel* fraOtherCallAreas() const { return bars_; }
    void showPeriod(const QString& period);
    void showBars(const CallTypeBars& bars);

    /// As it stands in `view`, one of its ancestors.
    MapOfPicture picture(const QWidget& view) const;
    /// Whether `view` shows its period, its whole map and its bars.
    bool isWhollyIn(const QWidget& view) const;

private:
    int mapIndex_;
    ElidedLabel* txtDates_;
    MapSurfaceWidget* mapSurface1_;
    CallTypePanel* bars_;
    CallTypeBars shownBars_{};
};
