#pragma once

#include "data/schema/Vocabulary.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// Words in which the tables are written down, and the parts that many of them share.
namespace vocabulary {

using Fields = std::vector<Field>;

Field text(std::string_view name, int width);
/// A text that may be null but not empty.
Field filledText(std::string_view name, int width);
Field boolean(std::string_view name);
Field integer(std::string_view name); ///< 16 bits
Field longInteger(std::string_view name);
Field single(std::string_view name);
Field real(std::string_view name);
Field money(std::string_view name);
Field date(std::string_view name);
Field binary(std::string_view name);
Field withDefault(Field field, std::string_view expression);

/// The lists one behind the other.
Fields join(std::initializer_list<Fields> lists);

VocabularyTable table(DatabaseKind database, TableOrigin origin, std::string_view name, Fields fields);

/// [1141] and the areas that a code lies in.
Fields geographyFields();
/// POLYGONID to PARTS: the polygon record behind the columns that name it.
Fields polygonFields();
/// TblDataCapture as it lies in a project; `textField` makes its text columns, text() or filledText().
Fields dataCaptureFields(Field (*textField)(std::string_view, int));
/// TblGroups, TblName, PGN_GROUPS and PNT_GROUPS, which lie in more than one database.
Fields groupFields();
Fields groupNameFields();
Fields groupPolygonFields();
Fields groupLabelFields();

using Tables = std::vector<VocabularyTable>;

Tables projectTables();
Tables systemMapTables();
Tables statisticsTables();
Tables customerGroupTables();

} // namespace vocabulary
