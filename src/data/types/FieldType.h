#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The engine's column types. How each lies in a file:
/// Boolean -1/0; Byte, Integer (16 bit), Long (32 bit) integers; Currency, Single, Double, Date reals (Date: days since
/// 30 December 1899, the fraction is the time of day; Currency: rounded to four decimals); Text and Memo UTF-8 under
/// collation JET; LongBinary bytes.
enum class FieldType { Boolean, Byte, Integer, Long, Currency, Single, Double, Date, Text, Memo, LongBinary };

bool isNumeric(FieldType type); ///< Boolean to Double; not Date
bool isText(FieldType type);    ///< Text or Memo

/// One column of a table.
struct Field {
    std::string name;
    FieldType type = FieldType::Text;
    int size = 0; ///< most characters of a Text (1 to 255); 0 for every other type
    bool required = false;
    bool allowZeroLength = true;             ///< Text and Memo only
    std::optional<std::string> defaultValue; ///< as an expression of the dialect: "0", "'x'"
    bool counter = false; ///< a Long that numbers its rows by itself and is their key
};

/// The type as it is declared in the file, for example "TEXT(50)" or "DATETIME REAL", and back (nothing where it is
/// none of ours). A Text or Memo without zero length is declared as "NONEMPTYTEXT(50)", "NONEMPTYMEMO TEXT".
std::string declaredType(const Field& field);
std::optional<Field> fieldOfDeclaredType(std::string_view declared);

/// The whole column definition for CREATE TABLE: quoted name, type, collation, NOT NULL, CHECK and DEFAULT.
std::string columnDefinition(const Field& field);

/// `name` as a quoted identifier of the storage library ("a""b").
std::string quoteIdentifier(std::string_view name);
/// `text` as a literal of the storage library ('it''s').
std::string quoteLiteral(std::string_view text);
