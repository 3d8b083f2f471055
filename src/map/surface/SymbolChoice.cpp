#include "map/surface/SymbolChoice.h"

#include "core/RuntimeError.h"

namespace {

constexpr std::size_t FirstSymbol = 0;

std::optional<double> numberIn(const Value& value) {
    if (value.isNull())
        return {};
    try {
        return value.asDouble();
    } catch (const RuntimeError&) {
        return {}; // a text that is no number selects no range
    }
}

} // namespace

SymbolChoice::SymbolChoice(const Layer& layer) {
    if (layer.LayerLinkType == SymbolLink::Text)
        texts_.emplace();
    for (std::size_t i = 0; i < layer.symbols.size(); ++i) {
        const Symbol& symbol = layer.symbols[i];
        if (texts_) {
            texts_->emplace(foldText(symbol.SymbolStringEquals), i); // the first of equal texts stays
            continue;
        }
        const auto from = numberIn(symbol.SymbolNumericRangeFrom);
        const auto to = numberIn(symbol.SymbolNumericRangeTo);
        if (from && to)
            ranges_.push_back({*from, *to, i});
    }
}

std::size_t SymbolChoice::of(const Value& value) const {
    if (value.isNull())
        return FirstSymbol;
    if (texts_) {
        const auto found = texts_->find(foldText(value.asText()));
        return found == texts_->end() ? FirstSymbol : found->second;
    }
    const auto number = numberIn(value);
    if (!number)
        return FirstSymbol;
    for (const Range& range : ranges_) {
        if (range.from == range.to ? *number == range.from : *number >= range.from && *number < range.to)
            return range.symbol;
    }
    return FirstSymbol;
}
