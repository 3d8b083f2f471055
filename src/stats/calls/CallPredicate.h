#pragma once

#include "data/jet/Query.h"
#include "stats/calls/CallColumns.h"

#include <array>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

class Database;

/// The two tables that a selection of calls may name.
struct CallTables {
    jet::Source calls;
    jet::Source places;
};

/// Throws DatabaseError 3078 where the project lacks one of them.
CallTables callTablesOf(Database& project);

/// A selection as tests over columns: each part that looks at one column is evaluated once for every distinct value, in
/// the dialect's own words; And, Or and Not between them keep its three values. Holds no reference to the columns, but
/// fits only those for which it was compiled. Any thread.
class CallPredicate {
public:
    static constexpr std::size_t mostRows = 4096; ///< of one evaluation
    static constexpr std::size_t mostDepth = 8;
    struct Scratch {
        std::array<std::array<std::uint8_t, mostRows>, mostDepth + 1> levels;
    };

    /// Nothing for a condition that looks at anything else than the fields of CallField, that compares them with each
    /// other, or that would fail on any value of the project or as a statement: its calls are found by statements.
    static std::optional<CallPredicate> compile(std::string_view condition, const CallTables& tables,
                                                const CallColumns& columns);

    CallPredicate(CallPredicate&&) noexcept;
    CallPredicate& operator=(CallPredicate&&) noexcept;
    ~CallPredicate();

    /// Sets mask[i] to 1 where call begin + i is selected, else to 0. At most mostRows.
    void select(const CallColumns& columns, std::size_t begin, std::size_t count, std::uint8_t* mask,
                Scratch& scratch) const;

    struct Node;

private:
    explicit CallPredicate(std::unique_ptr<Node> root);
    std::unique_ptr<Node> root_;
};
