#pragma once

#include "map/surface/GeometryCache.h"
#include "map/surface/HitTest.h"
#include "map/surface/MapPainter.h"
#include "map/surface/MapTool.h"
#include "map/surface/ToolBarSetup.h"

#include <QImage>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class Database;
class Recordset;

/// A map without a window: a stack of layers, a view, and the picture that the last draw left. Logic describes the
/// layers and asks for a draw; it never draws a polygon itself.
///
/// One layer is current, and in it one symbol; layer() and symbol() are their properties. Layer 0 always exists. What
/// is added comes last and is not made current. An index or deletion that the rules forbid throws RuntimeError 380.
/// Reading happens in DrawMap and ZoomToExtent alone: there a bad data source or a missing table is a RuntimeError that
/// names the layer. Main thread.
class MapSurface {
public:
    MapSurface();
    /// Shares the shapes of what it draws with the other surfaces of the cache: none is read twice.
    explicit MapSurface(std::shared_ptr<GeometryCache> geometry);
    ~MapSurface();
    MapSurface(const MapSurface&) = delete;
    MapSurface& operator=(const MapSurface&) = delete;

    std::function<void()> DrawMapStarted;
    std::function<void()> DrawMapFinished;
    std::function<void()> ToolsChanged; ///< the tool in hand or the tool bar was set
    std::function<void()> Repaint;      ///< what Refresh asks of the window that shows the picture

    int NumberOfLayers() const { return static_cast<int>(scene_.layers.size()); }
    int NumberOfSymbols() const { return static_cast<int>(scene_.layers[layerIndex_].symbols.size()); }
    int LayerIndex() const { return static_cast<int>(layerIndex_); }
    int SymbolIndex() const { return static_cast<int>(symbolIndex_); }
    void setLayerIndex(int index); ///< makes the layer's first symbol current
    void setSymbolIndex(int index);

    Layer& layer() { return scene_.layers[layerIndex_]; }
    Symbol& symbol() { return layer().symbols[symbolIndex_]; }
    const Scene& scene() const { return scene_; }

    void AddLayer();
    void DeleteLayer(); ///< layer 0 is never deleted
    void AddSymbol();
    void DeleteSymbol(); ///< the last remaining symbol is never deleted

    /// Drops the layer's open file and rows: the file is free, and the next draw reads the tables again. Shapes stay.
    void CloseLayerSource(int index);
    /// The rows of the current layer: identifier, and of polygons CenterX and CenterY, then its LayerFields. Opened
    /// anew at each call.
    std::shared_ptr<Recordset> LayerRecordset();

    double MapCenterX() const { return camera_.center().x(); }
    double MapCenterY() const { return camera_.center().y(); }
    double MapScale() const { return camera_.scale(); }
    void setMapCenterX(double x) { camera_.setCenter({x, MapCenterY()}); }
    void setMapCenterY(double y) { camera_.setCenter({MapCenterX(), y}); }
    void setMapScale(double scale) { camera_.setScale(scale); }
    void CentreMapOn(double x, double y) { camera_.setCenter({x, y}); }
    /// Shows the whole of the current layer. Throws RuntimeError 5 where it has no shapes.
    void ZoomToExtent();
    /// Shows the whole of all layers that are not hidden; leaves the view where there is nothing to show.
    void ZoomToWholeMap();
    const Camera& camera() const { return camera_; }
    void setCamera(const Camera& camera);                                 ///< all but its pixel size
    bool showsWhole() const { return whole_ && camera_ == wholeCamera_; } ///< the view is as such a zoom has left it
    /// Keeps centre and scale; but a view that ZoomToExtent has set shows the same whole again.
    void setPixelSize(QSize devicePixels);

    MapTool UIMode() const { return tool_; }
    void setUIMode(MapTool tool); ///< takes the tool in hand; does not act by itself
    /// The tool bar string; throws RuntimeError 380 where it cannot be read, and changes nothing.
    std::string ToolBarSetup() const { return toolBar_.text(); }
    void setToolBarSetup(const std::string& text);
    const ::ToolBarSetup& toolBar() const { return toolBar_; }
    bool ShowToolBar() const { return showToolBar_; }
    void setShowToolBar(bool show);
    bool KeepDataSourcesOpen = false; ///< false: no file stays open between draws
    MapStyle style;

    /// Writes the layers to a file, or replaces them by those of a file; throws RuntimeError as saveScene and loadScene
    /// do, and then changes nothing. The view stays.
    void SaveMapFile(const std::string& path) const;
    void LoadMapFile(const std::string& path);

    /// Draws every visible layer. A layer that cannot be read is left out; when the others are drawn and
    /// DrawMapFinished is told, its error is thrown.
    void DrawMap();
    /// What the last draw left, for a repaint; null before the first.
    const QImage& picture() const { return picture_; }
    /// What that picture shows, view and all.
    const DrawnMap& drawn() const { return drawn_; }
    /// Repaints what has been drawn.
    void Refresh() const;
    /// Moves the view by device pixels and takes the picture along, between two draws: only what comes into view is
    /// drawn. Tells no events.
    void PanBy(QPoint pixels);
    /// Zooms in by a factor (out below 1) about a device pixel, within what a person can make sense of.
    void ZoomBy(double factor, QPointF aboutPixel);
    /// Whether the next draw would show another view or other layers than the picture does. Their contents do not
    /// count.
    bool needsDraw() const;

    const GeometryCache& geometry() const { return *geometry_; }

private:
    struct Source; // a layer's open file and the rows read from it

    LayerContent contentOf(std::size_t index);
    QRectF extentOf(std::size_t index);
    void showWhole(const QRectF& bounds);
    const Source& read(std::size_t index);
    void release(std::size_t index); ///< closes its file, unless KeepDataSourcesOpen

    Scene scene_;
    std::vector<std::unique_ptr<Source>> sources_; // beside scene_.layers
    std::size_t layerIndex_ = 0;
    std::size_t symbolIndex_ = 0;
    Camera camera_;
    std::optional<QRectF> whole_; // what the camera shows the whole of, in map units
    Camera wholeCamera_;          // that does so
    MapTool tool_ = MapTool::Information;
    ::ToolBarSetup toolBar_;
    bool showToolBar_ = true;
    std::shared_ptr<GeometryCache> geometry_; // never null
    MapPainter painter_;
    DrawnMap drawn_;
    QImage picture_;
};
