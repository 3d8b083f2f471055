#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Gives each caller an index from 0: callers are the same where their numbers compare equal, without case and trailing
/// blanks. Numbers of digits, nearly all, take 8 bytes and two slots of 4; a project may hold millions.
class CallerNumbers {
public:
    CallerNumbers();
    std::uint32_t indexOf(std::string_view number);
    std::uint32_t indexOfNull();
    std::uint32_t size() const { return static_cast<std::uint32_t>(keys_.size()); }
    static constexpr std::uint32_t none = 0xFFFFFFFF;
    std::uint32_t nullIndex() const { return null_; } ///< `none` where no caller is null

private:
    std::uint32_t indexOfKey(std::uint64_t key);
    void grow();

    std::vector<std::uint64_t> keys_;  ///< by index
    std::vector<std::uint32_t> slots_; ///< a power of two
    std::unordered_map<std::string, std::uint64_t> others_;
    std::uint32_t null_ = none;
};
