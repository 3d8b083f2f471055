#include "data/engine/DatabaseImpl.h"

#include "data/jet/Program.h"
#include "data/types/DatabaseError.h"

namespace {

/// The tables of one file under their bare names. A file is attached under another name each time, so that a view in it
/// must not name the file.
class OwnTables : public jet::Catalog {
public:
    explicit OwnTables(jet::Catalog& all) : all_(all) {}

    std::string defaultSchema() const override { return {}; }
    std::optional<jet::Table> findTable(std::string_view name) override {
        if (all_.isLink(name))
            refuse(name);
        auto table = all_.findTable(name);
        if (table)
            table->schema.clear();
        return table;
    }
    std::optional<jet::Table> findTableIn(std::string_view, std::string_view name) override { refuse(name); }
    std::string schemaOf(std::string_view path) override { refuse(path); }

private:
    [[noreturn]] static void refuse(std::string_view name) {
        throw DatabaseError(3078, "A view cannot show '" + std::string(name) + "', which lies in another file");
    }
    jet::Catalog& all_;
};

} // namespace

void Database::Impl::createView(const std::string& name, std::string_view query) {
    if (isLink(name) || findTable(name))
        throw DatabaseError(3010, "Table '" + name + "' already exists");
    OwnTables tables(*this);
    const jet::Program shown = jet::translate(query, tables);
    if (!shown.isQuery)
        throw DatabaseError(3219, "A view shows the rows of a query");
    std::string columns;
    for (const jet::ResultColumn& column : shown.columns)
        columns += (columns.empty() ? "" : ", ") + quoteIdentifier(column.name);
    jet::Table view;
    view.schema = defaultSchema();
    view.name = name;
    jet::Program program;
    program.changesSchema = true;
    program.steps.push_back(
        {jet::Step::Kind::Execute, "CREATE VIEW " + jet::qualifiedName(view) + " (" + columns + ") AS " + shown.query});
    run(program);
}
