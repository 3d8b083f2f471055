#pragma once

#include <QImage>
#include <QSize>

#include <string>

class MapKey;
class MapSurface;
struct MapFormState;

/// The words of a report picture. Texts are UTF-8.
struct ReportCaption {
    std::string title;      ///< "TV Regions · Total Calls"
    std::string subtitle;   ///< project or account; may be empty
    std::string parameters; ///< of the selection, as many lines as it has; may be empty
    bool showsMinimum = true;
};

/// The size that the map takes of a report picture of `pictureSize`, in pixels.
QSize reportMapSize(QSize pictureSize);

/// Gives the surface the size and sharpness that the map has in a report picture. Before CreateMap, it saves a second
/// drawing of the map.
void prepareReportMap(MapSurface& surface, QSize pictureSize);

/// A finished report of `pictureSize` pixels: the map, shown whole, beside a panel with title, period, key, maximum and
/// minimum. Built from what CreateMap has left in the surface, the key and the read-outs; changes the surface's view,
/// and draws it where its picture is not that view already. Throws RuntimeError as MapSurface::DrawMap does. Needs a
/// QGuiApplication.
QImage drawReportPicture(MapSurface& surface, const MapKey& key, const MapFormState& form, const ReportCaption& caption,
                         QSize pictureSize);
