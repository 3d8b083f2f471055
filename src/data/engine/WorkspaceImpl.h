#pragma once

#include "data/engine/AttachedFile.h"
#include "data/engine/Workspace.h"

#include <map>
#include <memory>
#include <string>

/// The connection of a workspace and the files attached to it.
class Workspace::Impl {
public:
    Impl() : connection(std::make_shared<sqlite::Connection>()) {}

    /// The attached file at `path`, attaching it where no handle has done so. See Workspace::openDatabase for the
    /// errors; a file that is attached already asks for its password all the same.
    std::shared_ptr<AttachedFile> attach(const std::string& path, const std::string& password,
                                         AttachedFile::Create create = AttachedFile::Create::No);
    /// The attached file at `path` where a handle or link has it open, else null.
    std::shared_ptr<AttachedFile> attached(const std::string& path);

    /// The attached file of this schema name, else null.
    std::shared_ptr<AttachedFile> attachedAs(std::string_view schema) const;

    /// Detaches the files that no handle, recordset or link uses any more. Inside a transaction they stay, as their
    /// changes are not final yet; a file opened again meanwhile is found here.
    void detachUnused();
    /// Ends a level of a transaction. Errors name the files that it changed.
    void commitLevel(const std::string& sql);
    /// Forgets what was read of all schemas, after changes were undone.
    void invalidateSchemas();

    std::shared_ptr<sqlite::Connection> connection;
    int transactionDepth = 0;

private:
    std::map<std::string, std::shared_ptr<AttachedFile>> files_; ///< by canonical path
    int nextSchema_ = 1;
};

/// The path by which a file is known to a workspace: absolute, links of the file system followed.
std::string canonicalPath(const std::string& path);
