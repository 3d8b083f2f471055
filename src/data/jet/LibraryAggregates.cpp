#include "data/jet/LibraryAggregates.h"

#include "core/RuntimeError.h"
#include "data/jet/LibraryValues.h"

#include <sqlite3.h>

#include <array>
#include <cmath>

namespace jet {

namespace {

/// Zeroed by the library at a group's first row.
struct Kept {
    sqlite3_value* value;
    bool any;
};

void keepFirst(sqlite3_context* context, int, sqlite3_value** arguments) {
    auto* kept = static_cast<Kept*>(sqlite3_aggregate_context(context, sizeof(Kept)));
    if (!kept)
        return sqlite3_result_error_nomem(context);
    if (!kept->any)
        kept->value = sqlite3_value_dup(arguments[0]);
    kept->any = true;
}

void keepOnly(sqlite3_context* context, int count, sqlite3_value** arguments) {
    const auto* kept = static_cast<const Kept*>(sqlite3_aggregate_context(context, sizeof(Kept)));
    if (kept && kept->any)
        return giveError(context, 3354, "At most one row can be returned by this subquery");
    keepFirst(context, count, arguments);
}

void keepLast(sqlite3_context* context, int, sqlite3_value** arguments) {
    auto* kept = static_cast<Kept*>(sqlite3_aggregate_context(context, sizeof(Kept)));
    if (!kept)
        return sqlite3_result_error_nomem(context);
    sqlite3_value_free(kept->value);
    kept->value = sqlite3_value_dup(arguments[0]);
}

void giveKept(sqlite3_context* context) {
    auto* kept = static_cast<Kept*>(sqlite3_aggregate_context(context, 0));
    if (!kept || !kept->value)
        return;
    sqlite3_result_value(context, kept->value);
    sqlite3_value_free(kept->value);
}

/// Running mean and sum of squared distances from it.
struct Spread {
    std::int64_t count;
    double mean;
    double squares;
};

void addToSpread(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        const Value value = valueOf(arguments[0]);
        if (value.isNull())
            return;
        auto* spread = static_cast<Spread*>(sqlite3_aggregate_context(context, sizeof(Spread)));
        if (!spread)
            return sqlite3_result_error_nomem(context);
        const double number = value.asDouble();
        ++spread->count;
        const double distance = number - spread->mean;
        spread->mean += distance / static_cast<double>(spread->count);
        spread->squares += distance * (number - spread->mean);
    });
}

/// Of a sample (`fewer` 1) or of everything there is (0); null where there are too few values.
template<int fewer, bool root>
void giveSpread(sqlite3_context* context) {
    const auto* spread = static_cast<const Spread*>(sqlite3_aggregate_context(context, 0));
    if (!spread || spread->count <= fewer)
        return;
    const double variance = spread->squares / static_cast<double>(spread->count - fewer);
    sqlite3_result_double(context, root ? std::sqrt(variance) : variance);
}

struct Aggregate {
    const char* name;
    void (*step)(sqlite3_context*, int, sqlite3_value**);
    void (*finish)(sqlite3_context*);
};

constexpr std::array aggregates{
    Aggregate{"jet_first", keepFirst, giveKept},
    Aggregate{"jet_last", keepLast, giveKept},
    Aggregate{"jet_only", keepOnly, giveKept},
    Aggregate{"jet_stdev", addToSpread, giveSpread<1, true>},
    Aggregate{"jet_stdevp", addToSpread, giveSpread<0, true>},
    Aggregate{"jet_var", addToSpread, giveSpread<1, false>},
    Aggregate{"jet_varp", addToSpread, giveSpread<0, false>},
};

} // namespace

void registerAggregates(sqlite3* connection) {
    for (const Aggregate& aggregate : aggregates) {
        const int code = sqlite3_create_function_v2(connection, aggregate.name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                                    nullptr, nullptr, aggregate.step, aggregate.finish, nullptr);
        if (code != SQLITE_OK)
            throw RuntimeError(7, "The aggregates of the dialect could not be registered");
    }
}

} // namespace jet
