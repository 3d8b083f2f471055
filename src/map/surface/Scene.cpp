#include "map/surface/Scene.h"

#include "core/RuntimeError.h"

#include <optional>

namespace {

std::optional<double> numberIn(const Value& value) {
    if (value.isNull())
        return {};
    try {
        return value.asDouble();
    } catch (const RuntimeError&) {
        return {}; // a text that is no number selects no range
    }
}

bool isInRange(const Symbol& symbol, double number) {
    const auto from = numberIn(symbol.SymbolNumericRangeFrom);
    const auto to = numberIn(symbol.SymbolNumericRangeTo);
    if (!from || !to)
        return false;
    return *from == *to ? number == *from : number >= *from && number < *to;
}

} // namespace

bool isDrawnAt(const Layer& layer, double mapScale) {
    return layer.LayerVisible && mapScale >= layer.LayerFromZoomTrigger &&
           (layer.LayerToZoomTrigger <= 0 || mapScale <= layer.LayerToZoomTrigger);
}

std::size_t symbolOf(const Layer& layer, const Value& value) {
    constexpr std::size_t first = 0;
    if (value.isNull())
        return first;
    if (layer.LayerLinkType == SymbolLink::Text) {
        const std::string text = value.asText();
        for (std::size_t i = 0; i < layer.symbols.size(); ++i) {
            if (equalText(layer.symbols[i].SymbolStringEquals, text))
                return i;
        }
        return first;
    }
    const auto number = numberIn(value);
    for (std::size_t i = 0; number && i < layer.symbols.size(); ++i) {
        if (isInRange(layer.symbols[i], *number))
            return i;
    }
    return first;
}
