#include "sample/installation/WeightedChoice.h"

#include <cassert>
#include <numeric>

namespace sample {

WeightedChoice::WeightedChoice(std::span<const double> weights) : columns_(weights.size()) {
    const double total = std::accumulate(weights.begin(), weights.end(), 0.0);
    assert(total > 0);
    std::vector<double> heights;
    heights.reserve(weights.size());
    std::vector<std::uint32_t> low;
    std::vector<std::uint32_t> high;
    for (std::uint32_t i = 0; i < weights.size(); ++i) {
        heights.push_back(weights[i] / total * static_cast<double>(weights.size()));
        (heights[i] < 1 ? low : high).push_back(i);
        columns_[i].alias = i;
    }
    // Each column that is too low is filled up from one that is too high.
    while (!low.empty() && !high.empty()) {
        const std::uint32_t filled = low.back();
        const std::uint32_t giver = high.back();
        low.pop_back();
        columns_[filled] = {heights[filled], giver};
        heights[giver] -= 1 - heights[filled];
        if (heights[giver] < 1) {
            high.pop_back();
            low.push_back(giver);
        }
    }
}

} // namespace sample
