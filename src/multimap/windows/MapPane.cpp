#include "multimap/windows/MapPane.h"

#include "map/surface/windows/MapSurfaceWidget.h"
#include "map/windows/CallTypePanel.h"
#include "ui/ElidedLabel.h"
#include "ui/ucWebbyLink.h"

#include <QVBoxLayout>

namespace {

constexpr int gap = 4;
constexpr QSize smallestMap{288, 180}; ///< on which regions can still be told apart
constexpr const char* toolBar =
    ":BUTTON_VISIBLE:1,1,1,1,0,1,0,0,0,0,0,0,0,0,:TOOLTIPS:Zoom Extent,Pan,Zoom In,Zoom "
    "Out,Measure,Information,Polygon Query,Circle Query,Draw Point,Draw Polyline,Draw Polygon,Draw Circle,Hide "
    "Toolbar,Go Back,";

} // namespace

MapPane::MapPane(int mapIndex, std::shared_ptr<GeometryCache> geometry, QWidget* parent)
    : QWidget(parent), mapIndex_(mapIndex), txtDates_(new ElidedLabel(this)),
      mapSurface1_(new MapSurfaceWidget(std::move(geometry), this)), bars_(new CallTypePanel(this, Qt::Horizontal)) {
    const QString suffix = QStringLiteral("_%1").arg(mapIndex);
    txtDates_->setObjectName(QStringLiteral("TxtDates") + suffix);
    txtDates_->setProperty("role", "section");
    txtDates_->setBuddy(mapSurface1_);
    mapSurface1_->setObjectName(QStringLiteral("MapSurface1") + suffix);
    mapSurface1_->surface().setToolBarSetup(toolBar);
    mapSurface1_->canvas().setMinimumSize(smallestMap);
    bars_->setObjectName(QStringLiteral("fraOtherCallAreas") + suffix);
    for (ucWebbyLink* link : bars_->findChildren<ucWebbyLink*>())
        link->setObjectName(link->objectName() + suffix);
    QSizePolicy room = bars_->sizePolicy();
    room.setRetainSizeWhenHidden(true); // another tool must not change the map's size
    bars_->setSizePolicy(room);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(gap);
    column->addWidget(txtDates_);
    column->addWidget(mapSurface1_, 1);
    column->addWidget(bars_);
}

void MapPane::showPeriod(const QString& period) {
    txtDates_->setText(period);
    mapSurface1_->canvas().setAccessibleName(tr("Map %1. %2").arg(mapIndex_).arg(period));
}

void MapPane::showBars(const CallTypeBars& bars) {
    shownBars_ = bars;
    bars_->showBars(bars, false, false);
}

MapOfPicture MapPane::picture(const QWidget& view) const {
    const QWidget& canvas = mapSurface1_->canvas();
    MapOfPicture map;
    map.period = txtDates_->text();
    map.map = QRect(canvas.mapTo(&view, QPoint(0, 0)), canvas.size());
    map.image = mapSurface1_->shownPicture();
    map.hasBars = bars_->isVisibleTo(this);
    map.bars = shownBars_;
    return map;
}

bool MapPane::isWhollyIn(const QWidget& view) const {
    return view.rect().contains(QRect(mapTo(&view, QPoint(0, 0)), size()));
}
