#pragma once

#include "sample/geography/Geography.h"

#include <string>

class Workspace;

namespace sample {

/// Makes CustomerGroups.mdb, which has no password: groups of postcode districts, as the parent product would write
/// them, so that their shapes are yet to be merged; groups of inbound numbers; groups of answer points.
void writeCustomerGroups(Workspace& workspace, const std::string& path, const Geography& geography);

/// Makes comgroups.mdb, which nothing is read from.
void writeCommunityGroups(Workspace& workspace, const std::string& path);

} // namespace sample
