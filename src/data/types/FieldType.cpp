#include "data/types/FieldType.h"

#include "data/types/Value.h"

#include <array>
#include <charconv>

namespace {

struct TypeName {
    FieldType type;
    std::string_view declared; // the words decide the library's column affinity: INT, REAL, DOUB, TEXT, BLOB
};

constexpr std::array<TypeName, 10> typeNames{{
    {FieldType::Boolean, "YESNO INT"},
    {FieldType::Byte, "BYTE INT"},
    {FieldType::Integer, "SHORT INT"},
    {FieldType::Long, "LONG INT"},
    {FieldType::Currency, "CURRENCY REAL"},
    {FieldType::Single, "SINGLE REAL"},
    {FieldType::Double, "DOUBLE"},
    {FieldType::Date, "DATETIME REAL"},
    {FieldType::Memo, "MEMO TEXT"},
    {FieldType::LongBinary, "LONGBINARY BLOB"},
}};

/// The library numbers the rows of a column with exactly this type where it is the key.
constexpr std::string_view counterType = "INTEGER";
constexpr std::string_view nonEmptyText = "NONEMPTYTEXT";
constexpr std::string_view nonEmptyMemo = "NONEMPTYMEMO TEXT";

/// The width in "TEXT(50)", or nothing where `declared` is not `word` with a width behind it.
std::optional<int> widthBehind(std::string_view declared, std::string_view word) {
    if (!declared.starts_with(word) || !declared.ends_with(')') || declared.size() < word.size() + 3 ||
        declared[word.size()] != '(')
        return std::nullopt;
    const std::string_view digits = declared.substr(word.size() + 1, declared.size() - word.size() - 2);
    int width = 0;
    const auto [end, failed] = std::from_chars(digits.data(), digits.data() + digits.size(), width);
    if (failed != std::errc{} || end != digits.data() + digits.size())
        return std::nullopt;
    return width;
}

} // namespace

bool isNumeric(FieldType type) {
    switch (type) {
    case FieldType::Boolean:
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
    case FieldType::Currency:
    case FieldType::Single:
    case FieldType::Double:
        return true;
    default:
        return false;
    }
}

bool isText(FieldType type) {
    return type == FieldType::Text || type == FieldType::Memo;
}

std::string declaredType(const Field& field) {
    if (field.counter)
        return std::string(counterType);
    if (field.type == FieldType::Text) {
        const std::string_view word = field.allowZeroLength ? std::string_view("TEXT") : nonEmptyText;
        return std::string(word) + "(" + std::to_string(field.size > 0 ? field.size : 255) + ")";
    }
    if (field.type == FieldType::Memo && !field.allowZeroLength)
        return std::string(nonEmptyMemo);
    for (const TypeName& name : typeNames) {
        if (name.type == field.type)
            return std::string(name.declared);
    }
    return "MEMO TEXT";
}

std::optional<Field> fieldOfDeclaredType(std::string_view declared) {
    const std::string upper = upperText(declared);
    Field field;
    for (const TypeName& name : typeNames) {
        if (name.declared == upper) {
            field.type = name.type;
            return field;
        }
    }
    if (upper == counterType) {
        field.type = FieldType::Long;
        field.counter = true;
        return field;
    }
    if (upper == nonEmptyMemo) {
        field.type = FieldType::Memo;
        field.allowZeroLength = false;
        return field;
    }
    field.type = FieldType::Text;
    if (const auto width = widthBehind(upper, "TEXT")) {
        field.size = *width;
        return field;
    }
    if (const auto width = widthBehind(upper, nonEmptyText)) {
        field.size = *width;
        field.allowZeroLength = false;
        return field;
    }
    return std::nullopt;
}

std::string columnDefinition(const Field& field) {
    std::string sql = quoteIdentifier(field.name) + " " + declaredType(field);
    if (isText(field.type))
        sql += " COLLATE JET";
    if (field.counter)
        return sql + " PRIMARY KEY";
    if (field.required)
        sql += " NOT NULL";
    if (isText(field.type) && !field.allowZeroLength)
        sql += " CHECK(length(" + quoteIdentifier(field.name) + ") > 0)";
    if (field.defaultValue)
        sql += " DEFAULT " + *field.defaultValue;
    else if (field.type == FieldType::Boolean)
        sql += " DEFAULT 0"; // yes or no, never null
    return sql;
}

std::string quoteIdentifier(std::string_view name) {
    std::string quoted = "\"";
    for (const char c : name) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

std::string quoteLiteral(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        if (c == '\'')
            quoted += '\'';
        quoted += c;
    }
    return quoted + '\'';
}
