#pragma once

#include "map/surface/Scene.h"

#include <memory>
#include <string>
#include <string_view>

class Database;

/// The file behind a layer.
struct LayerSource {
    std::string path;
    std::string password; ///< empty: none

    /// Reads "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=path;MS Access;pwd=password;", keys in any case. Parts that
    /// are missing stay empty.
    static LayerSource parse(std::string_view layerDataSource);
    /// The text that parse() reads.
    std::string text() const;

    /// Opens the file in the program's workspace. Throws DatabaseError as Workspace::openDatabase does; 3024 where the
    /// text names no file.
    std::shared_ptr<Database> open() const;
};

/// The shape table behind a coverage name: CCL_TV of polygons is PGN_TV, CCL_TVNAMES of label points is PNT_TVNAMES.
/// Any other name is a table already.
std::string shapeTableOf(std::string_view coverage, CoverageKind kind);

/// `sql` with every coverage name outside quotes replaced by its shape table.
std::string resolveCoverages(std::string_view sql, CoverageKind kind);
