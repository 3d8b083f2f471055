#pragma once

#include "sample/geography/Geography.h"
#include "sample/installation/ReferenceCodes.h"

#include <span>
#include <string>

class Workspace;

namespace sample {

/// Makes ukmap.mdb: shapes, labels, reference and population tables filled, statistics tables empty.
void writeSystemMap(Workspace& workspace, const std::string& path, const Geography& geography,
                    std::span<const ReferenceCode> codes);

/// Adds the standing links of ukmap.mdb to CustomerGroups.mdb.
void linkCustomerGroups(Workspace& workspace, const std::string& systemMapPath, const std::string& customerGroupsPath);

} // namespace sample
