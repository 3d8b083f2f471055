#include "data/schema/VocabularyBuilder.h"

namespace vocabulary {

namespace {

Field field(std::string_view name, FieldType type) {
    Field made;
    made.name = name;
    made.type = type;
    return made;
}

} // namespace

Field text(std::string_view name, int width) {
    Field made = field(name, FieldType::Text);
    made.size = width;
    return made;
}

Field filledText(std::string_view name, int width) {
    Field made = text(name, width);
    made.allowZeroLength = false;
    return made;
}

Field boolean(std::string_view name) {
    return field(name, FieldType::Boolean);
}

Field integer(std::string_view name) {
    return field(name, FieldType::Integer);
}

Field longInteger(std::string_view name) {
    return field(name, FieldType::Long);
}

Field single(std::string_view name) {
    return field(name, FieldType::Single);
}

Field real(std::string_view name) {
    return field(name, FieldType::Double);
}

Field money(std::string_view name) {
    return field(name, FieldType::Currency);
}

Field date(std::string_view name) {
    return field(name, FieldType::Date);
}

Field binary(std::string_view name) {
    return field(name, FieldType::LongBinary);
}

Field withDefault(Field field, std::string_view expression) {
    field.defaultValue = expression;
    return field;
}

Fields join(std::initializer_list<Fields> lists) {
    Fields joined;
    for (const Fields& list : lists)
        joined.insert(joined.end(), list.begin(), list.end());
    return joined;
}

VocabularyTable table(DatabaseKind database, TableOrigin origin, std::string_view name, Fields fields) {
    TableDef definition;
    definition.name = name;
    definition.fields = std::move(fields);
    return {database, origin, std::move(definition)};
}

Fields geographyFields() {
    return {text("1141", 10), text("Exchange", 50), text("CSG", 50),
            text("DMSU", 50), text("PostCode", 50), text("TVArea", 50)};
}

Fields polygonFields() {
    return {integer("POLYGONID"), longInteger("NUMVERT"),  real("BOUNDLOWX"), real("BOUNDLOWY"),
            real("BOUNDUPPX"),    real("BOUNDUPPY"),       real("CENTERX"),   real("CENTERY"),
            binary("VERTICES"),   longInteger("NUMPARTS"), binary("PARTS")};
}

} // namespace vocabulary
