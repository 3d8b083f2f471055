// Values and areas that are set from outside of a map.
#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/engine/Database.h"
#include "map/ThematicMap.h"
#include "map/surface/LayerSource.h"
#include "map/surface/MapSurface.h"

namespace {

void copyValues(Recordset& from, Recordset& to) {
    if (from.RecordCount() == 0)
        return;
    for (from.MoveFirst(); !from.EOF_(); from.MoveNext()) {
        logAndGoOn([&] {
            to.FindFirst("RegionID = " + from.value("RegionID").asText());
            if (to.NoMatch())
                return;
            to.Edit();
            to.set("Value", from.value("Value"));
            to.Update();
        });
    }
}

} // namespace

void ThematicMap::ApplyValues(Recordset& values) {
    gsCurrentProc = "FrmMap_ApplyValues";
    logAndGoOn([&] {
        const auto database = LayerSource::parse(surface_.layer().LayerDataSource).open();
        const auto rows = database->openRecordset("SELECT * FROM tblValues");
        copyValues(values, *rows);
    });
    logAndGoOn([&] { surface_.CloseLayerSource(surface_.LayerIndex()); });
    logAndGoOn([&] { surface_.DrawMap(); });
}

void ThematicMap::HighlightEntity(long polygonId) {
    gsCurrentProc = "FrmMap_HighlightEntity";
    logAndGoOn([&] {
        const auto rows = surface_.LayerRecordset();
        if (rows->RecordCount() == 0)
            return;
        rows->MoveFirst();
        rows->FindFirst("PolygonID = " + std::to_string(polygonId));
        if (rows->NoMatch())
            return;
        surface_.CentreMapOn(rows->value("CenterX").asDouble(), rows->value("CenterY").asDouble());
        surface_.DrawMap();
    });
}
