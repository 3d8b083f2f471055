#pragma once

#include "data/types/FieldType.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The definition of a table or of a link to a table of another file.
struct TableDef {
    std::string name;
    std::vector<Field> fields; ///< of a link: those of its source at the last refresh, empty where it cannot be reached
    std::string connect; ///< of a link: "MS Access;DATABASE=path;PWD=secret"; empty for a table of the file itself
    std::string sourceTableName; ///< of a link

    bool isAttached() const { return !connect.empty(); }
    bool isSystem() const; ///< MSys…: the engine's own
    const Field* findField(std::string_view fieldName) const;
};

/// The tables and links of one database, read from the file when first asked and again whenever they have changed.
class TableDefs {
public:
    /// What the list needs of its database.
    class Source {
    public:
        virtual ~Source() = default;
        virtual std::vector<TableDef> readDefinitions() = 0;
        virtual std::vector<Field> fieldsOfLink(const TableDef& link) = 0;
        virtual void create(const TableDef& definition) = 0;
        virtual void remove(const TableDef& definition) = 0;
        virtual void changeLink(const TableDef& link) = 0;
        virtual void addField(const std::string& table, const Field& field) = 0;
        virtual void removeField(const std::string& table, const std::string& field) = 0;
        /// A number that changes whenever the definitions may have.
        virtual std::int64_t changeStamp() = 0;
    };
    explicit TableDefs(Source& source);

    void refresh();
    std::size_t count();
    const TableDef& at(std::size_t index);
    /// Null where there is no such table. Without case. Valid until the next change or refresh.
    const TableDef* find(std::string_view name);

    /// Makes the table or link in the file. Throws 3010 where the name exists, 3011/3078 where a link's source does
    /// not.
    void append(const TableDef& definition);
    /// Drops the table, or the link alone. Throws 3265 where there is none.
    void remove(std::string_view name);
    /// Leads a link of this name to the source that the definition gives. Throws 3265 where there is no such link, and
    /// the error of the new source where that cannot be reached; the link then stays as it was.
    void refreshLink(const TableDef& link);
    /// Adds a column behind the others. Throws 3191 where it exists, 3314 where it is required but has no default for
    /// the rows that are there, 3259 for a counter, which can be made with its table only.
    void appendField(std::string_view table, const Field& field);
    /// Drops a column. Throws 3265 where there is none, 3280 where it is part of an index, 3293 for the only one.
    void removeField(std::string_view table, std::string_view field);

private:
    void refreshIfChanged();
    const TableDef& withFields(TableDef& definition);

    Source& source_;
    std::vector<TableDef> definitions_;
    std::int64_t stamp_ = -1;
};
