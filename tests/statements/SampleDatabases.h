#pragma once

#include "data/engine/Database.h"
#include "tests/support/TemporaryFolder.h"

#include <map>
#include <memory>
#include <string>

/// The databases of a sample installation of 20,000 calls, open in the default workspace as the program has them after
/// opening the project: linked to each other, and the statistics tables filled with the calls of the whole project.
/// They are known as "project", "system", "groups" (CustomerGroups.mdb) and "delivered" (the newer map file).
class SampleDatabases {
public:
    /// The one of this process, made at the first call.
    static SampleDatabases& shared();

    /// Throws std::out_of_range for another name.
    Database& database(const std::string& name) const { return *databases_.at(name); }
    /// Replaces {project}, {system}, {groups} and {delivered} by the full paths of these files.
    std::string withPaths(std::string text) const;
    /// Makes a link to a table of another of the databases, with the connect string that the program gives it.
    void attach(Database& to, const std::string& link, const std::string& table, const std::string& from) const;

private:
    SampleDatabases();

    TemporaryFolder folder_;
    std::map<std::string, std::shared_ptr<Database>> databases_;
};
