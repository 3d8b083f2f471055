// A search expression runs over a few rows with values of every kind. It finds, does not find, or gives one error.

#include "data/jet/Search.h"

#include "data/types/DatabaseError.h"
#include "fuzz/StatementSeeds.h"
#include "fuzz/Target.h"

#include <array>
#include <limits>
#include <stdexcept>

namespace {

constexpr std::array<std::string_view, 9> names{"TVRegion", "Calls1", "Cost1", "Started", "Active",
                                                "Note",     "1141",   "Shape", "Share"};

/// Names of other tables stand for some column too, so that the conditions of statements can be read.
int findColumn(std::string_view name) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (equalText(names[i], name))
            return static_cast<int>(i);
    }
    return name.starts_with('x') ? -1 : static_cast<int>(name.size() % names.size());
}

const std::vector<std::vector<Value>>& rows() {
    static const std::vector<std::vector<Value>> made{
        {"London ", 10, Money::fromDouble(12.5), dateOf({2025, 1, 31, 8, 0, 0}), true, "capital", "0171", Bytes(3),
         0.5},
        {"", std::int64_t{-2147483648LL}, Money{std::numeric_limits<std::int64_t>::max()}, Date{2958465.99}, false,
         "\xC3\xA9t\xC3\xA9 [*]", "MOBILE", Bytes(), -1e308},
        {{}, {}, {}, {}, {}, {}, {}, {}, {}},
        {".France", std::numeric_limits<std::int64_t>::min(), Money{std::numeric_limits<std::int64_t>::min()},
         Date{-657434.0}, true, "\xFF\xC0", "1e400", Bytes(1), std::numeric_limits<double>::infinity()},
        {std::string(3000, 'a'), std::numeric_limits<std::int64_t>::max(), Money{-1}, Date{1e300}, false,
         std::string("a\0b", 3), "31/12/2025", Bytes(2), std::numeric_limits<double>::quiet_NaN()},
    };
    return made;
}

void checkFault(const RuntimeError& error, std::string_view text) {
    const auto* placed = dynamic_cast<const DatabaseError*>(&error);
    if (!placed)
        throw std::logic_error("an error without a place: " + error.description());
    if (error.description().empty() || (placed->position() && *placed->position() > text.size()))
        throw std::logic_error("an error without words or behind the end");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const jet::Search search(text, findColumn);
        for (const auto& row : rows()) {
            try {
                search.matches([&](int column) -> const Value& { return row[static_cast<std::size_t>(column)]; });
            } catch (const RuntimeError& error) {
                checkFault(error, text);
            }
        }
        return 0;
    } catch (const RuntimeError& error) {
        checkFault(error, text);
        return -1;
    }
}

/// The conditions of the text cases, and some that only searches have.
std::vector<std::string> fuzzSeeds() {
    std::vector<std::string> seeds{"TVRegion = 'London'",
                                   "Calls1 > 3 And Cost1 * 10 Between 1 And 2000",
                                   "[TVRegion] Like 'L?nd*' Or [Note] Like '[!a-c]##*'",
                                   "Format(Started, 'dddd d mmmm yyyy hh:nn:ss AM/PM') = 'x'",
                                   "DateAdd('m', 1, Started) > #02/01/2025# Xor Active",
                                   "Nz([1141], 'MOBILE') In ('mobile', 'VOIP', Null)",
                                   "Replace(Note, 'a', 'bb') & String(3, 'x') = Left(Note, 2)",
                                   "IIf(Share > 0, 1 / Share, Calls1 Mod 7) ^ 2 <= 100",
                                   "Format(Cost1, '#,##0.00;(0.0);\"none\"') <> Str(Calls1 \\ 3)",
                                   "Switch(Active, 'a', IsNull(Note), 'b') Is Not Null"};
    for (const std::string& statement : statementSeeds()) {
        const std::size_t where = statement.find(" WHERE ");
        if (where != std::string::npos)
            seeds.push_back(statement.substr(where + 7));
        if (statement.starts_with("SELECT ") && statement.find(" FROM ") != std::string::npos)
            seeds.push_back(statement.substr(7, statement.find(" FROM ") - 7));
    }
    return seeds;
}
std::vector<std::string> fuzzTokens() {
    return dialectTokens();
}
