#include "stats/calls/SmallPageCache.h"

#include "core/RuntimeError.h"
#include "data/engine/Database.h"
#include "data/sqlite/Connection.h"

namespace {
constexpr std::int64_t kibibytes = 8192;
}

SmallPageCache::SmallPageCache(Database& database)
    : database_(database), setting_("PRAGMA " + quoteIdentifier(database.schema()) + ".cache_size") {
    sqlite::Statement size(database.connection(), setting_);
    if (size.step())
        before_ = size.integer(0);
    database.connection().execute(setting_ + " = -" + std::to_string(kibibytes));
}

SmallPageCache::~SmallPageCache() {
    try {
        database_.connection().execute(setting_ + " = " + std::to_string(before_));
    } catch (const RuntimeError&) {
        // Reading is slower then, and no less right.
    }
}
