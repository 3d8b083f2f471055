#pragma once

#include "data/types/FieldType.h"
#include "data/types/Value.h"

#include <string_view>

struct TableDef;

/// A field as the engine can make it: a Text of no size gets the widest, a default becomes a literal of the storage
/// library. Throws DatabaseError: 3125 for a name that is none, 3421 for a default that the field cannot take, 3273
/// for a width beyond 255.
Field checkedField(const Field& field);

/// What the field holds in a new row before anything is set: its default, false for a boolean, else null. A default
/// that is no literal, as a file made by other means may have, is known only when the row is stored; null until then.
Value defaultOf(const Field& field);

/// Throws 3125 for a name that a table cannot have: empty, longer than 64 characters, one of the engine's own, or with
/// a character that statements could not write.
void checkTableName(std::string_view name);

/// All of a table's fields checked. Throws also 3264 where there are none and 3191 where two have the same name and
/// 3292 for a second counter.
TableDef checkedDefinition(const TableDef& definition);
