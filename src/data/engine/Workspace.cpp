#include "data/engine/Workspace.h"

#include "core/cPathControl.h"
#include "data/engine/DatabaseImpl.h"
#include "data/engine/WorkspaceImpl.h"
#include "data/types/DatabaseError.h"

#include <algorithm>
#include <filesystem>

namespace {
std::shared_ptr<Workspace>& sharedWorkspace() {
    static std::shared_ptr<Workspace> workspace;
    return workspace;
}
} // namespace

std::string canonicalPath(const std::string& path) {
    std::error_code fault;
    const std::filesystem::path canonical = std::filesystem::weakly_canonical(toPath(path), fault);
    return fault ? path : toText(canonical);
}

std::shared_ptr<AttachedFile> Workspace::Impl::attached(const std::string& path) {
    const auto found = files_.find(canonicalPath(path));
    return found == files_.end() ? nullptr : found->second;
}

std::shared_ptr<AttachedFile> Workspace::Impl::attachedAs(std::string_view schema) const {
    const auto found =
        std::find_if(files_.begin(), files_.end(), [&](const auto& file) { return file.second->schema() == schema; });
    return found == files_.end() ? nullptr : found->second;
}

void Workspace::Impl::detachUnused() {
    if (connection->inTransaction())
        return;
    std::vector<std::shared_ptr<AttachedFile>> used;
    for (const auto& [path, file] : files_) {
        if (file.use_count() > 1)
            used.push_back(file);
    }
    // Links may lead in a ring, so that files are followed from those in use.
    for (std::size_t i = 0; i < used.size(); ++i) {
        for (const auto& other : used[i]->held()) {
            if (std::find(used.begin(), used.end(), other) == used.end())
                used.push_back(other);
        }
    }
    std::erase_if(files_,
                  [&](const auto& file) { return std::find(used.begin(), used.end(), file.second) == used.end(); });
}

void Workspace::Impl::commitLevel(const std::string& sql) {
    std::string paths; // asked before, as a commit that fails may have undone all
    for (const auto& [path, file] : files_) {
        if (connection->hasChanged(file->schema()))
            paths += (paths.empty() ? ": '" : " or '") + path + "'";
    }
    try {
        connection->execute(sql);
    } catch (const DatabaseError& error) {
        throw DatabaseError(error.number(), error.description() + paths);
    }
}

void Workspace::Impl::invalidateSchemas() {
    for (const auto& [path, file] : files_)
        file->invalidate();
}

std::shared_ptr<AttachedFile> Workspace::Impl::attach(const std::string& path, const std::string& password,
                                                      AttachedFile::Create create) {
    detachUnused();
    const std::string canonical = canonicalPath(path);
    if (auto open = attached(canonical)) {
        if (!std::filesystem::exists(toPath(canonical)))
            throw DatabaseError(3024, "Could not find file '" + path + "'");
        if (!open->admits(password))
            throw DatabaseError(3031, "Not a valid password for '" + path + "'");
        return open;
    }
    auto file =
        std::make_shared<AttachedFile>(connection, canonical, "f" + std::to_string(nextSchema_), password, create);
    ++nextSchema_;
    files_[canonical] = file;
    return file;
}

Workspace::Workspace() : impl_(std::make_unique<Impl>()) {}
Workspace::~Workspace() = default;

std::shared_ptr<Workspace> Workspace::create() {
    return std::shared_ptr<Workspace>(new Workspace());
}

std::shared_ptr<Database> Workspace::openDatabase(const std::string& path, Access access, std::string_view connect) {
    const ConnectString parts = ConnectString::parse(connect);
    impl_->detachUnused();
    const bool openHere = impl_->attached(path) != nullptr;
    if (access == Access::Exclusive && openHere)
        throw DatabaseError(3356, "The file '" + path + "' is already open in this program");
    auto file = impl_->attach(path, parts.password);
    if (access == Access::Exclusive)
        file->lockExclusively();
    return std::make_shared<Database>(
        std::make_unique<Database::Impl>(shared_from_this(), std::move(file), path, access == Access::ReadOnly));
}

std::shared_ptr<Database> Workspace::createDatabase(const std::string& path, std::string_view connect) {
    if (std::filesystem::exists(toPath(path)))
        throw DatabaseError(3204, "The database '" + path + "' already exists");
    std::error_code fault;
    const std::filesystem::path folder = std::filesystem::absolute(toPath(path), fault).parent_path();
    if (!std::filesystem::is_directory(folder, fault))
        throw DatabaseError(3044, "'" + toText(folder) + "' is not a valid folder");
    std::shared_ptr<AttachedFile> file;
    try {
        const std::string password = ConnectString::parse(connect).password;
        auto create = AttachedFile::Create::Yes;
        if (impl_->connection->inTransaction()) {
            // Through this connection the file's first page would go with the transaction and leave an empty file.
            const AttachedFile made(std::make_shared<sqlite::Connection>(), canonicalPath(path), "made", password,
                                    create);
            create = AttachedFile::Create::No;
        }
        file = impl_->attach(path, password, create);
    } catch (...) {
        // A piece of a file would stand in the way of the next attempt.
        for (const char* ending : {"", "-journal"})
            std::filesystem::remove(toPath(path + ending), fault);
        throw;
    }
    return std::make_shared<Database>(
        std::make_unique<Database::Impl>(shared_from_this(), std::move(file), path, false));
}

// Level 1 is the transaction itself, deeper levels are savepoints in it.

void Workspace::beginTrans() {
    impl_->connection->execute(impl_->transactionDepth == 0 ? "BEGIN" : "SAVEPOINT level");
    ++impl_->transactionDepth;
    impl_->connection->expectTransaction(true);
}

void Workspace::commitTrans() {
    if (impl_->transactionDepth == 0)
        throw DatabaseError(3034, "There is no transaction to commit");
    impl_->commitLevel(impl_->transactionDepth == 1 ? "COMMIT" : "RELEASE level");
    --impl_->transactionDepth;
    impl_->connection->expectTransaction(impl_->transactionDepth > 0);
    impl_->detachUnused();
}

void Workspace::rollback() {
    if (impl_->transactionDepth == 0)
        throw DatabaseError(3034, "There is no transaction to roll back");
    const bool outermost = --impl_->transactionDepth == 0;
    // A fault such as a full disk may have ended the transaction already.
    if (outermost)
        impl_->connection->expectTransaction(false);
    if (impl_->connection->inTransaction()) {
        try {
            impl_->connection->execute(outermost ? "ROLLBACK" : "ROLLBACK TO level; RELEASE level");
        } catch (const DatabaseError&) {
            if (impl_->connection->inTransaction()) // where a level cannot be undone alone, all goes
                impl_->connection->execute("ROLLBACK");
        }
    }
    impl_->invalidateSchemas();
    impl_->detachUnused();
}

std::shared_ptr<Workspace> defaultWorkspace() {
    auto& workspace = sharedWorkspace();
    if (!workspace)
        workspace = Workspace::create();
    return workspace;
}

void resetDefaultWorkspace() {
    sharedWorkspace().reset();
}

WorkspaceTransaction::WorkspaceTransaction(Workspace& workspace) : workspace_(&workspace) {
    workspace.beginTrans();
}

WorkspaceTransaction::~WorkspaceTransaction() {
    if (!workspace_)
        return;
    try {
        workspace_->rollback();
    } catch (const RuntimeError&) { // nothing is left to undo
    }
}

void WorkspaceTransaction::commit() {
    workspace_->commitTrans();
    workspace_ = nullptr;
}
