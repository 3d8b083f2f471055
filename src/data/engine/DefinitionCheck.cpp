#include "data/engine/DefinitionCheck.h"

#include "data/engine/AttachedFile.h"
#include "data/engine/RowValue.h"
#include "data/engine/TableDefs.h"
#include "data/jet/Emitter.h"
#include "data/jet/Parser.h"
#include "data/types/DatabaseError.h"

#include <algorithm>

namespace {

constexpr std::size_t longestName = 64;
constexpr int widestText = 255;

bool isName(std::string_view name) {
    const auto isForbidden = [](char c) {
        return static_cast<unsigned char>(c) < ' ' || c == '.' || c == '!' || c == '`' || c == '[' || c == ']';
    };
    // Bytes of one character that follow its first do not count.
    const auto characters =
        std::count_if(name.begin(), name.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
    return !name.empty() && name.front() != ' ' && static_cast<std::size_t>(characters) <= longestName &&
           std::none_of(name.begin(), name.end(), isForbidden);
}

/// The value of a default, which is an expression of literals: "0", "-1", "'none'", "\"none\"", "Null".
Value defaultValueOf(const jet::Expression& expression) {
    if (expression.kind == jet::Expression::Kind::Literal)
        return expression.literal;
    const bool negated = expression.kind == jet::Expression::Kind::Negate &&
                         expression.operands.front()->kind == jet::Expression::Kind::Literal;
    if (!negated)
        throw RuntimeError(13, "Type mismatch");
    const Value& number = expression.operands.front()->literal;
    const auto* whole = std::get_if<std::int64_t>(&number.storage());
    return whole ? Value(-*whole) : Value(-number.asDouble());
}

std::string defaultLiteral(const Field& field) {
    try {
        const Value value = defaultValueOf(*jet::parseExpression(*field.defaultValue));
        const Value stored = storedValue(field, value);
        return jet::literalText(value.isNumber() ? value : stored); // a number stays as it was written
    } catch (const RuntimeError&) {
        throw DatabaseError(3421, "The field '" + field.name + "' cannot have the default " + *field.defaultValue);
    }
}

} // namespace

Field checkedField(const Field& field) {
    if (!isName(field.name))
        throw DatabaseError(3125, "'" + field.name + "' is not a valid name for a field");
    Field checked = field;
    if (field.type == FieldType::Text) {
        if (field.size > widestText || field.size < 0)
            throw DatabaseError(3273, "The field '" + field.name + "' is too wide: a text has at most " +
                                          std::to_string(widestText) + " characters");
        checked.size = field.size == 0 ? widestText : field.size;
    }
    if (field.defaultValue && field.defaultValue->empty())
        checked.defaultValue.reset();
    else if (field.defaultValue)
        checked.defaultValue = defaultLiteral(checked);
    return checked;
}

Value defaultOf(const Field& field) {
    if (!field.defaultValue)
        return field.type == FieldType::Boolean ? Value(false) : Value();
    try {
        return storedValue(field, defaultValueOf(*jet::parseExpression(*field.defaultValue)));
    } catch (const RuntimeError&) {
        return {};
    }
}

void checkTableName(std::string_view name) {
    if (!isName(name) || isSystemTable(name))
        throw DatabaseError(3125, "'" + std::string(name) + "' is not a valid name for a table");
}

TableDef checkedDefinition(const TableDef& definition) {
    checkTableName(definition.name);
    TableDef checked = definition;
    checked.fields.clear();
    if (definition.fields.empty())
        throw DatabaseError(3264, "Table '" + definition.name + "' has no fields");
    for (const Field& field : definition.fields) {
        if (checked.findField(field.name))
            throw DatabaseError(3191, "Field '" + field.name + "' is defined twice in table '" + definition.name + "'");
        checked.fields.push_back(checkedField(field));
    }
    const auto counters =
        std::count_if(checked.fields.begin(), checked.fields.end(), [](const Field& f) { return f.counter; });
    if (counters > 1)
        throw DatabaseError(3292, "Table '" + definition.name + "' has more than one counter");
    return checked;
}
