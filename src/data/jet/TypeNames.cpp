#include "data/jet/TypeNames.h"

#include "data/types/Value.h"

#include <algorithm>
#include <array>
#include <utility>

namespace jet {

namespace {

constexpr std::array<std::pair<std::string_view, FieldType>, 57> names{{
    {"TEXT", FieldType::Text},
    {"CHAR", FieldType::Text},
    {"VARCHAR", FieldType::Text},
    {"CHARACTER", FieldType::Text},
    {"STRING", FieldType::Text},
    {"ALPHANUMERIC", FieldType::Text},
    {"NCHAR", FieldType::Text},
    {"NVARCHAR", FieldType::Text},
    {"MEMO", FieldType::Memo},
    {"LONGTEXT", FieldType::Memo},
    {"LONGCHAR", FieldType::Memo},
    {"NOTE", FieldType::Memo},
    {"NTEXT", FieldType::Memo},
    {"LONG", FieldType::Long},
    {"INTEGER", FieldType::Long},
    {"INT", FieldType::Long},
    {"INTEGER4", FieldType::Long},
    {"COUNTER", FieldType::Long},
    {"AUTOINCREMENT", FieldType::Long},
    {"IDENTITY", FieldType::Long},
    {"SHORT", FieldType::Integer},
    {"SMALLINT", FieldType::Integer},
    {"INTEGER2", FieldType::Integer},
    {"BYTE", FieldType::Byte},
    {"TINYINT", FieldType::Byte},
    {"INTEGER1", FieldType::Byte},
    {"SINGLE", FieldType::Single},
    {"REAL", FieldType::Single},
    {"FLOAT4", FieldType::Single},
    {"IEEESINGLE", FieldType::Single},
    {"DOUBLE", FieldType::Double},
    {"FLOAT", FieldType::Double},
    {"FLOAT8", FieldType::Double},
    {"IEEEDOUBLE", FieldType::Double},
    {"NUMBER", FieldType::Double},
    {"NUMERIC", FieldType::Double},
    {"DECIMAL", FieldType::Double},
    {"DEC", FieldType::Double},
    {"CURRENCY", FieldType::Currency},
    {"MONEY", FieldType::Currency},
    {"DATETIME", FieldType::Date},
    {"DATE", FieldType::Date},
    {"TIME", FieldType::Date},
    {"TIMESTAMP", FieldType::Date},
    {"YESNO", FieldType::Boolean},
    {"BIT", FieldType::Boolean},
    {"BOOLEAN", FieldType::Boolean},
    {"LOGICAL", FieldType::Boolean},
    {"LOGICAL1", FieldType::Boolean},
    {"LONGBINARY", FieldType::LongBinary},
    {"OLEOBJECT", FieldType::LongBinary},
    {"IMAGE", FieldType::LongBinary},
    {"GENERAL", FieldType::LongBinary},
    {"BINARY", FieldType::LongBinary},
    {"VARBINARY", FieldType::LongBinary},
    {"BLOB", FieldType::LongBinary},
    {"NATIONALCHAR", FieldType::Text},
}};

} // namespace

std::optional<NamedType> typeNamed(std::string_view name) {
    const std::string upper = upperText(name);
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const auto& entry) { return entry.first == upper; });
    if (found == names.end())
        return std::nullopt;
    return NamedType{found->second, upper == "COUNTER" || upper == "AUTOINCREMENT" || upper == "IDENTITY"};
}

} // namespace jet
