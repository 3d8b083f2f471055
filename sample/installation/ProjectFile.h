#pragma once

#include "data/types/Value.h"
#include "sample/geography/Geography.h"
#include "sample/installation/ReferenceCodes.h"

#include <cstdint>
#include <span>
#include <string>

class Database;
class Workspace;

namespace sample {

/// What a project was made of.
struct ProjectFacts {
    std::int64_t calls = 0;
    std::int64_t callers = 0; ///< who may call; not every one of them does
    Date firstDate, lastDate; ///< of the calls
};

/// Makes a project of `calls` calls at `path`, which must not exist. `codes` are those of the geography.
ProjectFacts writeProject(Workspace& workspace, const std::string& path, const Geography& geography,
                          std::span<const ReferenceCode> codes, std::int64_t calls, std::uint64_t seed);

/// Makes CSProject.bak: a project of the current layout without any rows.
void writeProjectTemplate(Workspace& workspace, const std::string& path);

/// Fills TblTeleItem of an open project, in one transaction, and gives the facts.
ProjectFacts writeCalls(Database& project, const Geography& geography, std::span<const ReferenceCode> codes,
                        std::int64_t calls, std::uint64_t seed);

} // namespace sample
