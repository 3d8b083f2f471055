#include "map/surface/MapSurface.h"

#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "map/surface/LayerRows.h"
#include "map/surface/LayerSource.h"
#include "map/surface/SceneFile.h"
#include "map/surface/SymbolChoice.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace {

constexpr long InvalidPropertyValue = 380;
constexpr long InvalidProcedureCall = 5;

/// Zooming by hand ends at half a kilometre across, and when the whole map fills half the view.
constexpr double NearestByHand = 50.0;
constexpr double FarthestByHand = 2.0;

std::size_t checkedIndex(int index, std::size_t count, const char* property) {
    if (index < 0 || static_cast<std::size_t>(index) >= count)
        throw RuntimeError(InvalidPropertyValue, std::string("Invalid property value: ") + property + " " +
                                                     std::to_string(index) + " of " + std::to_string(count));
    return static_cast<std::size_t>(index);
}

/// QRectF::united leaves out boxes without extent, as points have.
QRectF unionOf(const QRectF& a, const QRectF& b) {
    return {QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
            QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom()))};
}

} // namespace

struct MapSurface::Source {
    std::shared_ptr<Database> database; // null: not open
    std::string dataSource;             // under which the rows were read
    std::string sql;                    // that read them
    std::vector<LayerRow> rows;
    std::shared_ptr<const ShapeTable> shapes; // null: nothing has been read
};

MapSurface::MapSurface() : MapSurface(std::make_shared<GeometryCache>()) {}

MapSurface::MapSurface(std::shared_ptr<GeometryCache> geometry) : geometry_(std::move(geometry)) {
    sources_.push_back(std::make_unique<Source>());
}

MapSurface::~MapSurface() = default;

void MapSurface::setLayerIndex(int index) {
    layerIndex_ = checkedIndex(index, scene_.layers.size(), "LayerIndex");
    symbolIndex_ = 0;
}

void MapSurface::setSymbolIndex(int index) {
    symbolIndex_ = checkedIndex(index, layer().symbols.size(), "SymbolIndex");
}

void MapSurface::AddLayer() {
    scene_.layers.emplace_back();
    sources_.push_back(std::make_unique<Source>());
}

void MapSurface::DeleteLayer() {
    if (layerIndex_ == 0)
        throw RuntimeError(InvalidPropertyValue, "Invalid property value: the base layer cannot be deleted");
    scene_.layers.erase(scene_.layers.begin() + static_cast<std::ptrdiff_t>(layerIndex_));
    sources_.erase(sources_.begin() + static_cast<std::ptrdiff_t>(layerIndex_));
    layerIndex_ = std::min(layerIndex_, scene_.layers.size() - 1);
    symbolIndex_ = 0;
}

void MapSurface::AddSymbol() {
    layer().symbols.emplace_back();
}

void MapSurface::DeleteSymbol() {
    auto& symbols = layer().symbols;
    if (symbols.size() == 1)
        throw RuntimeError(InvalidPropertyValue, "Invalid property value: a layer has at least one symbol");
    symbols.erase(symbols.begin() + static_cast<std::ptrdiff_t>(symbolIndex_));
    symbolIndex_ = std::min(symbolIndex_, symbols.size() - 1);
}

void MapSurface::CloseLayerSource(int index) {
    *sources_[checkedIndex(index, sources_.size(), "LayerIndex")] = Source();
}

std::shared_ptr<Recordset> MapSurface::LayerRecordset() {
    Layer plain = layer();
    const std::string table = shapeTableOf(plain.LayerCoverageName, plain.LayerInterpretation);
    const bool polygons = plain.LayerInterpretation == CoverageKind::Polygons;
    plain.LayerSymbolExpression = table + (polygons ? ".CenterX" : ".XCoord");
    plain.LayerLabelSource = table + (polygons ? ".CenterY" : ".YCoord");
    return LayerSource::parse(plain.LayerDataSource).open()->openRecordset(LayerQuery::of(plain).sql);
}

/// Throws RuntimeError 5 where the layer has no shapes.
QRectF MapSurface::extentOf(std::size_t index) {
    const LayerContent content = contentOf(index);
    release(index);
    if (content.shapes.empty())
        throw RuntimeError(InvalidProcedureCall,
                           "The layer \"" + scene_.layers[index].LayerName + "\" has no shapes to show");
    const std::vector<MapShape>& shapes = content.table->shapes();
    QRectF bounds = shapes[content.shapes.front().shape].bounds;
    for (const DrawnShape& drawn : content.shapes)
        bounds = unionOf(bounds, shapes[drawn.shape].bounds);
    return bounds;
}

void MapSurface::ZoomToExtent() {
    showWhole(extentOf(layerIndex_));
}

void MapSurface::ZoomToWholeMap() {
    std::optional<QRectF> bounds;
    for (std::size_t i = 0; i < scene_.layers.size(); ++i) {
        if (!scene_.layers[i].LayerVisible)
            continue;
        try {
            const QRectF extent = extentOf(i);
            bounds = bounds ? unionOf(*bounds, extent) : extent;
        } catch (const RuntimeError&) {
            // The layer shows nothing; a draw says why where it cannot be read.
        }
    }
    if (bounds)
        showWhole(*bounds);
}

void MapSurface::showWhole(const QRectF& bounds) {
    camera_.showAll(bounds);
    whole_ = bounds;
    wholeCamera_ = camera_;
}

void MapSurface::setCamera(const Camera& camera) {
    camera_.setCenter(camera.center());
    camera_.setScale(camera.scale());
}

void MapSurface::setPixelSize(QSize devicePixels) {
    const bool whole = showsWhole();
    camera_.setPixelSize(devicePixels);
    if (whole)
        showWhole(*whole_);
}

void MapSurface::setUIMode(MapTool tool) {
    tool_ = tool;
    if (ToolsChanged)
        ToolsChanged();
}

void MapSurface::setToolBarSetup(const std::string& text) {
    toolBar_ = ::ToolBarSetup::parse(text);
    if (ToolsChanged)
        ToolsChanged();
}

void MapSurface::setShowToolBar(bool show) {
    showToolBar_ = show;
    if (ToolsChanged)
        ToolsChanged();
}

void MapSurface::SaveMapFile(const std::string& path) const {
    saveScene(scene_, path);
}

void MapSurface::LoadMapFile(const std::string& path) {
    scene_ = loadScene(path);
    sources_.clear();
    while (sources_.size() < scene_.layers.size())
        sources_.push_back(std::make_unique<Source>());
    setLayerIndex(0);
}

void MapSurface::DrawMap() {
    if (DrawMapStarted)
        DrawMapStarted();
    std::exception_ptr failure;
    std::vector<LayerContent> contents(scene_.layers.size());
    for (std::size_t i = 0; i < scene_.layers.size(); ++i) {
        if (!isDrawnAt(scene_.layers[i], camera_.scale()))
            continue;
        try {
            contents[i] = contentOf(i);
        } catch (const RuntimeError&) {
            if (!failure)
                failure = std::current_exception();
        }
    }
    for (std::size_t i = 0; i < sources_.size(); ++i)
        release(i);
    drawn_ = {scene_, std::move(contents), camera_};
    picture_ = painter_.paint(drawn_, style);
    if (DrawMapFinished)
        DrawMapFinished();
    if (failure)
        std::rethrow_exception(failure);
}

void MapSurface::Refresh() const {
    if (Repaint)
        Repaint();
}

void MapSurface::PanBy(QPoint pixels) {
    camera_.moveBy(pixels);
    if (picture_.isNull())
        return;
    const Camera before = std::exchange(drawn_.camera, camera_);
    picture_ = painter_.paintMoved(picture_, before, drawn_, style);
}

void MapSurface::ZoomBy(double factor, QPointF aboutPixel) {
    if (!(factor > 0.0))
        return;
    // A view beyond the bounds, which the logic may set, is not moved back by a zoom that goes the other way.
    const double farthest = std::max(whole_ ? FarthestByHand * wholeCamera_.scale() : Camera::LargestScale, MapScale());
    const double nearest = std::min(NearestByHand, MapScale());
    camera_.zoomAbout(aboutPixel, MapScale() / std::clamp(MapScale() / factor, nearest, farthest));
}

bool MapSurface::needsDraw() const {
    if (picture_.isNull() || camera_ != drawn_.camera || scene_.layers.size() != drawn_.scene.layers.size())
        return true;
    for (std::size_t i = 0; i < scene_.layers.size(); ++i) {
        if (isDrawnAt(scene_.layers[i], camera_.scale()) != isDrawnAt(drawn_.scene.layers[i], camera_.scale()))
            return true;
    }
    return false;
}

LayerContent MapSurface::contentOf(std::size_t index) {
    const Layer& layer = scene_.layers[index];
    LayerContent content;
    if (layer.LayerCoverageName.empty())
        return content;
    try {
        const Source& source = read(index);
        content.table = source.shapes;
        content.shapes.reserve(source.rows.size());
        const SymbolChoice symbols(layer);
        for (const LayerRow& row : source.rows) {
            for (std::size_t shape : content.table->find(row.id))
                content.shapes.push_back({shape, symbols.of(row.value), row.label, row.value});
        }
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.number(), "Layer \"" + layer.LayerName + "\": " + error.description());
    }
    return content;
}

/// Reads a layer unless what was read before still answers its present properties.
const MapSurface::Source& MapSurface::read(std::size_t index) {
    const Layer& layer = scene_.layers[index];
    const LayerQuery query = LayerQuery::of(layer);
    Source& source = *sources_[index];
    if (source.shapes && source.dataSource == layer.LayerDataSource && source.sql == query.sql)
        return source;
    if (source.dataSource != layer.LayerDataSource || !source.database)
        source.database = LayerSource::parse(layer.LayerDataSource).open();
    source.dataSource = layer.LayerDataSource;
    source.sql = query.sql;
    source.shapes.reset(); // stays so where reading fails, and the next draw tries again
    source.rows = readLayerRows(*source.database, query);
    source.shapes = geometry_->shapes(
        *source.database, shapeTableOf(layer.LayerCoverageName, layer.LayerInterpretation), layer.LayerInterpretation);
    return source;
}

void MapSurface::release(std::size_t index) {
    if (!KeepDataSourcesOpen)
        sources_[index]->database.reset();
}
