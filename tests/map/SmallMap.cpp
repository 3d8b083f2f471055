#include "tests/map/SmallMap.h"

#include "core/ModDeclarations.h"
#include "data/engine/Workspace.h"
#include "map/surface/MapSurface.h"

void addLabelPoint(Database& database, const std::string& table, std::int64_t id, const std::string& name, double x,
                   double y) {
    const auto rows = database.openRecordset("SELECT * FROM " + table);
    rows->AddNew();
    rows->set("NAME", name);
    rows->set("POINTID", id);
    rows->set("XCOORD", x);
    rows->set("YCOORD", y);
    rows->Update();
}

void addFigure(Database& database, const std::string& table, const std::string& keyColumn, const std::string& key,
               const std::string& column, double value) {
    const auto rows = database.openRecordset("SELECT * FROM " + table);
    rows->AddNew();
    rows->set(keyColumn, key);
    rows->set(column, value);
    rows->Update();
}

SmallMap::SmallMap() {
    WorkspaceTransaction transaction(*defaultWorkspace()); // one write to the disk in place of nine
    addPolygon(database(), "PGN_TV", 11, "West", {{squareRing(0, 0, 100)}});
    addPolygon(database(), "PGN_TV", 12, "Middle",
               {{squareRing(100, 0, 100), {{140, 40}, {140, 60}, {160, 60}, {160, 40}, {140, 40}}}});
    addPolygon(database(), "PGN_TV", 13, "East", {{squareRing(200, 0, 100)}});
    addLabelPoint(database(), "PNT_TVNAMES", 1, "West", 50, 80);
    addLabelPoint(database(), "PNT_TVNAMES", 2, "Middle", 150, 80);
    addLabelPoint(database(), "PNT_TVNAMES", 3, "East", 250, 80);
    addFigure(database(), "TblTV", "TVRegion", "West", "TotalCalls1", 900);
    addFigure(database(), "TblTV", "TVRegion", "Middle", "TotalCalls1", 3);
    transaction.commit();
}

Database& SmallMap::database() const {
    return *gdbSystem;
}

QColor colourAt(const MapSurface& surface, double x, double y) {
    const QPointF pixel = surface.camera().mapToScreen({x, y});
    return surface.picture().pixelColor(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()));
}
