#pragma once

#include <cstdint>
#include <string>

class Database;

/// Keeps few pages of the file in memory while it lives: rows that are read once from first to last would fill the
/// whole page cache, which is larger than the columns made of them.
class SmallPageCache {
public:
    explicit SmallPageCache(Database& database);
    ~SmallPageCache(); ///< back to the size before
    SmallPageCache(const SmallPageCache&) = delete;
    SmallPageCache& operator=(const SmallPageCache&) = delete;

private:
    Database& database_;
    std::string setting_;
    std::int64_t before_ = 0;
};
