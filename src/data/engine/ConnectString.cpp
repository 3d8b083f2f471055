#include "data/engine/Workspace.h"
#include "data/types/Value.h"

ConnectString ConnectString::parse(std::string_view text) {
    ConnectString result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(';'), text.size());
        const std::string_view item = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        const std::size_t equals = item.find('=');
        if (equals == std::string_view::npos)
            continue;
        const std::string_view key = item.substr(0, equals);
        if (equalText(key, "PWD"))
            result.password = item.substr(equals + 1);
        else if (equalText(key, "DATABASE"))
            result.database = item.substr(equals + 1);
    }
    return result;
}
