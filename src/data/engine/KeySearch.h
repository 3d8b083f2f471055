#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// A search for one text in one column, as the procedures write most of theirs: "Name = 'Border'", "[1141] = '01708'",
/// "UCASE(TVRegion) = 'BORDER'" (which means the same, as texts compare without case). The views point into the
/// expression.
struct KeySearch {
    std::string_view field; ///< without brackets
    std::string key;        ///< folded: equal keys are equal texts

    /// Nothing where the expression has any other shape; the dialect's parser then decides what it means.
    static std::optional<KeySearch> recognise(std::string_view expression);
};

/// Row numbers by the text of one column. Nulls are equal to nothing and have no entry.
class KeyIndex {
public:
    /// Rows must come in ascending order.
    void add(std::string_view text, long row);
    /// The first row from `from` on that holds the folded key; -1 where there is none.
    long find(const std::string& key, long from) const;

private:
    std::unordered_map<std::string, std::vector<long>> rows_;
};
