#include "groups/GroupLinks.h"

#include "core/LogAndGoOn.h"
#include "data/project/Databases.h"

void linkGroupTable(const std::string& link, const std::string& source) {
    dropTable(systemDatabase(), link);
    attachTable(systemDatabase(), link, source, customerGroupsConnect());
}

GroupLink::GroupLink(std::string link, const std::string& source)
    : GroupLink(std::move(link), source, customerGroupsConnect()) {}

GroupLink::GroupLink(std::string link, const std::string& source, std::string connect) : link_(std::move(link)) {
    dropTable(systemDatabase(), link_);
    attachTable(systemDatabase(), link_, source, std::move(connect));
}

GroupLink::~GroupLink() {
    ignoreErrors([&] { dropTable(systemDatabase(), link_); });
}
