#include "map/data/DataTable.h"

#include "core/RuntimeError.h"

std::optional<double> numberOf(const Value& figure) {
    if (figure.isNumber())
        return figure.asDouble();
    if (!figure.isText() || figure.asText().empty())
        return std::nullopt;
    try {
        return figure.asDouble();
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}
