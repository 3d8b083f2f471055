#include "data/engine/TableDefs.h"

#include "data/engine/AttachedFile.h"
#include "data/types/DatabaseError.h"
#include "data/types/Value.h"

#include <algorithm>

bool TableDef::isSystem() const {
    return isSystemTable(name);
}

const Field* TableDef::findField(std::string_view fieldName) const {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const Field& field) { return equalText(field.name, fieldName); });
    return found == fields.end() ? nullptr : &*found;
}

TableDefs::TableDefs(Source& source) : source_(source) {}

void TableDefs::refresh() {
    stamp_ = source_.changeStamp();
    definitions_ = source_.readDefinitions();
}

std::size_t TableDefs::count() {
    refreshIfChanged();
    return definitions_.size();
}

const TableDef& TableDefs::at(std::size_t index) {
    refreshIfChanged();
    if (index >= definitions_.size())
        throw DatabaseError(3265, "There is no table number " + std::to_string(index));
    return withFields(definitions_[index]);
}

const TableDef* TableDefs::find(std::string_view name) {
    refreshIfChanged();
    const auto found = std::find_if(definitions_.begin(), definitions_.end(),
                                    [&](const TableDef& d) { return equalText(d.name, name); });
    return found == definitions_.end() ? nullptr : &withFields(*found);
}

void TableDefs::append(const TableDef& definition) {
    source_.create(definition);
    refresh();
}

void TableDefs::remove(std::string_view name) {
    const TableDef* found = find(name);
    if (!found)
        throw DatabaseError(3265, "There is no table '" + std::string(name) + "'");
    source_.remove(TableDef(*found));
    refresh();
}

void TableDefs::appendField(std::string_view table, const Field& field) {
    source_.addField(std::string(table), field);
    refresh();
}

void TableDefs::refreshLink(const TableDef& link) {
    source_.changeLink(link);
    refresh();
}

void TableDefs::removeField(std::string_view table, std::string_view field) {
    source_.removeField(std::string(table), std::string(field));
    refresh();
}

void TableDefs::refreshIfChanged() {
    if (source_.changeStamp() != stamp_)
        refresh();
}

const TableDef& TableDefs::withFields(TableDef& definition) {
    if (definition.isAttached() && definition.fields.empty())
        definition.fields = source_.fieldsOfLink(definition);
    return definition;
}
