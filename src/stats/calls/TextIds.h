#pragma once

#include "data/types/Value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Gives each distinct text, byte by byte, an id from 0 in the order of first appearance. Null has an id of its own.
class TextIds {
public:
    TextIds();
    std::uint32_t idOf(std::string_view text);
    std::uint32_t idOfNull();
    std::size_t size() const { return texts_.size(); }
    std::vector<Value> values() const; ///< by id

private:
    struct Slot {
        std::uint64_t hash = 0;
        std::uint32_t id = empty;
    };
    static constexpr std::uint32_t empty = 0xFFFFFFFF;
    void grow();

    std::vector<Slot> slots_; ///< a power of two, at most half full
    std::vector<std::optional<std::string>> texts_;
    std::uint32_t nullId_ = empty;
};

/// A mixing of all bytes to 64 bits. The same on every machine of one byte order.
std::uint64_t hashBytes(const void* bytes, std::size_t length);
