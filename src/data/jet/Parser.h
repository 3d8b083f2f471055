#pragma once

#include "data/jet/Statement.h"

#include <string_view>

namespace jet {

/// Reads one statement into its syntax tree. Throws DatabaseError with the position of the first word that does not
/// fit: 3075 inside an expression, 3131 FROM, 3135 joins, 3138 ORDER BY, 3141 elsewhere in SELECT, 3134 INSERT, 3144
/// UPDATE, 3128 DELETE, 3290 CREATE TABLE, 3291 CREATE INDEX, 3293 ALTER TABLE, 3295 DROP, 3129 no statement at all,
/// 3142 words behind its end, 3360 too deep.
Statement parse(std::string_view statement);

/// Reads an expression that stands alone, such as a search. Throws 3077.
ExpressionPtr parseExpression(std::string_view text);

} // namespace jet
