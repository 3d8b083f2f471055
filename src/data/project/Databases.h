#pragma once

#include "data/engine/Database.h"

#include <memory>
#include <string>
#include <string_view>

/// The program's databases, in the default workspace, with the connect strings under which each of them is known.
/// Every function throws DatabaseError where its file cannot be opened (see Workspace::openDatabase) and then leaves
/// the global handle as it was.

/// Opens the file at gsSystemDBPath into gdbSystem.
void reopenSystemDatabase();
/// Opens the file at gsProjectPath into gdbProject.
void reopenProject();
/// Opens CustomerGroups.mdb of the application data folder into gdbCustomerGroups.
void openCustomerGroups();
/// Opens comgroups.mdb of the application data folder into gdbCommunityGroups.
void openCommunityGroups();

/// Full path of CustomerGroups.mdb, and the connect string of a link to it.
std::string customerGroupsPath();
std::string customerGroupsConnect();

/// The open handles. Throw DatabaseError 3420 (object invalid or no longer set) where there is none or it was closed.
Database& systemDatabase();
Database& projectDatabase();
/// CustomerGroups.mdb, opened at first use.
Database& customerGroupsDatabase();

/// Removes a table, link or working view that may not exist.
void dropTable(Database& database, std::string_view table);

/// Makes a link to the table `source` of the file that the connect string names.
void attachTable(Database& database, std::string_view link, std::string_view source, std::string connect);

/// "MS Access;DATABASE=" and the path of the database, with the project password behind it.
std::string projectLinkConnect(const Database& database);
