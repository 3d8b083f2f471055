#pragma once

#include "animation/playback/Playback.h"
#include "animation/playback/PlaybackMap.h"
#include "core/Caption.h"
#include "groups/UpdateCustomerGroups.h"
#include "map/MapFormState.h"
#include "map/ThematicMap.h"
#include "map/calltypes/CallTypeBands.h"
#include "map/calltypes/CallTypeSplit.h"
#include "map/data/DataStatement.h"
#include "map/detail/AreaDetail.h"
#include "map/form/MapTypeList.h"
#include "stats/ReportParameters.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

class MapKey;
class MapSurface;

/// Of a whole map: its own areas and the calls without a place.
struct MapTotals {
    std::int64_t calls = 0;
    double cost = 0; ///< pounds
};

/// What the map window decides, without its widgets: which figures it shows of which boundary, when labels are on, what
/// a click means. The window calls it in its handlers and shows what it holds. Surface and key outlive it. Errors are
/// logged and passed over. Main thread.
class MapSession : private PlaybackMap {
public:
    MapSession(MapSurface& surface, MapKey& key);

    MapFormState form;
    /// The frames of an animation of this map.
    Playback playback{*this, form};

    /// Where the groups show that they are brought up to date.
    FrameVisibility fraSaveStatus;
    Caption lblSaveStatus, lblGroupStatus;

    /// Starts on the figures that a report run has made ready: the view is that of the whole map, the map type the
    /// first.
    void begin(long boundary, const ReportParameters& parameters);
    /// Builds and draws the map anew.
    void build();
    /// Frames have been set up: they are played on the counts of the map.
    void framesReady();

    /// Counts another boundary for the same parameters and draws it, at the view of the whole map. A boundary that
    /// cannot be shown leads back: boundary() tells where to. False where nothing has changed.
    bool changeBoundary(long code);
    /// Draws another measure; the view stays.
    void changeMapType(long code);
    /// Rates for each head of population instead of counts.
    void setDensities(bool on);

    /// Prepares the tables of the group tools and takes the map away. Nothing where the user stopped or they cannot be
    /// shown, of which the user has been told; else what groups are made of (3 postcode districts, 1 CSGs, 2 TV
    /// regions, 0 not known).
    std::optional<long> openGroupTools();
    /// The group tools are closed: the map of the same boundary is counted and drawn anew, or that of TV regions where
    /// its groups are gone.
    void groupToolsClosed();

    /// Asks for the spend of a campaign and spreads it over the areas of the map.
    void enterCampaignSpend();
    /// The program's files do not fit each other (the user has been told): the program must end.
    std::function<void()> programFilesOutdated;

    /// The tool bar has been used, before the surface draws.
    void toolBarClicked(long tool);
    /// The surface has been clicked, or its view moved, before it draws.
    void clicked();
    /// A press of a button on the surface: zooming out past the whole map brings the whole map back.
    void mouseDown(int button);
    /// A draw has ended.
    void drawFinished();
    /// Lets go of the map; not while one is being built: closeRequested stops that at its next check.
    void end();

    long boundary() const { return boundary_; }
    long mapType() const override { return mapType_; }
    const std::vector<ListEntry>& mapTypes() const { return mapTypes_; }
    bool densities() const { return densities_; }
    const ReportParameters& parameters() const override { return parameters_; }

    /// The figures that the map shows, for a grid.
    DataView dataView() const;
    /// Counts, also where the map shows rates. Nothing where they could not be read.
    std::optional<MapTotals> totals() const;
    CallTypeBars bars() const;
    /// The pie; nothing where there is none. `failed` becomes true where it could not be read.
    std::optional<CallTypeSplit> split(bool& failed) const;
    AreaAnswer areaAt(int layer, long entity);
    AreaAnswer callType(const std::string& name) const;
    /// Whether the view is wide enough for the pie to stand over the sea.
    bool pieHasRoom() const;

private:
    void build(long mapType, int dataSet) override; ///< of the playback
    bool bringGroupsIn(long& code);
    void useTable(const std::string& table);
    void fitMapTypes(long wanted);
    void chargeAreas();
    void showLabels(bool visible);
    void saveEmptyMap();
    void loadEmptyMap();
    AreaQuestion question() const;

    MapSurface& surface_;
    MapKey& key_;
    ThematicMap map_;
    ReportParameters parameters_;
    std::vector<ListEntry> mapTypes_;
    long boundary_ = 0;
    long mapType_ = 1;
    bool densities_ = false;
    bool rebuildOnDraw_ = false;
    bool emptyMapSaved_ = false;
};
