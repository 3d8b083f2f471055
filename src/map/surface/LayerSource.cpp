#include "map/surface/LayerSource.h"

#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "data/types/Value.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::string_view PathKey = "Data Source=";
constexpr std::string_view BehindPath = ";MS Access";
constexpr std::string_view PasswordKey = ";pwd=";
constexpr std::string_view CoveragePrefix = "CCL_";

bool equalCharacter(char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

/// Position of `what` in `text` without case, from `from` on; npos where it does not occur.
std::size_t findText(std::string_view text, std::string_view what, std::size_t from = 0) {
    if (from > text.size())
        return std::string_view::npos;
    const auto found = std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), what.begin(),
                                   what.end(), equalCharacter);
    return found == text.end() ? std::string_view::npos : static_cast<std::size_t>(found - text.begin());
}

bool isNameCharacter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), text.begin(), equalCharacter);
}

} // namespace

LayerSource LayerSource::parse(std::string_view layerDataSource) {
    LayerSource source;
    if (const std::size_t key = findText(layerDataSource, PathKey); key != std::string_view::npos) {
        const std::size_t begin = key + PathKey.size();
        // A file name may hold a semicolon, so the words behind it end it where they are there.
        std::size_t end = findText(layerDataSource, BehindPath, begin);
        if (end == std::string_view::npos)
            end = layerDataSource.find(';', begin);
        source.path = layerDataSource.substr(begin, end == std::string_view::npos ? end : end - begin);
        if (end != std::string_view::npos)
            layerDataSource.remove_prefix(end);
    }
    if (const std::size_t key = findText(layerDataSource, PasswordKey); key != std::string_view::npos) {
        const std::string_view behind = layerDataSource.substr(key + PasswordKey.size());
        source.password = behind.substr(0, behind.find(';'));
    }
    return source;
}

std::string LayerSource::text() const {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path + ";MS Access;pwd=" + password + ";";
}

std::shared_ptr<Database> LayerSource::open() const {
    if (path.empty())
        throw DatabaseError(3024, "Could not find file: the layer's data source names none.");
    const std::string connect = password.empty() ? std::string() : "MS Access;PWD=" + password;
    return defaultWorkspace()->openDatabase(path, Workspace::Access::Shared, connect);
}

std::string shapeTableOf(std::string_view coverage, CoverageKind kind) {
    if (!startsWith(coverage, CoveragePrefix))
        return std::string(coverage);
    const std::string_view prefix = kind == CoverageKind::Polygons ? "PGN_" : "PNT_";
    return std::string(prefix) + upperText(coverage.substr(CoveragePrefix.size()));
}

std::string resolveCoverages(std::string_view sql, CoverageKind kind) {
    std::string resolved;
    char quote = 0;
    for (std::size_t i = 0; i < sql.size();) {
        if (quote != 0 || !isNameCharacter(sql[i])) {
            if (quote != 0 ? sql[i] == quote : sql[i] == '\'' || sql[i] == '"')
                quote = quote != 0 ? '\0' : sql[i];
            resolved += sql[i++];
            continue;
        }
        std::size_t end = i;
        while (end < sql.size() && isNameCharacter(sql[end]))
            ++end;
        resolved += shapeTableOf(sql.substr(i, end - i), kind);
        i = end;
    }
    return resolved;
}
