#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class Value;

/// A search for one value in one column, as the procedures write most of theirs: "Name = 'Border'",
/// "[1141] = '01708'", "PolygonID = 17", "UCASE(TVRegion) = 'BORDER'" (which means the same, as texts compare without
/// case); alone, or with further conditions behind And. The views point into the expression.
struct KeySearch {
    enum class Kind { Text, Number };

    std::string_view field; ///< without brackets
    Kind kind = Kind::Text;
    std::string key;   ///< see KeyIndex
    bool alone = true; ///< false where rows with the key must be tested by the whole expression

    /// Nothing where the expression has any other shape; the dialect's parser then decides what it means.
    static std::optional<KeySearch> recognise(std::string_view expression);
};

/// Row numbers by the values of one column of texts or numbers. Keys of equal values are equal texts. Nulls are equal
/// to nothing and have no entry.
class KeyIndex {
public:
    /// Nothing for null.
    static std::optional<std::string> keyOf(const Value& value);
    static std::string keyOf(std::string_view text);
    static std::string keyOf(double number);

    void add(const Value& value, long row);
    void remove(const Value& value, long row);
    /// The first row from `from` on that holds the key; -1 where there is none.
    long findForward(const std::string& key, long from) const;
    /// The last row up to `from` that holds the key; -1 where there is none.
    long findBackward(const std::string& key, long from) const;

private:
    std::unordered_map<std::string, std::vector<long>> rows_; ///< ascending
};
