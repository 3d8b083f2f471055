#pragma once

#include "map/MapFormState.h"
#include "map/ThematicMap.h"
#include "map/calltypes/CallTypeBands.h"
#include "map/detail/AreaDetail.h"
#include "map/form/MapTypeList.h"
#include "stats/ModData_GetMultiMapData.h"

#include <QSize>

#include <array>
#include <string>
#include <vector>

class MapKey;
class MapSurface;
class Recordset;

/// What the window of several maps decides, without its widgets. Two, four or six maps of one boundary stand side by
/// side, numbered from 1 to 6; map n shows period n + 1 of the table that a report run has filled, and all of them are
/// coloured by one scale. Maps beyond their count are never touched. Surfaces and key outlive it; the key is that of
/// the first surface. Errors are logged and passed over. Main thread.
class MultiMapSession {
public:
    static constexpr int mostMaps = 6;
    using Surfaces = std::array<MapSurface*, mostMaps>;

    MultiMapSession(const Surfaces& MapSurface1, MapKey& MapKey1);

    /// Starts on the figures that a report run has made ready: every map at the view of the whole country, and the
    /// first measure.
    void begin(long boundary, const MultiMapParameters& ranges);
    /// Lets go of the maps.
    void end();

    /// Builds and draws one map; its view is that of the whole map until it has one of its own.
    void CreateMap(int mapIndex);
    /// All of them, yielding between them, until closeRequested. Tells the user where no map has a figure.
    void createMaps();
    /// Draws another measure on all maps; views stay.
    void changeMapType(long mapType);

    /// Values from outside for one map, as ThematicMap has them.
    void ApplyValues(int mapIndex, Recordset& values);
    void AddLabelLayer(int mapIndex);
    void ClearMap(int mapIndex);

    /// The map has been clicked, before it draws: names of small areas come and go with its scale. With the Information
    /// tool a click leaves them as they are.
    void clicked(int mapIndex);
    /// Its view has been moved by the user, before it draws.
    void viewChanged(int mapIndex);
    /// Its tool bar has been used, before it draws.
    void toolBarClicked(int mapIndex, long tool);
    /// Whether the map is to be built anew once its draw has ended.
    bool reloads(int mapIndex) const { return at(mapIndex).reload; }
    /// A draw has ended: a map that reloads goes back to the view that the maps share.
    void drawFinished(int mapIndex);
    /// Every map shows what the current one shows.
    void alignMaps();

    /// Whether a workbook may be written; tells or asks the user what stands against it.
    bool mayOutputToExcel(bool mapsFinished, bool allInView) const;

    int count() const { return count_; }
    long boundary() const { return boundary_; }
    long mapType() const { return mapType_; }
    int currentMap() const { return currentMap_; } ///< the one the user has last worked in
    /// Whether the picture of every map shows its present view.
    bool mapsFinished() const;
    /// "From 01/03/2026 00:00:00 to 31/03/2026 23:59:59".
    std::string period(int mapIndex) const;
    CallTypeBars bars(int mapIndex) const;
    /// The parameters of the selection apart from the periods, "name = value" joined by CR LF.
    std::string selection() const;

    /// What is known of an area of a map, or of its calls without a place, in the period of the map.
    AreaAnswer areaAt(int mapIndex, int layer, long entity) const;
    AreaAnswer callType(int mapIndex, const std::string& name) const;

    bool closeRequested = false; ///< the user wants to leave while maps are built

private:
    struct IndexedMap {
        MapSurface* surface = nullptr;
        MapFormState form; ///< extentCaptured: the map has its view; keepView: the user has zoomed it
        bool reload = false;
    };

    IndexedMap& at(int mapIndex) { return maps_.at(static_cast<std::size_t>(mapIndex - 1)); }
    const IndexedMap& at(int mapIndex) const { return maps_.at(static_cast<std::size_t>(mapIndex - 1)); }
    ThematicMap thematic(int mapIndex);
    bool isOnShow(int mapIndex) const { return mapIndex >= 1 && mapIndex <= count_; }
    double sharedMaximum() const;
    void fitLabels(int mapIndex);
    void showLabels(int mapIndex, bool visible);
    AreaQuestion question(int mapIndex) const;

    MapKey& key_;
    std::array<IndexedMap, mostMaps> maps_;
    MultiMapParameters ranges_;
    std::string selection_;
    SavedView sharedView_; ///< of the whole map
    QSize sharedSize_;     ///< pixels of the surface that it was found for
    int count_ = 0;
    long boundary_ = 0;
    long mapType_ = 1;
    int currentMap_ = 1;
};

/// The measures that several maps can show, as cmbMapType lists them.
std::vector<ListEntry> multiMapTypeEntries();
