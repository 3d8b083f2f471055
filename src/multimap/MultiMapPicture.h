#pragma once

#include "map/calltypes/CallTypeBands.h"

#include <QImage>
#include <QRectF>
#include <QString>

#include <vector>

class MapKey;

/// One map as it stands in the window's view. Rectangles are logical pixels of the view; they may reach out of it.
struct MapOfPicture {
    QString period;
    QRectF map;
    QImage image; ///< device pixels of `map`
    bool hasBars = true;
    CallTypeBars bars; ///< of the calls without a place on the map
};

/// What the window of several maps shows, without its tools and buttons.
struct MultiMapPicture {
    QString title;   ///< "TV Regions · Total Calls"
    QString project; ///< may be empty
    QSizeF view;     ///< what is seen of the maps, logical pixels
    std::vector<MapOfPicture> maps;
    QString fontFamily;
    double devicePixelRatio = 1;
};

/// Draws it with the key at its left. Main thread; needs a QGuiApplication.
QImage drawMultiMapPicture(const MultiMapPicture& picture, const MapKey& key);
