#pragma once

#include "data/engine/AttachedFile.h"
#include "data/engine/Database.h"
#include "data/jet/Catalog.h"

/// A handle's state; also what the binder and the table list ask of it.
class Database::Impl : public jet::Catalog, public TableDefs::Source {
public:
    Impl(std::shared_ptr<Workspace> workspace, std::shared_ptr<AttachedFile> file, std::string path, bool readOnly);

    // jet::Catalog
    std::string defaultSchema() const override;
    std::optional<jet::Table> findTable(std::string_view name) override;
    std::optional<jet::Table> findTableIn(std::string_view path, std::string_view name) override;
    std::string schemaOf(std::string_view path) override;
    bool isLink(std::string_view name) override;
    std::vector<jet::Index> indexesOf(const jet::Table& table) override;

    // TableDefs::Source
    std::vector<TableDef> readDefinitions() override;
    std::vector<Field> fieldsOfLink(const TableDef& link) override;
    void create(const TableDef& definition) override;
    void remove(const TableDef& definition) override;
    void changeLink(const TableDef& link) override;
    void addField(const std::string& table, const Field& field) override;
    void removeField(const std::string& table, const std::string& field) override;
    std::int64_t changeStamp() override;

    ~Impl() override;
    /// Lets go of the file.
    void close();
    /// Throws 3420 after close.
    AttachedFile& file() const;
    void refuseWhereReadOnly() const;
    void run(const jet::Program& program);
    void createView(const std::string& name, std::string_view query);

    std::shared_ptr<Workspace> workspace;
    std::shared_ptr<AttachedFile> attached; ///< null after close
    std::string path;
    bool readOnly = false;
    long recordsAffected = 0;
    TableDefs tableDefs;

private:
    long runSteps(const jet::Program& program);
    std::optional<jet::Table> followLink(AttachedFile& from, const AttachedFile::Link& link, int depth);
    std::optional<jet::Table> findIn(AttachedFile& from, std::string_view name, int depth);
    AttachedFile& otherFile(std::string_view otherPath);
    /// Throws 3078.
    jet::Table existingTable(const std::string& name);
};
