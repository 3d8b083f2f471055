#pragma once

#include "sample/installation/ReferenceCodes.h"
#include "sample/installation/WeightedChoice.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sample {

struct Caller {
    std::uint32_t code = 0;   ///< index into the reference codes
    std::uint32_t number = 0; ///< at most nine digits behind the code's calling prefix
    bool isPayphone = false;
};

/// Everybody who may call. A caller's place in the pool is his rank: the first call most often.
class CallerPool {
public:
    /// Callers live where people live, and the more so the nearer a branch is. `codes` must outlive the pool.
    CallerPool(std::span<const ReferenceCode> codes, const Geography& geography, std::size_t size, std::uint64_t seed);

    std::size_t size() const { return callers_.size(); }
    const Caller& operator[](std::uint32_t caller) const { return callers_[caller]; }
    const ReferenceCode& codeOf(std::uint32_t caller) const { return codes_[callers_[caller].code]; }

    /// A caller from all over.
    std::uint32_t draw(SeededRandom& random) const { return drawRank(random, callers_.size()); }
    /// One with a place in the TV region; from all over where it has none.
    std::uint32_t drawIn(std::size_t tvRegion, SeededRandom& random) const;

private:
    /// Zipf's law with exponent 2/3, flat at its head: the first rank is drawn some forty times as often as the
    /// average. A tenth of the callers then make two fifths of the calls.
    static std::uint32_t drawRank(SeededRandom& random, std::size_t count);
    void groupByRegion(const Geography& geography);

    std::span<const ReferenceCode> codes_;
    std::vector<Caller> callers_;
    std::vector<std::uint32_t> byRegion_;  ///< callers ordered by TV region, then by rank
    std::vector<std::size_t> regionStart_; ///< of each region in byRegion_, and the end
};

} // namespace sample
