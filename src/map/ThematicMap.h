#pragma once

#include "map/Boundaries.h"
#include "map/MapFormState.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"

#include <string>

class MapKey;
class MapSurface;
class Recordset;

/// Turns a choice of boundary, map type and data set into the layers of a map surface, its key, and the read-outs of
/// the window. Reads the statistics from gdbSystem and the tables that `currentTables` names. A failing step is logged
/// and the next one runs, so that a map is drawn from whatever the tables hold. Holds references only; main thread.
class ThematicMap {
public:
    ThematicMap(MapSurface& MapSurface1, MapKey& MapKey1, MapFormState& form, CurrentTables& tables,
                const MapMaxima& maxima);

    /// Builds and draws the map. `boundary` and `mapType` are codes, `dataSet` counts from 1 to 7. Always true.
    bool CreateMap(long boundary, long mapType, int dataSet);
    /// Leaves the current layer with one symbol and its file closed.
    void ClearMap();
    /// Leaves the surface with its base layer alone and every file closed.
    void letGo();
    /// Appends the layer of names. `animated` changes nothing.
    void AddLabelLayer(long boundary, bool animated = false);
    /// Below customer groups: the areas that belong to no group, in white, and Ireland.
    void FrmMap_DisplayNonGroupAreas(long mapType, int dataSet);
    void FrmMap_AddIreland();

    /// Writes the Value of every row of `values` to the row of its RegionID in tblValues, behind the current layer, and
    /// draws the map. Regions that tblValues does not have are passed over.
    void ApplyValues(Recordset& values);
    /// Moves the view to the centre of an area of the current layer and draws the map; does nothing where there is
    /// none.
    void HighlightEntity(long polygonId);

private:
    struct Plan; // the names that a map is built from

    Plan planOf(long boundary, long mapType, int dataSet) const;
    void deleteUpperLayers();
    void readExtremes(const Plan& plan);
    void enableDensities(long boundary);
    void setUpBaseLayer(const Plan& plan);
    std::string valuesOfColumn(const Plan& plan) const;
    void captureView();
    void showPeriod();
    void addGeographyLayer(const std::string& name, const Boundary& base);
    const Boundary& baseBoundary() const;
    bool labelsAreVisible(long boundary) const;

    MapSurface& surface_;
    MapKey& key_;
    MapFormState& form_;
    CurrentTables& tables_;
    const MapMaxima& maxima_;
};
