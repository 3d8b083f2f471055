#pragma once

#include "data/types/Value.h"

#include <functional>
#include <memory>
#include <string_view>

namespace jet {

/// A search expression of the dialect ("TVRegion = 'London' AND Calls > 3"), parsed once and evaluated on rows in
/// memory; used by FindFirst and FindNext. Same meaning as in a WHERE clause.
class Search {
public:
    /// Gives the position (from 0) of a column by its name, or -1.
    using ColumnLookup = std::function<int(std::string_view name)>;
    /// Throws DatabaseError 3075/3077 (syntax) or 3070 (unknown field name), with the position.
    Search(std::string_view text, const ColumnLookup& columns);
    ~Search();
    Search(Search&&) noexcept;
    Search& operator=(Search&&) noexcept;

    /// Whether the row satisfies the expression; null counts as no. `cell` gives the value of a column by position.
    bool matches(const std::function<const Value&(int column)>& cell) const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace jet
