#pragma once

#include "data/engine/Database.h"

#include <functional>
#include <string>
#include <vector>

/// What the tests of reliability share: files of calls, the changes that are disturbed, and the state of a file in a
/// form that can be compared.

/// A change of a database that takes a while; whole or not at all.
struct Change {
    const char* name;
    std::function<void(Database& database)> run;
};
const std::vector<Change>& changes();

/// A plain and an encrypted file.
struct FileKind {
    const char* name;
    std::string connect;
};
const std::vector<FileKind>& fileKinds();

/// Makes a file with `calls` calls, their areas, an index and a link.
void makeCallsFile(const std::string& path, const std::string& connect, int calls);

/// Whether every moment is to be tried, however long that takes: CALLSCOPE_ALL_MOMENTS in the environment.
bool allMomentsWanted();

/// A file opened in a workspace of its own. `cachePages`: how many pages stay in memory; 0 leaves it as it is.
std::shared_ptr<Database> openAlone(const std::string& path, const std::string& connect, int cachePages = 0);

/// All tables, links and indexes of an open file with a sum over their rows; the words of the integrity check where it
/// finds something.
std::string stateOf(Database& database);
/// The same of the file at `path`. Throws as openDatabase.
std::string stateOf(const std::string& path, const std::string& connect);

/// Opens what an accident left, and says what is wrong with it: neither of the two states, a journal that stays, a
/// statement that no longer runs. Empty where all is well.
std::string faultAfterAccident(const std::string& path, const std::string& connect, const std::string& before,
                               const std::string& after);
