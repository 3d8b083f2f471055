#include "map/BandSymbols.h"

#include "core/ModDeclarations.h"
#include "map/ClassBreaks.h"
#include "map/surface/MapSurface.h"
#include "ui/cColours_CS.h"

#include <algorithm>

namespace {

constexpr double LabelSize = 12.0;

/// Bands beyond the palette keep its last colour.
MapColourCode bandColour(std::size_t band) {
    const int index = static_cast<int>(std::min<std::size_t>(band, cColours_CS::mapColours - 1));
    return swapRedAndBlue((gColours ? *gColours : cColours_CS()).MapColour(index));
}

/// The layer's symbol for the next band; the first band takes the one that every layer has.
Symbol& symbolOfBand(MapSurface& surface, std::size_t band) {
    if (band > 0)
        surface.AddSymbol();
    surface.setSymbolIndex(surface.NumberOfSymbols() - 1);
    Symbol& symbol = surface.symbol();
    symbol.SymbolLabelFont = {gsFontName, LabelSize};
    symbol.SymbolFilled = true;
    symbol.SymbolPolygonColor = bandColour(band);
    return symbol;
}

void buildNumericBands(MapSurface& surface, const std::vector<std::string>& breaks, std::string_view unitSign,
                       bool labelled) {
    const std::vector<NumericBand> bands = numericBands(breaks, unitSign);
    surface.layer().LayerLinkType = SymbolLink::NumericRange;
    for (std::size_t i = 0; i < bands.size(); ++i) {
        Symbol& symbol = symbolOfBand(surface, i);
        symbol.SymbolName = bands[i].name;
        symbol.SymbolNumericRangeFrom = bands[i].from;
        symbol.SymbolNumericRangeTo = bands[i].to;
        if (!labelled)
            symbol.SymbolEnableLabels = false; // the names have a layer of their own
    }
}

/// The symbol left last is an outline alone.
void buildTextBands(MapSurface& surface, const std::vector<std::string>& texts) {
    surface.layer().LayerLinkType = SymbolLink::Text;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        Symbol& symbol = symbolOfBand(surface, i);
        symbol.SymbolName = texts[i];
        symbol.SymbolStringEquals = texts[i];
        symbol.SymbolEnableLabels = false;
    }
    surface.symbol().SymbolFilled = false;
}

} // namespace

void buildBandSymbols(MapSurface& surface, const std::vector<std::string>& texts, std::string_view unitSign,
                      bool labelled) {
    if (texts.empty())
        return;
    if (isNumericText(texts.front()))
        buildNumericBands(surface, texts, unitSign, labelled);
    else
        buildTextBands(surface, texts);
}
