#pragma once

#include "sample/geography/SeededRandom.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sample {

/// Draws an index with given weights, in constant time (the alias method).
class WeightedChoice {
public:
    /// `weights`: none negative, at least one above 0.
    explicit WeightedChoice(std::span<const double> weights);

    std::uint32_t draw(SeededRandom& random) const {
        const double place = random.unit() * static_cast<double>(columns_.size());
        const auto column = static_cast<std::uint32_t>(place);
        return place - column < columns_[column].own ? column : columns_[column].alias;
    }

private:
    struct Column {
        double own = 1; ///< share of the column that belongs to its own index
        std::uint32_t alias = 0;
    };
    std::vector<Column> columns_;
};

} // namespace sample
