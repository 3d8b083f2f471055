#include "stats/calls/CallerNumbers.h"

#include "data/types/Value.h"

namespace {

constexpr std::size_t mostDigits = 18;
/// Above every number of digits with its leading 1.
constexpr std::uint64_t firstOther = std::uint64_t{1} << 63;

std::size_t slotOf(std::uint64_t key, std::size_t slots) {
    key *= 0x9E3779B97F4A7C15;
    return (key ^ (key >> 32)) & (slots - 1);
}

/// The digits behind a 1, which keeps leading zeros; 0 for any other text.
std::uint64_t keyOfDigits(std::string_view text) {
    if (text.size() > mostDigits)
        return 0;
    std::uint64_t key = 1;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return 0;
        key = key * 10 + static_cast<std::uint64_t>(c - '0');
    }
    return key;
}

} // namespace

CallerNumbers::CallerNumbers() : slots_(1024, none) {}

std::uint32_t CallerNumbers::indexOf(std::string_view number) {
    if (const std::uint64_t key = keyOfDigits(number))
        return indexOfKey(key);
    const std::string folded = foldText(number);
    if (const std::uint64_t key = keyOfDigits(folded))
        return indexOfKey(key);
    return indexOfKey(others_.try_emplace(folded, firstOther + others_.size()).first->second);
}

std::uint32_t CallerNumbers::indexOfNull() {
    if (null_ == none)
        null_ = indexOfKey(0);
    return null_;
}

std::uint32_t CallerNumbers::indexOfKey(std::uint64_t key) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = slotOf(key, slots_.size());
    for (; slots_[at] != none; at = (at + 1) & mask) {
        if (keys_[slots_[at]] == key)
            return slots_[at];
    }
    const std::uint32_t index = size();
    slots_[at] = index;
    keys_.push_back(key);
    if (keys_.size() * 4 > slots_.size() * 3)
        grow();
    return index;
}

void CallerNumbers::grow() {
    std::vector<std::uint32_t>(slots_.size() * 2, none).swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (std::uint32_t index = 0; index < size(); ++index) {
        std::size_t at = slotOf(keys_[index], slots_.size());
        while (slots_[at] != none)
            at = (at + 1) & mask;
        slots_[at] = index;
    }
}
