#pragma once

#include <string>

/// Makes a link in ukmap.mdb to a table of CustomerGroups.mdb, in place of one of that name. Throws DatabaseError.
void linkGroupTable(const std::string& link, const std::string& source);

/// A link in ukmap.mdb that exists as long as the object: to a table of CustomerGroups.mdb, or of the file that another
/// connect string names. Making it throws DatabaseError.
class GroupLink {
public:
    GroupLink(std::string link, const std::string& source);
    GroupLink(std::string link, const std::string& source, std::string connect);
    ~GroupLink(); ///< a link that cannot be removed stays; the next one of the name replaces it
    GroupLink(const GroupLink&) = delete;
    GroupLink& operator=(const GroupLink&) = delete;

private:
    std::string link_;
};
