#pragma once

#include "map/surface/Scene.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

/// Selects symbols of a layer by values. The layer's ranges and texts are read once, so that thousands of areas are
/// matched in no time; the layer may change or go afterwards.
class SymbolChoice {
public:
    explicit SymbolChoice(const Layer& layer);

    /// Position of the symbol that `value` selects; the first one where it is null or selects none.
    std::size_t of(const Value& value) const;

private:
    struct Range {
        double from, to; // a range with equal ends is that one value
        std::size_t symbol;
    };
    std::vector<Range> ranges_;
    std::optional<std::unordered_map<std::string, std::size_t>> texts_; // folded; set where texts are matched
};
