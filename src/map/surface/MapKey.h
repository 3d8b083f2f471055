#pragma once

#include "map/surface/Scene.h"

#include <QFont>
#include <QImage>
#include <QSizeF>

#include <functional>
#include <string>
#include <vector>

class MapSurface;
class QPainter;

/// The colour key of a map surface: one section for each layer shown in the key, with a swatch and a name for each of
/// its symbols. Remembers what the surface held at the last RebuildKey. Refers to its surface, which outlives it. Main
/// thread.
class MapKey {
public:
    struct Entry {
        std::string name;
        MapColourCode colour = 0;
        bool filled = true;
        friend bool operator==(const Entry&, const Entry&) = default;
    };
    struct Section {
        std::string title;
        std::vector<Entry> entries;
        friend bool operator==(const Section&, const Section&) = default;
    };

    explicit MapKey(const MapSurface& surface);

    std::function<void()> Repaint; ///< what RebuildKey and Refresh ask of the window that shows the key

    void RebuildKey();
    void Refresh() const;
    const std::vector<Section>& sections() const { return sections_; }

    /// Typeface and size in points of the names; titles are bold and a little larger.
    LabelFont font;

    /// The room that all of the key needs, in device pixels.
    QSizeF neededSize(double devicePixelRatio = 1.0) const;
    /// Draws the key with its top left corner at the painter's origin.
    void paint(QPainter& painter, double devicePixelRatio = 1.0) const;
    /// The key on its own, as large as it needs to be.
    QImage picture(double devicePixelRatio = 1.0) const;

private:
    const MapSurface& surface_;
    std::vector<Section> sections_;
};
