#pragma once

#include <string>

class GroupEditor;
class MapSurface;
struct Boundary;
struct Layer;

/// The map of frmGroups: all areas in white, above them the members of groups in the colours of the list, Ireland, and
/// the names of the areas. Reads tblTempGroups of ukmap.mdb. Holds references only. While a build runs, the window
/// keeps its surface disabled. Errors are logged and passed over. Main thread.
class GroupMap {
public:
    GroupMap(MapSurface& MapSurface1, GroupEditor& editor);

    /// The tool bar string of the surface.
    static const std::string& toolBarSetup();

    /// Builds and draws the map of the editor's kind of areas, which it asks for where nobody knows it. The first build
    /// shows the whole map; later ones keep the view.
    void CreateMap();
    /// Leaves the current layer with one symbol.
    void ClearMap();
    /// The members of groups, in place of all layers but the lowest; then the two layers above them are to be added.
    void DisplayGroups();
    void AddIreland();
    void AddLabelLayer();
    /// The map after members of groups have changed: view, tool and current layer stay.
    void redraw();

    /// A button of the tool bar was pressed: 8 zooms to the whole of the lowest layer.
    void toolBarClicked(long tool);
    /// The view has been moved or scaled and will be drawn: the names of large areas are shown once at every scale.
    void viewChanged();
    /// A press of a button on the surface: zooming out past the whole map brings the whole map back.
    void mouseDown(int button);
    /// Deletes all layers but the lowest and lets go of the files.
    void end();

    bool building() const { return building_; }
    int groupLayerCount() const { return groupLayerCount_; }

private:
    const Boundary& boundary() const;
    Layer& describeLayer(const std::string& name);
    Layer& addLayer(const std::string& name);
    void fillBaseLayer();
    void deleteLayers();
    void enableLabels();

    MapSurface& surface_;
    GroupEditor& editor_;
    double wholeScale_ = 0.0; ///< width of the view of the whole map, map units
    int groupLayerCount_ = 0;
    bool whole_ = false; ///< the whole map has been shown once
    bool building_ = false;
};
