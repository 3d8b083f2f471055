#include "data/jet/Catalog.h"

#include "data/types/DatabaseError.h"

namespace jet {

std::string qualifiedName(const Table& table) {
    const std::string name = quoteIdentifier(table.name);
    return table.schema.empty() ? name : quoteIdentifier(table.schema) + "." + name;
}

bool Catalog::isLink(std::string_view name) {
    try {
        const auto table = findTable(name);
        return table && !table->link.empty();
    } catch (const DatabaseError&) {
        return true; // only a link can fail to be reached
    }
}

std::vector<Index> Catalog::indexesOf(const Table&) {
    return {};
}

} // namespace jet
