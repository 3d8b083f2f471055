#include "stats/calls/TextIds.h"

#include <cstring>

namespace {

constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;

std::uint64_t mix(std::uint64_t sum, std::uint64_t word) {
    sum = (sum ^ word) * factor;
    return sum ^ (sum >> 29);
}

} // namespace

std::uint64_t hashBytes(const void* bytes, std::size_t length) {
    const char* at = static_cast<const char*>(bytes);
    std::uint64_t sum = length * factor;
    std::uint64_t word = 0;
    for (; length >= sizeof word; length -= sizeof word, at += sizeof word) {
        std::memcpy(&word, at, sizeof word);
        sum = mix(sum, word);
    }
    word = 0;
    if (length > 0)
        std::memcpy(&word, at, length);
    return mix(sum, word) ^ (sum << 7);
}

TextIds::TextIds() : slots_(64) {}

std::uint32_t TextIds::idOf(std::string_view text) {
    const std::uint64_t hash = hashBytes(text.data(), text.size());
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = (hash >> 20) & mask;
    for (; slots_[at].id != empty; at = (at + 1) & mask) {
        if (slots_[at].hash == hash && *texts_[slots_[at].id] == text)
            return slots_[at].id;
    }
    const auto id = static_cast<std::uint32_t>(texts_.size());
    slots_[at] = {hash, id};
    texts_.emplace_back(std::string(text));
    if (texts_.size() * 2 > slots_.size())
        grow();
    return id;
}

std::uint32_t TextIds::idOfNull() {
    if (nullId_ == empty) {
        nullId_ = static_cast<std::uint32_t>(texts_.size());
        texts_.emplace_back();
    }
    return nullId_;
}

std::vector<Value> TextIds::values() const {
    std::vector<Value> values;
    for (const auto& text : texts_) {
        values.emplace_back();
        if (text)
            values.back() = *text;
    }
    return values;
}

void TextIds::grow() {
    std::vector<Slot> old(slots_.size() * 2);
    old.swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.id == empty)
            continue;
        std::size_t at = (slot.hash >> 20) & mask;
        while (slots_[at].id != empty)
            at = (at + 1) & mask;
        slots_[at] = slot;
    }
}
