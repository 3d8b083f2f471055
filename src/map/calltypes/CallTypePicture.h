#pragma once

#include "map/calltypes/CallTypeBands.h"
#include "map/calltypes/CallTypeSplit.h"

#include <QColor>
#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

class QPainter;

/// What stands beside a map for calls without a place on it.
struct CallTypePicture {
    CallTypeBars bars;
    bool withGroups = false;            ///< bars tell the names of their groups
    std::vector<QColor> bandColours;    ///< of the key
    std::optional<CallTypeSplit> split; ///< the pie
    QString fontFamily;
};

/// The ground on which bars and pie stand.
void paintCallTypeCard(QPainter& painter, const QRectF& card);

/// Paints it over the sea of a map that is shown whole: the pie at the top right, the bars at the bottom left. `map` is
/// the map's room, in logical pixels of the painter. What has no room is left out. Main thread.
void paintCallTypes(QPainter& painter, const QRectF& map, const CallTypePicture& picture);
