#include "data/project/FirstValue.h"

std::optional<Value> firstValue(Database& database, std::string_view query) {
    const auto rows = database.openRecordset(query);
    if (rows->EOF_())
        return std::nullopt;
    return rows->value(0);
}

long countOf(Database& database, std::string_view query) {
    const auto count = firstValue(database, query);
    return count && !count->isNull() ? static_cast<long>(count->asInteger()) : 0;
}

std::string quoted(std::string_view text) {
    return "'" + std::string(text) + "'";
}
