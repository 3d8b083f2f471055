#pragma once

#include "core/ModDeclarations.h"
#include "data/schema/Vocabulary.h"
#include "map/surface/LayerSource.h"
#include "map/surface/MapSurface.h"

/// Makes the current layer of a surface that of the small map's TV regions by their calls.
inline void describeCalls(MapSurface& surface) {
    Layer& layer = surface.layer();
    layer.LayerName = "Calls";
    layer.LayerDataSource = LayerSource{gsSystemDBPath, std::string(SystemMapPassword)}.text();
    layer.LayerCoverageName = "CCL_TV";
    layer.LayerJoins = "PGN_TV LEFT JOIN TblTV ON Left(PGN_TV.NAME, 50) = TblTV.TVRegion";
    layer.LayerFields = "PGN_TV.NAME, TblTV.TVRegion, TblTV.TotalCalls1";
    layer.LayerSymbolExpression = "TblTV.TotalCalls1";
    surface.symbol().SymbolPolygonColor = 0x0000FF;
}
